// How frmSummary looks: its boxes, and the table's rows.
#include <algorithm>

#include "figures/conversions.h"
#include "figures/numeric_text.h"
#include "summary/frmSummary.h"

using controls::Caption;
using controls::RowSheet;

namespace {

// Where the total row stands on the form, in twips: 15 of them are a pixel at 96 dots per inch.
constexpr double FirstRowTop = 2160;
constexpr double RowPitch = 360;

}  // namespace

void frmSummary::layOut()
{
    QHBoxLayout& where = form.headerLine();
    controls::addField(where, "Railway-", txtRly(0), 30);
    controls::addField(where, "Division-", txtRly(1), 30);
    addDate(where);

    QHBoxLayout& who = form.headerLine();
    controls::addField(who, "No.of Sr S.E's on the Division-", txtSSN, 4);
    txtSSN.setLimit(MaxSrSes);
    who.addStretch();
    auto* department = new Caption("Engineering Department");
    department->setObjectName("LblRailway");
    who.addWidget(department);
    txtRly(0).setLocked(true);
    txtRly(1).setLocked(true);

    m_table = table();
    form.addRows(m_table);
    for (controls::Button* comesOrGoes : {&cmdTotal, &cmdExit}) {  // no other button moves under the user's hand
        QSizePolicy policy = comesOrGoes->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        comesOrGoes->setSizePolicy(policy);
    }
    form.buttons({&cmdTransfer, &cmdCompute, &cmdTotal, &cmdPrint, &cmdExit});
    cmdTransfer.setToolTip(flow::LockTip);
    cmdPrint.setToolTip(flow::LockTip);
}

// All but the totals is open for typing: Grand Total reads what stands in the table.
RowSheet* frmSummary::table()
{
    auto* sheet = new RowSheet("Sr SE", MaxSrSes);
    sheet->withTotalRow();
    sheet->heading("   S.No     (Index)").entry(txtSN, 5);
    sheet->heading("    Sr       S.E.").textEntry(txtSSE, 22);
    sheet->heading("    Total    Km").entry(txtTkm, 8);
    sheet->heading("  Mandays          for            ('T'+ 'R')  ").entry(txtTR, 10);
    sheet->heading("  Mandays            for                 ('M')  ").entry(txtM, 9);
    sheet->heading("  Mandays            for                  ('S')  ").entry(txtS, 9);
    sheet->heading("   Total             Mandays       (T+R+M+S)").entry(txtTMan, 10);
    sheet->heading("  No of        Mates       Keymen").entry(txtKey, 7);
    sheet->heading("Leave      Res-       erve").entry(txtLR, 6);
    sheet->heading(" Calcu      lated Strength").entry(txtCS, 8);
    sheet->heading("Sanctd. Strength").entry(txtSS, 8);
    sheet->heading("  Sanctd            Decasua-    - lized  posts").entry(txtSDC, 8);
    sheet->heading("Excess(+) Shortage(-)").entry(txtEx, 8);
    sheet->finish();
    sheet->showRows(1);
    txtSN(Total).setText("Total");
    for (int row = 0; row < Rows; ++row) {
        connect(&txtEx(row), &QLineEdit::textChanged, this, [this, row] { markShortage(row); });
        for (Column* establishment : {&txtKey, &txtLR, &txtSS, &txtSDC})
            connect(&(*establishment)(row), &QLineEdit::textEdited, this, [this, row] { typedByHand(row); });
    }
    return sheet;
}

// A shortage is told from an excess by its minus sign, by red, and by bold for colour-blind users.
void frmSummary::markShortage(int row)
{
    controls::TextBox& box = txtEx(row);
    const bool shortage = figures::countUpTo(0, box.text().toStdString()) < 0;
    box.setReadableRed(shortage);
    QFont font = box.font();
    font.setBold(shortage);
    box.setFont(font);
}

void frmSummary::txtSSN_Change()
{
    NumSrSE = figures::countUpTo(MaxSrSes, txtSSN.text().toStdString());
    // Rows once shown are not hidden again.
    m_table->showRows(std::max(m_table->shownRows(), figures::wholeRows(NumSrSE)));
    cmdTransfer.setEnabled(true);

    for (QWidget* box : m_table->totalBoxes())
        box->setProperty("Top", FirstRowTop + RowPitch * NumSrSE);
    m_table->setTotalPosition(std::max(1.0, NumSrSE));  // the first row is always there
    m_table->showTotal();
}
