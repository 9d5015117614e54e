#pragma once
#include <array>

#include "screens/flow/data_screen.h"
#include "start/frmStart.h"
#include "summary/strength.h"

/// The division: one row for each Sr SE, its strength against the sanctioned posts, and the totals. The last screen of
/// the chain; it stays while the others come and go with each Sr SE, so it asks the chain for them when it reads them.
class frmSummary : public flow::DataScreen {
public:
    static constexpr int MaxSrSes = frmStart::MaxSrSes;
    static constexpr int Total = MaxSrSes;  ///< the row of totals
    static constexpr int Rows = MaxSrSes + 1;

    explicit frmSummary(flow::Chain& chain);

    /// Number of Sr SEs. txtRly: 0 railway, 1 division, 2 date.
    controls::TextBox txtSSN{"txtSSN"};

    // The table. The total row's position is kept in the property "Top" of its boxes, in twips.
    controls::ControlArray<controls::TextBox> txtSN{"txtSN", Rows};      ///< index
    controls::ControlArray<controls::TextBox> txtSSE{"txtSSE", Rows};    ///< Sr SE
    controls::ControlArray<controls::TextBox> txtTkm{"txtTkm", Rows};    ///< total km
    controls::ControlArray<controls::TextBox> txtTR{"txtTR", Rows};      ///< mandays for 'T'+'R'
    controls::ControlArray<controls::TextBox> txtM{"txtM", Rows};        ///< mandays for 'M'
    controls::ControlArray<controls::TextBox> txtS{"txtS", Rows};        ///< mandays for 'S'
    controls::ControlArray<controls::TextBox> txtTMan{"txtTMan", Rows};  ///< all mandays
    controls::ControlArray<controls::TextBox> txtKey{"txtKey", Rows};    ///< mates and keymen
    controls::ControlArray<controls::TextBox> txtLR{"txtLR", Rows};      ///< leave reserve
    controls::ControlArray<controls::TextBox> txtCS{"txtCS", Rows};      ///< calculated strength
    controls::ControlArray<controls::TextBox> txtSS{"txtSS", Rows};      ///< sanctioned strength
    controls::ControlArray<controls::TextBox> txtSDC{"txtSDC", Rows};    ///< sanctioned decasualised posts
    controls::ControlArray<controls::TextBox> txtEx{"txtEx", Rows};      ///< excess, or with a minus sign shortage

    controls::Button cmdTransfer{"cmdTransfer", "&Transfer"};
    controls::Button cmdCompute{"cmdCompute", "&Compute"};
    controls::Button cmdTotal{"cmdTotal", "&Grand Total"};
    controls::Button cmdExit{"cmdExit", "&Exit"};

    double NumSrSE = 0.0;        ///< Sr SEs in the table, 15 at most
    double SrSEIndex = 0.0;      ///< of the Sr SE transferred last; its row is the index - 1
    std::int16_t MsgAnswer = 0;  ///< the answer to Compute's last message

    /// As Compute or Grand Total has read or worked them out. For RowLR Compute takes the mates and keymen once more,
    /// Grand Total the leave reserve.
    std::array<summary::TableRow, Rows> rows;
    summary::TableTotals totals;  ///< for as long as the screen stays: every Grand Total adds to them

    QWidget* firstBox() override;

protected:
    flow::SheetFacts sheetFacts() const override;
    void onPrinted() override;

private:
    void txtSSN_Change();
    void cmdTransfer_Click();
    void cmdCompute_Click();
    void cmdTotal_Click();
    void cmdExit_Click();

    QWidget* boxOf(const figures::RunTimeError& error) override { return &(*m_inWork)(error.row()); }

    using Column = controls::ControlArray<controls::TextBox>;

    void layOut();
    controls::RowSheet* table();
    void markShortage(int row);
    void typedByHand(int row);
    int row() const;
    void nextSrSe();
    void lastSrSe();
    summary::TableRow readRow(int row) const;

    controls::RowSheet* m_table = nullptr;
    Column* m_inWork = &txtTR;  // the column in which a failing computation names its row
    int m_rowToFill = -1;       // the row whose Transfer found no establishment figures
};
