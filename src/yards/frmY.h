#pragma once
#include <array>

#include "screens/flow/data_screen.h"

class frmStart;
class frmT1;

/// The station yards under one Sr SE: lines and turnouts by the way they are packed, and the mandays they take.
/// Shown and printed only; no other screen reads it.
class frmY : public flow::ImportScreen {
public:
    static constexpr int MaxYards = 12;

    frmY(flow::Chain& chain, const frmStart& start, const frmT1& t1);

    /// 1 Sr SE, 3 gauge, 4 index.
    controls::ControlArray<controls::TextBox> txtT1{"txtT1", {1, 3, 4}};
    controls::TextBox txtNYd{"txtNYd"};

    // The yards; element 12 is the column's total.
    controls::ControlArray<controls::TextBox> txtStn{"txtStn", MaxYards};
    controls::ControlArray<controls::TextBox> txtM1{"txtM1", MaxYards + 1};
    controls::ControlArray<controls::TextBox> txtM2{"txtM2", MaxYards + 1};
    controls::ControlArray<controls::TextBox> TXTM3{"TXTM3", MaxYards + 1};
    controls::ControlArray<controls::TextBox> TXTM4{"TXTM4", MaxYards + 1};
    controls::ControlArray<controls::TextBox> txtM5{"txtM5", MaxYards + 1};
    controls::ControlArray<controls::TextBox> txtM6{"txtM6", MaxYards + 1};

    controls::TextBox txtYd4{"txtYd4"};  ///< yard mandays of the Sr SE

    controls::Button cmdYdata{"cmdYdata", "&Data from a file"};
    controls::Button cmdCOMPUTE{"cmdCOMPUTE", "&Compute"};

    int NYd = 0;  ///< yards, 12 at most

    /// A yard as computed: lines in km (1 machine packed, 2 manually packed, 3 non-running), turnouts on them.
    struct Yard {
        double Yd1 = 0.0;
        double Yd2 = 0.0;
        double Yd3 = 0.0;
        double Yd4 = 0.0;
        double Yd5 = 0.0;
        float Yd6 = 0.0F;
    };
    std::array<Yard, MaxYards + 1> yards;
    /// The columns' sums. A Compute adds to them.
    struct Sums {
        double Sum1 = 0.0;
        double Sum2 = 0.0;
        double Sum3 = 0.0;
        double Sum4 = 0.0;
        double Sum5 = 0.0;
        float Sum6 = 0.0F;
    };
    Sums sums;
    float YdMan = 0.0F;  ///< yard mandays of the Sr SE

    QWidget* firstBox() override { return &txtNYd; }

private:
    void txtNYd_Change();
    void cmdYdata_Click();
    void cmdCOMPUTE_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override { return &txtStn(error.row()); }

    void layOut();
    controls::RowSheet* yardRows();
    Yard readRow(int i) const;

    controls::RowSheet* m_rows = nullptr;
};
