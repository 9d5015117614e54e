#pragma once
#include <string>
#include <vector>

#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT2.h"

/// A test on the screen of formation, rainfall and curves.
class GroundScreen : public ScreenTest {
protected:
    /// The screen behind a track screen with one segment a length, as frmT1 shows them.
    frmT2& open(const std::vector<std::string>& eqLengths)
    {
        auto& t1 = chain.get<frmT1>();
        t1.txtNSeg.setText(QString::number(eqLengths.size()));
        for (std::size_t i = 0; i < eqLengths.size(); ++i)
            t1.txtEqtkm(static_cast<int>(i)).setText(QString::fromStdString(eqLengths[i]));
        return on<frmT2>();
    }

    /// The screen with the data file of a sample behind it.
    frmT2& openSample(const std::string& file, int segments)
    {
        chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample(file)));
        return open(std::vector<std::string>(static_cast<std::size_t>(segments), "50.3"));
    }

    /// Types into row i, column by column as the screen shows them; "" leaves a box as it is.
    void typeRow(int i, const std::vector<std::string>& figures)
    {
        const std::vector<std::string> columns = {"txtSoil1", "txtTout1", "txtSoil2", "txtTout2",
                                                  "txtCur1",  "txtcur2",  "txtCur3",  "txtRain"};
        for (std::size_t c = 0; c < figures.size(); ++c)
            if (!figures[c].empty())
                type(columns[c] + "(" + std::to_string(i) + ")", figures[c]);
    }

    /// The eight entry boxes of row i in the order of the file's columns.
    std::string entered(int i)
    {
        std::string all;
        for (const char* box :
             {"txtRain", "txtSoil1", "txtTout1", "txtSoil2", "txtTout2", "txtCur1", "txtcur2", "txtCur3"})
            all += text(std::string(box) + "(" + std::to_string(i) + ")") + "|";
        return all;
    }

    /// A, B, C and the factor of row i.
    std::string factors(int i)
    {
        const std::string row = "(" + std::to_string(i) + ")";
        return text("txtA" + row) + "|" + text("txtB" + row) + "|" + text("txtC" + row) + "|" + text("txtABC" + row);
    }
};
