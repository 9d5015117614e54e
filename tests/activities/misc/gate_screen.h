#pragma once
#include <string>
#include <vector>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "start/frmStart.h"
#include "support/screen_test.h"

/// A test on the screen of M.5 to M.8.
class GateScreen : public ScreenTest {
protected:
    /// The screen behind a first one that has come to so many mandays.
    frmM2& open(float first = 0.0F)
    {
        chain.get<frmM1>().TotalMandays = first;
        return on<frmM2>();
    }

    /// Posts, crossings in one, two, three shifts, keyman beats, gangs, stores; "" leaves a box as it is.
    void typeFigures(const std::vector<std::string>& figures)
    {
        for (std::size_t i = 0; i < figures.size(); ++i)
            if (!figures[i].empty())
                type(Entered[i], figures[i]);
    }

    std::string figures()
    {
        std::string all = text(Entered.front());
        for (std::size_t i = 1; i < Entered.size(); ++i)
            all += "|" + text(Entered[i]);
        return all;
    }

    /// M.5 to M.8 and the total.
    std::string results()
    {
        return text("txtman5") + "|" + text("txtMan6") + "|" + text("txtMan7") + "|" + text("txtMan8") + "|" +
               text("txtMan9");
    }

    /// Nine grid rows, a to i, of five columns, filled with texts that tell their place.
    static std::vector<std::vector<std::string>> places()
    {
        std::vector<std::vector<std::string>> records;
        for (char row = 'a'; row <= 'i'; ++row) {
            records.emplace_back();
            for (int column = 1; column <= 5; ++column)
                records.back().push_back(row + std::to_string(column));
        }
        return records;
    }

    static inline const std::vector<std::string> Entered = {"txtNLC",    "txtLCN(0)", "txtLCN(1)", "txtLCN(2)",
                                                            "txtKbeats", "txtNG",     "txtSL"};
};
