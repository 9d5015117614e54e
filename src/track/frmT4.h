#pragma once
#include <QCheckBox>
#include <array>
#include <span>

#include "screens/controls/enter_as_tab.h"
#include "screens/flow/data_screen.h"
#include "track/frmT1.h"
#include "track/main_line_norms.h"

class frmT2;

/// The mandays a year that the main line asks of the Sr SE for the 'T' and the 'R' activities. Nothing is typed here:
/// all that goes into them is taken from the screens before.
class frmT4 : public flow::StepScreen {
public:
    static constexpr int Segments = frmT1::MaxSegments;
    static constexpr int Total = Segments;  ///< the element of txtMan3 that is the Sr SE's total

    frmT4(flow::Chain& chain, const frmT1& t1, const frmT2& t2);

    // What later screens read.
    controls::ControlArray<controls::TextBox> txtMan3{"txtMan3", Segments + 1};  ///< the total is read by frmSummary

    /// 0 section, 1 Sr SE, 2 jurisdiction, 3 gauge, 4 index.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 5};
    controls::TextBox txtNSeg{"txtNSeg"};
    controls::EnterAsTab<QCheckBox> chkSub{"chkSub", "Subarban     Section"};

    controls::ControlArray<controls::TextBox> txtSS{"txtSS", Segments};
    controls::ControlArray<controls::TextBox> txtEqtkm{"txtEqtkm", Segments};
    controls::ControlArray<controls::TextBox> txtGmt{"txtGmt", Segments};
    controls::ControlArray<controls::TextBox> txtTmc{"txtTmc", Segments};
    controls::ControlArray<controls::TextBox> txtConc1{"txtConc1", Segments};
    controls::ControlArray<controls::TextBox> txtConc2{"txtConc2", Segments};
    controls::ControlArray<controls::TextBox> txtTout{"txtTout", Segments};
    controls::ControlArray<controls::TextBox> txtABC{"txtABC", Segments};
    controls::ControlArray<controls::TextBox> txtMan1{"txtMan1", Segments};
    controls::ControlArray<controls::TextBox> txtMan2{"txtMan2", Segments};

    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    /// ManT and ManR of a broad-gauge section, from what Compute has read, and from frmT1's segment count and
    /// suburban box as they stand. Throws RunTimeError (overflow, with the row).
    void Manpower_BG();

    /// A segment as computed.
    struct Segment {
        QString Method;       ///< of maintenance, as taken from frmT1
        double Eqtkm = 0.0;   ///< [km]
        double Gmt = 0.0;     ///< traffic [gross million tonnes]
        float Factor = 0.0F;  ///< augmentation 1+A+B+C
        double Conc1 = 0.0;   ///< on concrete sleepers [km]
        double Conc2 = 0.0;   ///< equivalent turnouts on them
        double ConcKm = 0.0;  ///< both, turned into length [km]
        float NgNorm = 0.0F;  ///< narrow gauge: 'T' [manday/km]
        double ManT = 0.0;    ///< [manday/year]
        double ManR = 0.0;    ///< [manday/year]
        double ManTR = 0.0;   ///< [manday/year]
    };
    std::array<Segment, Segments + 1> segments;
    QString Gauge;
    float TotMan = 0.0F;  ///< [manday/year], a single; every Compute adds to it

    QWidget* firstBox() override { return &cmdCompute; }

private:
    void cmdCompute_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override { return &txtEqtkm(error.row()); }

    void layOut();
    controls::RowSheet* segmentRows();
    void copyRow(int i, const frmT2& t2);
    void readRow(int i);
    void manpowerMg();
    void manpowerNg();
    /// The segments of the Sr SE.
    std::span<Segment> counted() { return {segments.data(), static_cast<std::size_t>(m_t1.SegCount)}; }

    const frmT1& m_t1;
};
