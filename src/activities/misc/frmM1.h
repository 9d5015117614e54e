#pragma once
#include "screens/controls/row_sheet.h"
#include "screens/controls/section.h"
#include "screens/flow/data_screen.h"

class frmStart;
class frmT1;

/// The miscellaneous activities M.1 to M.4: patrolling in the monsoon, in hot and in cold weather, and watching
/// vulnerable locations.
class frmM1 : public flow::ImportScreen {
public:
    static constexpr int MaxRows = 12;  ///< beat lengths, and vulnerable locations

    frmM1(flow::Chain& chain, const frmStart& start, const frmT1& t1);

    // What later screens read.
    float TotalMandays = 0.0F;  ///< M.1 to M.4, a single; read by frmM2

    /// 0 section, 1 Sr SE, 2 jurisdiction.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", 3};

    // M.1, a row for each beat length: its number, days, beats, shifts, men per shift.
    controls::TextBox txtNB{"txtNB"};
    controls::ControlArray<controls::TextBox> txtTB{"txtTB", MaxRows};
    controls::ControlArray<controls::TextBox> txtND{"txtND", MaxRows};
    controls::ControlArray<controls::TextBox> txtBL{"txtBL", MaxRows};
    controls::ControlArray<controls::TextBox> txtNS{"txtNS", MaxRows};
    controls::ControlArray<controls::TextBox> txtNM{"txtNM", MaxRows};
    controls::TextBox txtman1{"txtman1"};

    // M.2 and M.3: long welded rail on single line basis [km], to look at; Compute reads frmT1's own figure.
    controls::TextBox txtHLWR{"txtHLWR"};
    controls::TextBox txtMan2{"txtMan2"};
    controls::TextBox txtCLWR{"txtCLWR"};
    controls::TextBox txtMan3{"txtMan3"};

    // M.4, a row for each location: its number, days, shifts.
    controls::TextBox txtVL{"txtVL"};
    controls::ControlArray<controls::TextBox> txtNVL{"txtNVL", MaxRows};
    controls::ControlArray<controls::TextBox> txtDV{"txtDV", MaxRows};
    controls::ControlArray<controls::TextBox> txtDS{"txtDS", MaxRows};
    controls::TextBox txtMan4{"txtMan4"};

    controls::Button cmdData{"cmdData", "&Data from File"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};

    QWidget* firstBox() override { return &txtNB; }

private:
    void txtNB_Change();
    void txtVL_Change();
    void cmdData_Click();
    void cmdCompute_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override { return &(*m_atWork)(error.row()); }

    void layOut();
    controls::Section* monsoonPatrolling();
    controls::Section* vulnerableLocations();

    const frmT1& m_t1;
    controls::RowSheet* m_beatRows = nullptr;
    controls::RowSheet* m_locationRows = nullptr;
    int m_beatLengths = 0;
    int m_locations = 0;
    double m_monsoonMandays = 0.0;                                 // M.1; a Compute adds to it
    float m_locationMandays = 0.0F;                                // M.4; a Compute adds to it
    controls::ControlArray<controls::TextBox>* m_atWork = &txtNM;  // the rows that Compute is at
};
