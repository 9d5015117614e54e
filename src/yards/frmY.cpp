#include "yards/frmY.h"

#include <vector>

#include "figures/conversions.h"
#include "figures/picture.h"
#include "start/frmStart.h"
#include "track/frmT1.h"
#include "yards/yard_norms.h"

using controls::Caption;
using controls::RowSheet;
using controls::setText;
using figures::picture;

namespace {
constexpr int ColumnWidth = 12;  // alike for all, so that the cells of the headings stand over their columns
}

frmY::frmY(flow::Chain& owner, const frmStart& start, const frmT1& t1)
    : ImportScreen(owner,
                   {.form = "frmY",
                    .caption = "Entering Yard Data",
                    .table = "YD",
                    .source = "Yard Data",
                    .grid = "YdGrid",
                    .records = MaxYards,
                    .columns = 9},
                   cmdYdata, cmdCOMPUTE)
{
    layOut();
    addSource(start.txtT1(1).text());
    for (const int i : {1, 3, 4})
        txtT1(i).setText(t1.txtT1(i).text());

    onChange(txtNYd, &frmY::txtNYd_Change);
    onPress(cmdYdata, &frmY::cmdYdata_Click);
    onPress(cmdCOMPUTE, &frmY::cmdCOMPUTE_Click);
}

void frmY::layOut()
{
    QHBoxLayout& what = form.headerLine();
    what.addWidget(new Caption("Running and Non Running Yard Lines and Turnouts on the section of Sr S.E...-"));
    addDate(what);

    QHBoxLayout& who = form.headerLine();
    controls::addField(who, "Sr S.E. with index-", txtT1(1), 30);
    controls::addBox(who, txtT1(4), 4, "Sr S.E. index");
    controls::addField(who, "Gauge", txtT1(3), 5);
    who.addStretch();
    controls::addField(who, "No of Station Yards", txtNYd, 5);
    for (const int taken : {1, 3, 4})
        txtT1(taken).setLocked(true);
    txtNYd.setToolTip("Data for a maximum of 12 yards can be given");
    txtNYd.setLimit(MaxYards);

    m_rows = yardRows();
    form.addRows(m_rows);
    QHBoxLayout& result = form.lineBelow();
    result.addStretch();
    controls::addField(result, "  Total Numer of Mandays for Yard      maintenance", txtYd4, 12);
    txtYd4.setNumeric();
    txtYd4.setLocked(true);
    cmdCOMPUTE.setToolTip(flow::LockTip);
}

RowSheet* frmY::yardRows()
{
    auto* rows = new RowSheet("yard", MaxYards);
    rows->withTotalRow("Total");
    // "Station" is drawn with the lower heading, right over the names.
    rows->heading(" Station         Length of Lines(km)                         No of Turnouts", 7,
                  {{"", "", "Length of Lines(km)", "", "", "No of Turnouts", ""}});
    rows->heading("    Machine          Manually        Manually             Machine      Manually        Manually    "
                  "       Packed            Packed           Packed              Packed        Packed         Packed   "
                  "             RYL                 RYL               NRYL               on RYL         on RYL        "
                  "on NYRL",
                  7,
                  {{"", "Machine", "Manually", "Manually", "Machine", "Manually", "Manually"},
                   {"", "Packed", "Packed", "Packed", "Packed", "Packed", "Packed"},
                   {"Station", "RYL", "RYL", "NRYL", "on RYL", "on RYL", "on NYRL"}})
        .textEntry(txtStn, ColumnWidth)
        .entry(txtM1, ColumnWidth, "length")
        .entry(txtM2, ColumnWidth, "length")
        .entry(TXTM3, ColumnWidth, "length")
        .entry(TXTM4, ColumnWidth, "turnouts")
        .entry(txtM5, ColumnWidth, "turnouts")
        .entry(txtM6, ColumnWidth, "turnouts");
    rows->finish();
    return rows;
}

void frmY::txtNYd_Change()
{
    NYd = countOf(txtNYd, MaxYards);
    m_rows->showRows(NYd);
    m_rows->showTotal();
}

void frmY::cmdYdata_Click()
{
    txtNYd.setText(cell(1, 2));  // its change sets NYd and shows the rows
    for (int i = 0; i < NYd; ++i) {
        txtStn(i).setText(cell(i + 1, 3));
        txtM1(i).setText(cell(i + 1, 4));
        txtM2(i).setText(cell(i + 1, 5));
        TXTM3(i).setText(cell(i + 1, 6));
        TXTM4(i).setText(cell(i + 1, 7));
        txtM5(i).setText(cell(i + 1, 8));
        txtM6(i).setText(cell(i + 1, 9));
    }
    finishImport();
}

frmY::Yard frmY::readRow(int i) const
{
    return {.Yd1 = valueOf(txtM1(i)),
            .Yd2 = valueOf(txtM2(i)),
            .Yd3 = valueOf(TXTM3(i)),
            .Yd4 = valueOf(TXTM4(i)),
            .Yd5 = valueOf(txtM5(i)),
            .Yd6 = figures::toSingle(valueOf(txtM6(i)),
                                     figures::numbered("the number of turnouts on non-running lines of yard", i), i)};
}

void frmY::cmdCOMPUTE_Click()
{
    std::vector<yards::YardLines> entered;
    for (int i = 0; i < NYd; ++i) {
        const Yard& yard = yards[static_cast<std::size_t>(i)] = readRow(i);
        entered.push_back({yard.Yd1, yard.Yd2, yard.Yd3, yard.Yd4, yard.Yd5, yard.Yd6});
    }

    // The sums are not cleared: yards imported after a Compute are added to those before.
    const yards::YardLines lines =
        yards::addYards({sums.Sum1, sums.Sum2, sums.Sum3, sums.Sum4, sums.Sum5, sums.Sum6}, entered);
    YdMan = yards::yardMandays(lines, txtT1(3).text().toStdString());
    sums = {lines.machineKm,       lines.manualKm,       lines.nonRunningKm,
            lines.machineTurnouts, lines.manualTurnouts, lines.nonRunningTurnouts};

    setText(txtM1(MaxYards), picture(sums.Sum1, "####.##"));
    setText(txtM2(MaxYards), picture(sums.Sum2, "####.##"));
    setText(TXTM3(MaxYards), picture(sums.Sum3, "####.##"));
    setText(TXTM4(MaxYards), picture(sums.Sum4, "####.##"));
    setText(txtM5(MaxYards), picture(sums.Sum5, "####.##"));
    setText(txtM6(MaxYards), picture(sums.Sum6, "####.##"));
    m_rows->showTotal();  // also when no count was ever given
    setText(txtYd4, picture(YdMan, "#####.##"));
    txtNYd.setLocked(true);
    finishCompute();
}
