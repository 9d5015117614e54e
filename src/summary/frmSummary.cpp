#include "summary/frmSummary.h"

#include "activities/misc/frmM2.h"
#include "activities/site/frmS2.h"
#include "figures/conversions.h"
#include "figures/numeric_text.h"
#include "figures/picture.h"
#include "screens/flow/chain.h"
#include "screens/flow/printing.h"
#include "start/frmStart.h"
#include "track/frmT1.h"
#include "track/frmT4.h"

using controls::setText;
using figures::numbered;
using figures::picture;

namespace {

constexpr int EstablishmentRow = 2;  // of the last data screen's table

}  // namespace

frmSummary::frmSummary(flow::Chain& owner)
    : DataScreen(owner, "frmSummary", "Manpower Requirement Summary for the Division", {0, 1, 2})
{
    layOut();
    setDefaultButton(&cmdTransfer);
    for (controls::Button* button : {&cmdTransfer, &cmdCompute, &cmdTotal, &cmdPrint, &cmdExit})
        button->setEnabled(false);
    cmdExit.setVisible(false);

    onChange(txtSSN, &frmSummary::txtSSN_Change);
    onPress(cmdTransfer, &frmSummary::cmdTransfer_Click);
    onPress(cmdCompute, &frmSummary::cmdCompute_Click);
    onPress(cmdTotal, &frmSummary::cmdTotal_Click);
    onPress(cmdExit, &frmSummary::cmdExit_Click);

    const auto& start = chain.get<frmStart>();
    txtRly(0).setText(start.txtT1(5).text());
    txtRly(1).setText(start.txtT1(2).text());
    txtSSN.setText(start.txtT1(3).text());
}

QWidget* frmSummary::firstBox()
{
    return cmdTransfer.isEnabled() ? static_cast<QWidget*>(&cmdTransfer) : &txtSSN;
}

int frmSummary::row() const
{
    if (!(SrSEIndex >= 1 && SrSEIndex <= Rows))
        throw figures::RunTimeError(figures::ErrorKind::SubscriptOutOfRange,
                                    "the table has no row for the index " + figures::textOf(SrSEIndex));
    return figures::toInt16(SrSEIndex - 1, "the row");
}

void frmSummary::cmdTransfer_Click()
{
    const flow::SrSe& srSe = chain.srSe();
    SrSEIndex = figures::valueOf(srSe.index.toStdString());
    const int r = row();

    // Pressed before the next Sr SE's screens have been worked, it finds none of them: the row has the Sr SE's name and
    // number, which a new track screen would show, and else blanks.
    const auto* t1 = chain.find<frmT1>();
    const auto* t4 = chain.find<frmT4>();
    const auto* m2 = chain.find<frmM2>();
    const auto* s2 = chain.find<frmS2>();
    txtSSE(r).setText(t1 ? t1->txtT1(1).text() : srSe.name);
    txtSN(r).setText(t1 ? t1->txtT1(4).text() : srSe.index);
    txtTkm(r).setText(t1 ? t1->txtTkm(r).text() : "");  // the segment of the row's own number, not the Sr SE's total
    txtTR(r).setText(t4 ? t4->txtMan3(frmT4::Total).text() : "");
    txtM(r).setText(m2 ? m2->txtMan9.text() : "");
    txtS(r).setText(s2 ? s2->txtMan20.text() : "");

    // If the file has no establishment figures, the row waits for them to be typed.
    m_rowToFill = r;
    if (!txtKey(r).isHidden())
        revealBox(txtKey(r));
    const store::Table noTable("S2", {});  // says what is missing
    const auto establishment = [&](int column) {
        return s2 ? s2->GridS2.TextMatrix(EstablishmentRow, column)
                  : QString::fromStdString(std::string(noTable.text(EstablishmentRow, column)));
    };
    txtKey(r).setText(establishment(18));
    txtLR(r).setText(establishment(19));
    txtSS(r).setText(establishment(20));
    txtSDC(r).setText(establishment(21));
    m_rowToFill = -1;
    cmdCompute.setEnabled(true);
    focusDefault(cmdCompute);
}

void frmSummary::typedByHand(int row)
{
    if (row != m_rowToFill)
        return;
    m_rowToFill = -1;
    cmdCompute.setEnabled(true);
    setDefaultButton(&cmdCompute);
}

