#pragma once
#include <QCheckBox>
#include <array>

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
    /// Element 16, the total, is read by the summary.
    controls::ControlArray<controls::TextBox> txtMan3{"txtMan3", Segments + 1};

    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    /// ManT and ManR of a broad-gauge section, from what Compute has read, and from frmT1's segment count and
    /// suburban box as they stand. Throws RunTimeError (overflow, with the row).
    void Manpower_BG();

    // As computed, segment by segment.
    QString Gauge;
    std::array<QString, Segments + 1> Method;   ///< of maintenance, as taken from frmT1
    std::array<double, Segments + 1> Eqtkm{};   ///< [km]
    std::array<double, Segments + 1> Gmt{};     ///< traffic [gross million tonnes]
    std::array<float, Segments + 1> Factor{};   ///< augmentation 1+A+B+C
    std::array<double, Segments + 1> Conc1{};   ///< on concrete sleepers [km]
    std::array<double, Segments + 1> Conc2{};   ///< equivalent turnouts on them
    std::array<double, Segments + 1> ConcKm{};  ///< both, turned into length [km]
    std::array<float, Segments + 1> NgNorm{};   ///< narrow gauge: 'T' [manday/km]
    std::array<double, Segments + 1> ManT{};    ///< [manday/year]
    std::array<double, Segments + 1> ManR{};    ///< [manday/year]
    std::array<double, Segments + 1> ManTR{};   ///< [manday/year]
    float TotMan = 0.0F;                        ///< [manday/year], a single; every Compute adds to it

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
    track::MainLineSegment segment(int i) const;
    void keep(int i, const track::MainLineMandays& mandays);

    const frmT1& m_t1;
};
