#pragma once
#include <string>
#include <vector>

#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "yards/frmY.h"

/// A test on the screen of the station yards.
class YardScreen : public ScreenTest {
protected:
    frmY& open(const std::string& gauge = "BG")
    {
        chain.get<frmT1>().txtT1(3).setText(QString::fromStdString(gauge));
        return on<frmY>();
    }

    /// The screen with the data file of a sample behind it.
    frmY& openSample(const std::string& file, const std::string& gauge)
    {
        chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample(file)));
        return open(gauge);
    }

    /// Types into yard i, column by column as the screen shows them; "" leaves a box as it is.
    void typeRow(int i, const std::vector<std::string>& figures)
    {
        for (std::size_t c = 0; c < figures.size(); ++c)
            if (!figures[c].empty())
                type(Columns[c] + "(" + std::to_string(i) + ")", figures[c]);
    }

    /// The boxes of yard i as the screen shows them, "station|...".
    std::string row(int i) { return figures(i, 0); }
    std::string totals() { return figures(12, 1); }

    /// "1100...", yards and total row alike for every column.
    std::string rowsShown()
    {
        std::string all = shownOf("txtM1", 0, 12);
        for (const char* column : {"txtM2", "TXTM3", "TXTM4", "txtM5", "txtM6"})
            EXPECT_EQ(shownOf(column, 0, 12), all) << column;
        EXPECT_EQ(shownOf("txtStn", 0, 11), all.substr(0, 12));
        return all;
    }

    static inline const std::vector<std::string> Columns = {"txtStn", "txtM1", "txtM2", "TXTM3",
                                                            "TXTM4",  "txtM5", "txtM6"};

private:
    std::string figures(int i, std::size_t from)
    {
        std::string all;
        for (std::size_t c = from; c < Columns.size(); ++c)
            all += (c > from ? "|" : "") + text(Columns[c] + "(" + std::to_string(i) + ")");
        return all;
    }
};
