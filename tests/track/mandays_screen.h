#pragma once
#include <string>
#include <vector>

#include "support/screen_test.h"
#include "track/frmT2.h"
#include "track/frmT4.h"

/// A segment as the screens before show it.
struct Segment {
    const char* eqLength;
    const char* gmt = "";
    const char* factor = "1.";
    const char* method = "Machine Packed";
    const char* conc1 = "";
    const char* conc2 = "";
};

/// A test on the screen of the 'T' and 'R' mandays.
class MandaysScreen : public ScreenTest {
protected:
    frmT4& open(const std::string& gauge, const std::vector<Segment>& segments, bool suburban = false)
    {
        auto& t1 = chain.get<frmT1>();
        t1.txtT1(3).setText(QString::fromStdString(gauge));
        t1.chkSub.setChecked(suburban);
        t1.txtNSeg.setText(QString::number(segments.size()));
        for (int i = 0; const Segment& segment : segments) {
            t1.txtEqtkm(i).setText(segment.eqLength);
            t1.txtGmt(i).setText(segment.gmt);
            t1.cboMtc(i).setText(segment.method);
            t1.txtConc1(i).setText(segment.conc1);
            t1.txtConc2(i).setText(segment.conc2);
            ++i;
        }
        auto& t2 = chain.get<frmT2>();
        for (int i = 0; const Segment& segment : segments)
            t2.txtABC(i++).setText(segment.factor);
        return on<frmT4>();
    }

    /// 'T', 'R' and 'T'+'R' of row i.
    std::string mandays(int i)
    {
        const std::string row = "(" + std::to_string(i) + ")";
        return text("txtMan1" + row) + "|" + text("txtMan2" + row) + "|" + text("txtMan3" + row);
    }
};
