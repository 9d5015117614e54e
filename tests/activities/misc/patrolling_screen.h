#pragma once
#include <string>
#include <vector>

#include "activities/misc/frmM1.h"
#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT1.h"

/// A test on the screen of M.1 to M.4.
class PatrollingScreen : public ScreenTest {
protected:
    /// The screen behind a track screen with so much long welded rail [km].
    frmM1& open(float lwrKm = 0.0F)
    {
        chain.get<frmT1>().LwrTotal = lwrKm;
        return on<frmM1>();
    }

    /// The screen with the data file of a sample behind it.
    frmM1& openSample(const std::string& file, float lwrKm)
    {
        chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample(file)));
        return open(lwrKm);
    }

    /// Days, beats, shifts and men of beat length i, as the screen shows them; "" leaves a box as it is.
    void typeBeatLength(int i, const std::vector<std::string>& figures)
    {
        typeRow(i, {"txtND", "txtBL", "txtNS", "txtNM"}, figures);
    }

    /// Days and shifts of location i.
    void typeLocation(int i, const std::vector<std::string>& figures) { typeRow(i, {"txtDV", "txtDS"}, figures); }

    /// "days|shifts|beats|men" of a beat length, in the order of the file.
    std::string beatLength(int i)
    {
        const std::string row = "(" + std::to_string(i) + ")";
        return text("txtND" + row) + "|" + text("txtNS" + row) + "|" + text("txtBL" + row) + "|" + text("txtNM" + row);
    }

    std::string location(int i)
    {
        const std::string row = "(" + std::to_string(i) + ")";
        return text("txtDV" + row) + "|" + text("txtDS" + row);
    }

    std::string beatLengthsShown() { return rowsShown({"txtTB", "txtND", "txtBL", "txtNS", "txtNM"}); }
    std::string locationsShown() { return rowsShown({"txtNVL", "txtDV", "txtDS"}); }

    /// M.1 to M.4.
    std::string results()
    {
        return text("txtman1") + "|" + text("txtMan2") + "|" + text("txtMan3") + "|" + text("txtMan4");
    }

private:
    void typeRow(int i, const std::vector<std::string>& columns, const std::vector<std::string>& figures)
    {
        for (std::size_t c = 0; c < figures.size(); ++c)
            if (!figures[c].empty())
                type(columns[c] + "(" + std::to_string(i) + ")", figures[c]);
    }

    /// "1100...", alike for every column.
    std::string rowsShown(const std::vector<std::string>& columns)
    {
        std::string all = shownOf(columns.front(), 0, 11);
        for (const std::string& column : columns)
            EXPECT_EQ(shownOf(column, 0, 11), all) << column;
        return all;
    }
};
