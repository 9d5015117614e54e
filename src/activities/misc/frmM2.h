#pragma once
#include "screens/controls/section.h"
#include "screens/flow/data_screen.h"

class frmM1;
class frmStart;
class frmT1;

/// The miscellaneous activities M.5 to M.8 (gate keeping, rest for keymen, waterman, store watchman) and the total of
/// all of 'M'.
class frmM2 : public flow::ImportScreen {
public:
    static constexpr int ShiftKinds = 3;  ///< crossings are manned in 1, 2 or 3 shifts

    frmM2(flow::Chain& chain, const frmStart& start, const frmT1& t1, const frmM1& m1);

    // What later screens read.
    controls::TextBox txtMan9{"txtMan9"};  ///< all of 'M'; read by frmSummary

    /// 0 section, 1 Sr SE, 2 jurisdiction.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 3};

    // M.5: posts sanctioned; shifts a day, and the crossings manned in as many.
    controls::TextBox txtNLC{"txtNLC"};
    controls::ControlArray<controls::TextBox> txtLCS{"txtLCS", ShiftKinds};
    controls::ControlArray<controls::TextBox> txtLCN{"txtLCN", ShiftKinds};
    controls::TextBox txtman5{"txtman5"};

    controls::TextBox txtKbeats{"txtKbeats"};
    controls::TextBox txtMan6{"txtMan6"};

    controls::TextBox txtNG{"txtNG"};
    controls::TextBox txtMan7{"txtMan7"};

    controls::TextBox txtSL{"txtSL"};
    controls::TextBox txtMan8{"txtMan8"};

    controls::Button cmdData{"cmdData", "&Data from File"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    float TotalMandays = 0.0F;  ///< all of 'M', a single

    QWidget* firstBox() override { return &txtNLC; }

private:
    void cmdData_Click();
    void cmdCompute_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override { return &txtLCN(error.row()); }

    void layOut(const frmT1& t1);
    controls::Section* gateKeeping();
    double storeLocations();

    const frmM1& m_m1;
};
