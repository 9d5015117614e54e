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

track::SegmentGround frmT2::readRow(int i)
{
    const auto at = static_cast<std::size_t>(i);
    Eqtkm[at] = valueOf(txtEqtkm(i));
    Soil1[at] = valueOf(txtSoil1(i));
    Cur1[at] = valueOf(txtCur1(i));
    Tout1[at] =
        toSingle(valueOf(txtTout1(i)), numbered("the number of turnouts on shrinkable formation of segment", i), i);
    Soil2[at] = valueOf(txtSoil2(i));
    Cur2[at] = valueOf(txtcur2(i));
    Tout2[at] =
        toSingle(valueOf(txtTout2(i)), numbered("the number of turnouts on unstable formation of segment", i), i);
    Cur3[at] = toSingle(valueOf(txtCur3(i)), numbered("the \"Eq Deg\" curve of segment", i), i);
    Rain[at] = toSingle(valueOf(txtRain(i)), numbered("the rainfall of segment", i), i);
    return {.eqLengthKm = Eqtkm[at],
            .shrinkableKm = Soil1[at],
            .shrinkableTurnouts = Tout1[at],
            .unstableKm = Soil2[at],
            .unstableTurnouts = Tout2[at],
            .curve1To2Deg = Cur1[at],
            .curveOver2Deg = Cur2[at],
            .curveEqDeg = Cur3[at],
            .rainfallCm = Rain[at]};
}

void frmT2::cmdCompute_Click()
{
    std::vector<track::SegmentGround> grounds;
    grounds.reserve(static_cast<std::size_t>(m_t1.SegCount));
    for (int i = 0; i < m_t1.SegCount; ++i)
        grounds.push_back(readRow(i));

    const std::vector<track::Augmentation> augmentations = track::augmentations(grounds);

    for (int i = 0; i < m_t1.SegCount; ++i) {
        const auto at = static_cast<std::size_t>(i);
        FacA[at] = augmentations[at].formation;
        FacB[at] = augmentations[at].alignment;
        FacC[at] = augmentations[at].rainfall;
        setText(txtA(i), picture(FacA[at], "#.######"));
        setText(txtB(i), picture(FacB[at], "#.######"));
        setText(txtC(i), picture(FacC[at], "#.######"));
        setText(txtABC(i), picture(augmentations[at].factor, "#.######"));
    }
    finishCompute();
}
