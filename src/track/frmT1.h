#pragma once
#include <QCheckBox>
#include <QRadioButton>
#include <array>

#include "screens/controls/enter_as_tab.h"
#include "screens/flow/data_screen.h"

class frmStart;

/// The main-line track under one Sr SE, segment by segment: lengths and the total of long welded rail.
class frmT1 : public flow::ImportScreen {
public:
    static constexpr int MaxSegments = 16;

    frmT1(flow::Chain& chain, const frmStart& start);

    /// 0 section, 1 Sr SE, 2 jurisdiction, 3 gauge, 4 index. Read by every later screen.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 5};
    controls::TextBox txtNSeg{"txtNSeg"};  ///< read by frmT4

    // The segments. Read by frmT2 (txtSS, txtEqtkm), frmT4 (all but line, kilometres and welded rail) and the summary
    // (txtTkm).
    controls::ControlArray<controls::TextBox> txtSS{"txtSS", MaxSegments};
    controls::ControlArray<controls::ComboBox> cboLn{"cboLn", MaxSegments};
    controls::ControlArray<controls::TextBox> txtKmf{"txtKmf", MaxSegments};
    controls::ControlArray<controls::TextBox> txtKmt{"txtKmt", MaxSegments};
    controls::ControlArray<controls::TextBox> txtKm1{"txtKm1", MaxSegments};
    controls::ControlArray<controls::TextBox> txtGmt{"txtGmt", MaxSegments};
    controls::ControlArray<controls::TextBox> txtLWR{"txtLWR", MaxSegments};
    controls::ControlArray<controls::ComboBox> cboMtc{"cboMtc", MaxSegments};
    controls::ControlArray<controls::TextBox> txtConc1{"txtConc1", MaxSegments};
    controls::ControlArray<controls::TextBox> txtConc2{"txtConc2", MaxSegments};
    controls::ControlArray<controls::TextBox> txtTout{"txtTout", MaxSegments};
    controls::ControlArray<controls::TextBox> txtTkm{"txtTkm", MaxSegments};
    controls::ControlArray<controls::TextBox> txtEqtkm{"txtEqtkm", MaxSegments};

    controls::EnterAsTab<QRadioButton> optBG;
    controls::EnterAsTab<QRadioButton> optMG;
    controls::EnterAsTab<QRadioButton> optNG;
    controls::EnterAsTab<QCheckBox> chkSub;  ///< read by frmT4 and frmS2

    controls::Button cmdCopy{"cmdCopy", "&Data from a  File"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    int SegCount = 0;       ///< segments, 16 at most; read by frmT2 and frmT4
    float LwrTotal = 0.0F;  ///< long welded rail [km], a single; read by frmM1
    double SrSeIndexT1 = 0.0;
    QString SectionText;
    QString SrSeNameT1;
    QString DataFilePath;

    // As computed, row by row.
    std::array<float, MaxSegments + 1> SegNo{};
    std::array<QString, MaxSegments + 1> SegLine{};
    std::array<double, MaxSegments + 1> KmFrom{};    ///< [km]
    std::array<double, MaxSegments + 1> KmTo{};      ///< [km]
    std::array<double, MaxSegments + 1> KmExtra{};   ///< [km]
    std::array<float, MaxSegments + 1> LwrKm{};      ///< [km]
    std::array<double, MaxSegments + 1> Turnouts{};  ///< equivalent turnouts
    std::array<double, MaxSegments + 1> TotalKm{};   ///< [km]
    std::array<double, MaxSegments + 1> EqLength{};  ///< [km]
    std::int16_t ComputeError = 0;
    double SrSeIndexAtCompute = 0.0;

    QWidget* firstBox() override { return &txtT1(0); }
    /// Takes the Sr SE from the start screen anew, as long as nothing is computed.
    void onShownAgain() override;

private:
    void txtNSeg_Change();
    void optBG_Click();
    void optMG_Click();
    void optNG_Click();
    void chkSub_Click();
    void cmdCopy_Click();
    void cmdCompute_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override;

    void takeSrSe();
    void layOut();
    controls::RowSheet* segmentRows();
    void packByHand(const QString& gauge);
    void openImport();
    void forceMethod(int i, const QString& method);
    bool computeRow(int i);

    const frmStart& m_start;
    controls::RowSheet* m_rows = nullptr;
};
