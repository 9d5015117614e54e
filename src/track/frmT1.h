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

    // What later screens read.
    /// 0 section, 1 Sr SE, 2 jurisdiction, 3 gauge, 4 index. Read by every later screen.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 5};
    controls::TextBox txtNSeg{"txtNSeg"};                                         ///< read by frmT4
    controls::EnterAsTab<QCheckBox> chkSub{"chkSub", "Subarban     Section"};     ///< read by frmT4, frmS2
    controls::ControlArray<controls::TextBox> txtSS{"txtSS", MaxSegments};        ///< read by frmT2, frmT4
    controls::ControlArray<controls::TextBox> txtGmt{"txtGmt", MaxSegments};      ///< read by frmT4
    controls::ControlArray<controls::ComboBox> cboMtc{"cboMtc", MaxSegments};     ///< read by frmT4
    controls::ControlArray<controls::TextBox> txtConc1{"txtConc1", MaxSegments};  ///< read by frmT4
    controls::ControlArray<controls::TextBox> txtConc2{"txtConc2", MaxSegments};  ///< read by frmT4
    controls::ControlArray<controls::TextBox> txtTout{"txtTout", MaxSegments};    ///< read by frmT4
    controls::ControlArray<controls::TextBox> txtTkm{"txtTkm", MaxSegments};      ///< read by frmSummary
    controls::ControlArray<controls::TextBox> txtEqtkm{"txtEqtkm", MaxSegments};  ///< read by frmT2, frmT4
    int SegCount = 0;       ///< segments, 16 at most; read by frmT2, frmT4
    float LwrTotal = 0.0F;  ///< long welded rail [km], a single; read by frmM1

    controls::ControlArray<controls::ComboBox> cboLn{"cboLn", MaxSegments};
    controls::ControlArray<controls::TextBox> txtKmf{"txtKmf", MaxSegments};
    controls::ControlArray<controls::TextBox> txtKmt{"txtKmt", MaxSegments};
    controls::ControlArray<controls::TextBox> txtKm1{"txtKm1", MaxSegments};
    controls::ControlArray<controls::TextBox> txtLWR{"txtLWR", MaxSegments};

    controls::EnterAsTab<QRadioButton> optBG{"optBG", "BG"};
    controls::EnterAsTab<QRadioButton> optMG{"optMG", "MG"};
    controls::EnterAsTab<QRadioButton> optNG{"optNG", "NG"};

    controls::Button cmdCopy{"cmdCopy", "&Data from a  File"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    double SrSeIndexT1 = 0.0;
    QString SectionText;
    QString SrSeNameT1;
    QString DataFilePath;

    /// A segment as computed.
    struct Segment {
        float SegNo = 0.0F;
        QString SegLine;
        double KmFrom = 0.0;    ///< [km]
        double KmTo = 0.0;      ///< [km]
        double KmExtra = 0.0;   ///< [km]
        float LwrKm = 0.0F;     ///< [km]
        double Turnouts = 0.0;  ///< equivalent turnouts
        double TotalKm = 0.0;   ///< [km]
        double EqLength = 0.0;  ///< [km]
    };
    std::array<Segment, MaxSegments + 1> segments;
    std::int16_t ComputeError = 0;
    double SrSeIndexAtCompute = 0.0;

    QWidget* firstBox() override { return &txtT1(0); }
    /// Takes the Sr SE from the start screen anew, as long as the screen is untouched.
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
    void openCount();
    void importCount();
    void forceMethod(int i, const QString& method);
    bool computeRow(int i);

    const frmStart& m_start;
    controls::RowSheet* m_rows = nullptr;
};
