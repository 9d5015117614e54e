#pragma once
#include <array>

#include "screens/flow/data_screen.h"
#include "track/augmentation.h"
#include "track/frmT1.h"

class frmStart;

/// The ground under each segment of the main line: bad formation, curves and rainfall, and the factor by which they
/// augment the segment's 'T' norm.
class frmT2 : public flow::ImportScreen {
public:
    /// Elements 0 to 15 are the segments; element 16 is never shown.
    static constexpr int Elements = frmT1::MaxSegments + 1;

    frmT2(flow::Chain& chain, const frmStart& start, const frmT1& t1);

    // What later screens read.
    /// The factor, six decimals; its text is read by frmT4.
    controls::ControlArray<controls::TextBox> txtABC{"txtABC", Elements};

    /// 1 Sr SE, 4 index.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", {1, 4}};

    controls::ControlArray<controls::TextBox> txtSS{"txtSS", Elements};
    controls::ControlArray<controls::TextBox> txtEqtkm{"txtEqtkm", Elements};
    controls::ControlArray<controls::TextBox> txtSoil1{"txtSoil1", Elements};
    controls::ControlArray<controls::TextBox> txtTout1{"txtTout1", Elements};
    controls::ControlArray<controls::TextBox> txtSoil2{"txtSoil2", Elements};
    controls::ControlArray<controls::TextBox> txtTout2{"txtTout2", Elements};
    controls::ControlArray<controls::TextBox> txtCur1{"txtCur1", Elements};
    controls::ControlArray<controls::TextBox> txtcur2{"txtcur2", Elements};
    controls::ControlArray<controls::TextBox> txtCur3{"txtCur3", Elements};
    controls::ControlArray<controls::TextBox> txtRain{"txtRain", Elements};
    controls::ControlArray<controls::TextBox> txtA{"txtA", Elements};
    controls::ControlArray<controls::TextBox> txtB{"txtB", Elements};
    controls::ControlArray<controls::TextBox> txtC{"txtC", Elements};

    controls::Button cmdCopy{"cmdCopy", "&Data from a File"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    /// A segment's ground as computed.
    struct Ground {
        double Eqtkm = 0.0;  ///< [km]
        double Soil1 = 0.0;  ///< shrinkable [km]
        float Tout1 = 0.0F;  ///< turnouts on it
        double Soil2 = 0.0;  ///< unstable [km]
        float Tout2 = 0.0F;  ///< turnouts on it
        double Cur1 = 0.0;   ///< column "1-2 Deg" [km]
        double Cur2 = 0.0;   ///< column ">2 Deg"
        float Cur3 = 0.0F;   ///< column "Eq Deg" [km]
        float Rain = 0.0F;   ///< [cm a year]
        double FacA = 0.0;
        double FacB = 0.0;
        double FacC = 0.0;
    };
    std::array<Ground, Elements> grounds;

    QWidget* firstBox() override { return &txtSoil1(0); }

private:
    void cmdCopy_Click();
    void cmdCompute_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override;

    void layOut();
    controls::RowSheet* segmentRows();
    Ground readRow(int i) const;

    const frmT1& m_t1;
};
