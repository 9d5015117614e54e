#include "track/frmT2.h"

#include <vector>

#include "figures/conversions.h"
#include "figures/picture.h"
#include "start/frmStart.h"

using controls::Caption;
using controls::RowSheet;
using controls::setText;
using figures::numbered;
using figures::picture;
using figures::toSingle;

frmT2::frmT2(flow::Chain& owner, const frmStart& start, const frmT1& t1)
    : ImportScreen(owner,
                   {.form = "frmT2",
                    .caption = "Entering Data on Formation , Rainfall and Curves",
                    .table = "CS",
                    .source = "Soil Data",
                    .grid = "SoilGrid",
                    .records = frmT1::MaxSegments,
                    .columns = 9},
                   cmdCopy, cmdCompute),
      m_t1(t1)
{
    layOut();
    addSource(start.txtT1(1).text());
    for (const int i : {1, 4})
        txtT1(i).setText(t1.txtT1(i).text());
    for (int i = 0; i < t1.SegCount; ++i) {
        txtSS(i).setText(t1.txtSS(i).text());
        txtEqtkm(i).setText(t1.txtEqtkm(i).text());
        // A length of 0 cannot be divided by: the box stays open, so that the user can type one and go on.
        txtEqtkm(i).setLocked(valueOf(txtEqtkm(i)) != 0);
    }

    onPress(cmdCopy, &frmT2::cmdCopy_Click);
    onPress(cmdCompute, &frmT2::cmdCompute_Click);
}

void frmT2::layOut()
{
    QHBoxLayout& who = form.headerLine();
    controls::addField(who, "Sr S.E. with index-", txtT1(1), 30);
    controls::addBox(who, txtT1(4), 4, "Sr S.E. index");
    addDate(who);
    for (const int i : {1, 4})
        txtT1(i).setLocked(true);

    form.addRows(segmentRows());
    QHBoxLayout& notes = form.lineBelow();
    notes.addStretch(2);  // under the curve columns
    notes.addWidget(new Caption("Eq. Degree calculated for curves in 1 Deg to 2 Deg range"));
    notes.addStretch(1);
    auto* legend = new Caption("A- Formation     B- Alignment    C- Rainfall");
    legend->setLines({{legend->text()}});
    notes.addWidget(legend);
    cmdCompute.setToolTip(flow::LockTip);
}

RowSheet* frmT2::segmentRows()
{
    auto* rows = new RowSheet("segment", Elements);
    rows->heading("Segment No").result(txtSS, 7);
    rows->heading("Equivalent Length").result(txtEqtkm, 10);
    rows->heading(
            "-------- Type of Formation ------  Shrinkable         unstable      km    T/outs     Km    T/outs    ", 4,
            {{"-------- Type of Formation ------"}, {"Shrinkable", "unstable"}, {"km", "T/outs", "Km", "T/outs"}})
        .entry(txtSoil1, 7, "shrinkable, km")
        .entry(txtTout1, 7, "shrinkable, turnouts")
        .entry(txtSoil2, 7, "unstable, km")
        .entry(txtTout2, 7, "unstable, turnouts");
    rows->heading("    Length of Curves (kms)    1-2 Deg             >2 Deg                   Eq Deg", 3,
                  {{"Length of Curves (kms)"}, {"1-2 Deg", ">2 Deg", "Eq Deg"}})
        .entry(txtCur1, 7, "1-2 Deg")
        .entry(txtcur2, 7, ">2 Deg")
        .entry(txtCur3, 7, "Eq Deg");
    rows->heading("Rainfall in cms").entry(txtRain, 8);
    rows->heading(
            "------------   Augmention Factors  --------------      A             B              C        (1+A+B+C)", 4,
            {{"------------   Augmention Factors  --------------"}, {"A", "B", "C", "(1+A+B+C)"}})
        .result(txtA, 9, "A")
        .result(txtB, 9, "B")
        .result(txtC, 9, "C")
        .result(txtABC, 9, "1+A+B+C");
    rows->finish();
    rows->showRows(m_t1.SegCount);
    for (int i = 0; i < Elements; ++i)
        txtSS(i).setToolTip("Max number of subsections is 12");
    return rows;
}

QWidget* frmT2::boxOf(const figures::RunTimeError& error)
{
    const bool length = error.kind() == figures::ErrorKind::DivisionByZero;
    return length ? &txtEqtkm(error.row()) : &txtSoil1(error.row());
}

void frmT2::cmdCopy_Click()
{
    for (int i = 0; i < m_t1.SegCount; ++i) {
        txtRain(i).setText(cell(i + 1, 2));
        txtSoil1(i).setText(cell(i + 1, 3));
        txtTout1(i).setText(cell(i + 1, 4));
        txtSoil2(i).setText(cell(i + 1, 5));
        txtTout2(i).setText(cell(i + 1, 6));
        txtCur1(i).setText(cell(i + 1, 7));
        txtcur2(i).setText(cell(i + 1, 8));
        txtCur3(i).setText(cell(i + 1, 9));
    }
    finishImport();
}

frmT2::Ground frmT2::readRow(int i) const
{
    const auto single = [i](const controls::TextBox& box, const char* name) {
        return toSingle(valueOf(box), numbered(name, i), i);
    };
    return {.Eqtkm = valueOf(txtEqtkm(i)),
            .Soil1 = valueOf(txtSoil1(i)),
            .Tout1 = single(txtTout1(i), "the number of turnouts on shrinkable formation of segment"),
            .Soil2 = valueOf(txtSoil2(i)),
            .Tout2 = single(txtTout2(i), "the number of turnouts on unstable formation of segment"),
            .Cur1 = valueOf(txtCur1(i)),
            .Cur2 = valueOf(txtcur2(i)),
            .Cur3 = single(txtCur3(i), "the \"Eq Deg\" curve of segment"),
            .Rain = single(txtRain(i), "the rainfall of segment")};
}

void frmT2::cmdCompute_Click()
{
    std::vector<track::SegmentGround> segments;
    for (int i = 0; i < m_t1.SegCount; ++i) {
        const Ground& read = grounds[static_cast<std::size_t>(i)] = readRow(i);
        segments.push_back({.eqLengthKm = read.Eqtkm,
                            .shrinkableKm = read.Soil1,
                            .shrinkableTurnouts = read.Tout1,
                            .unstableKm = read.Soil2,
                            .unstableTurnouts = read.Tout2,
                            .curve1To2Deg = read.Cur1,
                            .curveOver2Deg = read.Cur2,
                            .curveEqDeg = read.Cur3,
                            .rainfallCm = read.Rain});
    }

    const std::vector<track::Augmentation> augmentations = track::augmentations(segments);

    for (int i = 0; const track::Augmentation& augmentation : augmentations) {
        Ground& ground = grounds[static_cast<std::size_t>(i)];
        ground.FacA = augmentation.formation;
        ground.FacB = augmentation.alignment;
        ground.FacC = augmentation.rainfall;
        setText(txtA(i), picture(ground.FacA, "#.######"));
        setText(txtB(i), picture(ground.FacB, "#.######"));
        setText(txtC(i), picture(ground.FacC, "#.######"));
        setText(txtABC(i), picture(augmentation.factor, "#.######"));
        ++i;
    }
    finishCompute();
}