void frmSummary::cmdCompute_Click()
{
    const int r = row();
    m_inWork = &txtTR;
    const summary::TableRow computed = summary::withStrength({.RowKm = valueOf(txtTkm(r)),
                                                              .RowTR = valueOf(txtTR(r)),
                                                              .RowM = valueOf(txtM(r)),
                                                              .RowS = valueOf(txtS(r)),
                                                              .RowKey = valueOf(txtKey(r)),
                                                              .RowLR = valueOf(txtKey(r)),
                                                              .RowSS = valueOf(txtSS(r)),
                                                              .RowSDC = valueOf(txtSDC(r))},
                                                             r);
    rows[static_cast<std::size_t>(r)] = computed;
    setText(txtTMan(r), picture(computed.RowTMan, "#####.##"));
    setText(txtCS(r), picture(computed.RowCS, "####"));
    setText(txtEx(r), picture(computed.RowEx, "####"));

    if (SrSEIndex < NumSrSE)
        nextSrSe();
    else if (SrSEIndex == NumSrSE)
        lastSrSe();
}

void frmSummary::nextSrSe()
{
    MsgAnswer = figures::toInt16(
        chain.dialogs().showMessage(*this, "Proceed for Next Subordinate", "Continue for Next Sr SSE on the Division"),
        "the button");
    if (MsgAnswer != flow::Dialogs::Ok || !chain.isLoaded<frmSummary>())  // the program may have ended meanwhile
        return;
    chain.unloadBetween<frmStart, frmSummary>();

    auto& start = chain.get<frmStart>();
    start.txtT1(1).setText("");
    start.txtT1(0).setText("");
    start.txtT1(0).setFocus();
    start.txtT1(4).setText(QString::fromStdString(figures::textOf(SrSEIndex + 1)));
    chain.show<frmStart>(this);
    cmdCompute.setEnabled(false);
    focusDefault(cmdTransfer);  // when this screen comes back
}

void frmSummary::lastSrSe()
{
    MsgAnswer = figures::toInt16(
        chain.dialogs().showMessage(*this, "Calculations for all Sr SSE's are over", "Now Total up the figures"),
        "the button");
    cmdTotal.setEnabled(true);
    focusDefault(cmdTotal);
    cmdCompute.setEnabled(false);
}

summary::TableRow frmSummary::readRow(int row) const
{
    return {.RowKm = valueOf(txtTkm(row)),
            .RowTR = valueOf(txtTR(row)),
            .RowM = valueOf(txtM(row)),
            .RowS = valueOf(txtS(row)),
            .RowTMan = valueOf(txtTMan(row)),
            .RowCS = figures::toSingle(valueOf(txtCS(row)), numbered("the calculated strength at row", row), row),
            .RowKey = valueOf(txtKey(row)),
            .RowLR = valueOf(txtLR(row)),
            .RowSS = valueOf(txtSS(row)),
            .RowSDC = valueOf(txtSDC(row)),
            .RowEx = valueOf(txtEx(row))};
}

void frmSummary::cmdTotal_Click()
{
    const auto count = static_cast<std::size_t>(figures::wholeRows(NumSrSE));
    m_inWork = &txtCS;
    for (std::size_t row = 0; row < count; ++row)
        rows[row] = readRow(static_cast<int>(row));
    m_inWork = &txtSDC;
    totals = summary::addRows(totals, {rows.data(), count});

    setText(txtTkm(Total), picture(totals.TotKm, "#####.##"));
    setText(txtTR(Total), picture(totals.TotTR, "#####.##"));
    setText(txtM(Total), picture(totals.TotM, "#####.##"));
    setText(txtS(Total), picture(totals.TotS, "#####.##"));
    setText(txtTMan(Total), picture(totals.TotTMan, "#####.##"));
    setText(txtCS(Total), picture(totals.TotCS, "#####.##"));
    setText(txtKey(Total), picture(totals.TotKey, "#####"));
    setText(txtLR(Total), picture(totals.TotLR, "#####"));
    setText(txtSS(Total), picture(totals.TotSS, "#####"));
    setText(txtSDC(Total), picture(totals.TotSDC, "#####"));
    setText(txtEx(Total), picture(totals.TotEx, "#####"));

    cmdPrint.setEnabled(true);
    focusDefault(cmdPrint);
    cmdExit.setEnabled(true);
    cmdExit.setVisible(true);
    cmdTotal.setVisible(false);
}

// Of the whole division: no Sr SE and no data file.
flow::SheetFacts frmSummary::sheetFacts() const
{
    flow::SheetFacts facts;
    facts.name = flow::sheetName("Division " + txtRly(1).text(), "Manpower Requirement Summary");
    facts.railway = txtRly(0).text();
    facts.division = txtRly(1).text();
    return facts;
}

void frmSummary::onPrinted()
{
    DataScreen::onPrinted();
    focusDefault(cmdExit);
}

void frmSummary::cmdExit_Click()
{
    if (mayLeave())
        chain.end();
}
