#pragma once
#include "screens/controls/enter_as_tab.h"
#include "screens/flow/screen.h"

class QLabel;

/// The start screen: the facts of the division, the Sr SE at work and that Sr SE's data file. It stays loaded for the
/// whole run; its boxes are what every later screen reads.
class frmStart : public flow::Screen {
public:
    static constexpr int MaxSrSes = 15;

    explicit frmStart(flow::Chain& chain);

    /// 0 Sr SE, 1 path of the data file, 2 division, 3 number of Sr SEs, 4 index, 5 railway.
    /// Read by the track screen (0, 1, 4), by every screen with a table (1) and by the summary (2 to 5).
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 6};
    controls::Button cmdFile{"cmdFile", "Browse"};
    controls::Button cmdProceed{"cmdProceed", "&Proceed"};

    QString SrSeName;            ///< as it stood when Proceed was pressed
    double SrSeIndex = 0.0;      ///< as it stood when Proceed was pressed
    std::int16_t SrSeCount = 0;  ///< as it stands, 15 at most

    bool holdsFigures() const override;
    QWidget* firstBox() override { return &txtT1(5); }

private:
    void cmdFile_Click();
    void cmdProceed_Click();
    void txtT1_Change();

    void showDataFile();
    void layOut();
    QWidget* titles();

    QString m_folder;  // where the last data file of this run lay
};
