#pragma once
#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT1.h"

/// frmT1 as Proceed shows it.
class TrackScreen : public ScreenTest {
protected:
    static constexpr const char* Title = "Entering Track Data";
    static constexpr const char* RowArrays[] = {"txtSS",   "cboLn",  "txtKmf",  "txtKmt",   "txtKm1",
                                                "txtGmt",  "txtLWR", "cboMtc",  "txtConc1", "txtConc2",
                                                "txtTout", "txtTkm", "txtEqtkm"};

    /// With the data file at `path`.
    frmT1& open(const std::string& path = "")
    {
        chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(path));
        return on<frmT1>();
    }

    /// Typed rows, as many as the count says.
    frmT1& openRows(int count)
    {
        frmT1& t1 = open();
        t1.txtNSeg.setText(QString::number(count));
        settle();
        return t1;
    }

    void limits(int i, const std::string& from, const std::string& to)
    {
        const std::string row = "(" + std::to_string(i) + ")";
        type("txtKmf" + row, from);
        type("txtKmt" + row, to);
    }
};
