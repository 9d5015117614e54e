#pragma once
#include <QCheckBox>
#include <QRadioButton>
#include <array>

#include "screens/controls/named.h"
#include "screens/flow/data_screen.h"

class frmStart;

/// The main-line track under one Sr SE, segment by segment: lengths and the total of long welded rail.
class frmT1 : public flow::ImportScreen {
public:
    static constexpr int MostSegments = 16;

    frmT1(flow::Chain& chain, const frmStart& start);

    /// 0 section, 1 Sr SE, 2 jurisdiction, 3 gauge, 4 index. Read by every later screen.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 5};
    controls::TextBox txtNSeg{"txtNSeg"};  ///< read by frmT4

    // The segments. Read by frmT2 (txtSS, txtEqtkm), frmT4 (all but line, kilometres and welded rail) and the summary
    // (txtTkm).
    controls::ControlArray<controls::TextBox> txtSS{"txtSS", MostSegments};
    controls::ControlArray<controls::ComboBox> cboLn{"cboLn", MostSegments};
    controls::ControlArray<controls::TextBox> txtKmf{"txtKmf", MostSegments};
    controls::ControlArray<controls::TextBox> txtKmt{"txtKmt", MostSegments};
    controls::ControlArray<controls::TextBox> txtKm1{"txtKm1", MostSegments};
    controls::ControlArray<controls::TextBox> txtGmt{"txtGmt", MostSegments};
    controls::ControlArray<controls::TextBox> txtLWR{"txtLWR", MostSegments};
    controls::ControlArray<controls::ComboBox> cboMtc{"cboMtc", MostSegments};
    controls::ControlArray<controls::TextBox> txtConc1{"txtConc1", MostSegments};
    controls::ControlArray<controls::TextBox> txtConc2{"txtConc2", MostSegments};
    controls::ControlArray<controls::TextBox> txtTout{"txtTout", MostSegments};
    controls::ControlArray<controls::TextBox> txtTkm{"txtTkm", MostSegments};
    controls::ControlArray<controls::TextBox> txtEqtkm{"txtEqtkm", MostSegments};

    controls::Named<QRadioButton> optBG;
    controls::Named<QRadioButton> optMG;
    controls::Named<QRadioButton> optNG;
    controls::Named<QCheckBox> chkSub;  ///< read by frmT4 and frmS2

    controls::Button cmdCopy{"cmdCopy", "&Data from a  File"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    int SegCount = 0;       ///< segments, 16 at most; read by frmT2 and frmT4
    float LwrTotal = 0.0F;  ///< long welded rail [km], a single; read by frmM1
    double SrSeIndexT1 = 0.0;
    QString SectionText;
    QString SrSeNameT1;
    QString DataFilePath;

    // As computed, row by row.
    std::array<float, MostSegments + 1> SegNo{};
    std::array<QString, MostSegments + 1> SegLine{};
    std::array<double, MostSegments + 1> KmFrom{};    ///< [km]
    std::array<double, MostSegments + 1> KmTo{};      ///< [km]
    std::array<double, MostSegments + 1> KmExtra{};   ///< [km]
    std::array<float, MostSegments + 1> LwrKm{};      ///< [km]
    std::array<double, MostSegments + 1> Turnouts{};  ///< equivalent turnouts
    std::array<double, MostSegments + 1> TotalKm{};   ///< [km]
    std::array<double, MostSegments + 1> EqLength{};  ///< [km]
    std::int16_t ComputeError = 0;
    double SrSeIndexAtCompute = 0.0;

    QWidget* firstBox() override { return &txtT1(0); }
    /// Takes the Sr SE from the start screen anew, as long as nothing is computed.
    void shownAgain() override;

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
    void showRow(int i, bool shown);
    void packByHand(const QString& gauge);
    void openImport();
    void forceMethod(int i, const QString& method);
    bool computeRow(int i);

    const frmStart& m_start;
};
