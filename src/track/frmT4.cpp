#include "track/frmT4.h"

#include "figures/conversions.h"
#include "figures/picture.h"
#include "track/frmT2.h"

using controls::Caption;
using controls::RowSheet;
using controls::setText;
using figures::numbered;
using figures::picture;

namespace {

track::MainLineSegment read(const frmT4::Segment& segment)
{
    return {.eqLengthKm = segment.Eqtkm, .gmt = segment.Gmt, .factor = segment.Factor, .concreteKm = segment.ConcKm};
}

void keep(frmT4::Segment& segment, const track::MainLineMandays& mandays)
{
    segment.ManT = mandays.t;
    segment.ManR = mandays.r;
    segment.NgNorm = mandays.ngTPerKm;
}

}  // namespace

frmT4::frmT4(flow::Chain& owner, const frmT1& t1, const frmT2& t2)
    : StepScreen(owner, "frmT4", "Calculations  of Mandays required for ' T ' and ' R ' activities of main line",
                 cmdCompute),
      m_t1(t1)
{
    layOut();

    for (int i = 0; i < t1.SegCount; ++i)
        copyRow(i, t2);
    for (int i = 0; i < txtT1.size(); ++i)
        txtT1(i).setText(t1.txtT1(i).text());
    txtNSeg.setText(t1.txtNSeg.text());
    chkSub.setCheckState(t1.chkSub.checkState());

    onPress(cmdCompute, &frmT4::cmdCompute_Click);
}

void frmT4::copyRow(int i, const frmT2& t2)
{
    txtSS(i).setText(m_t1.txtSS(i).text());
    txtEqtkm(i).setText(m_t1.txtEqtkm(i).text());
    txtGmt(i).setText(m_t1.txtGmt(i).text());
    segments[static_cast<std::size_t>(i)].Method = m_t1.cboMtc(i).text();
    txtTmc(i).setText(m_t1.cboMtc(i).text());
    txtConc1(i).setText(m_t1.txtConc1(i).text());
    txtConc2(i).setText(m_t1.txtConc2(i).text());
    txtTout(i).setText(m_t1.txtTout(i).text());
    txtABC(i).setText(t2.txtABC(i).text());
}

void frmT4::layOut()
{
    QHBoxLayout& who = form.headerLine();
    controls::addField(who, "Section-", txtT1(0), 30);
    controls::addField(who, "Sr S.E. with index-", txtT1(1), 30);
    controls::addBox(who, txtT1(4), 4, "Sr S.E. index");
    addDate(who);

    QHBoxLayout& how = form.headerLine();
    controls::addField(how, "Jurisdiction -", txtT1(2), 30);
    controls::addField(how, "Gauge", txtT1(3), 5);
    controls::addGroup(how, "fraSub", "Subarban Section", {&chkSub});
    how.addStretch();
    controls::addField(how, "No of Segments ?", txtNSeg, 5);

    txtNSeg.setToolTip("Max number of subsections is 12");
    txtNSeg.setNumeric();
    txtNSeg.setLocked(true);
    chkSub.setEnabled(false);
    for (int i = 0; i < txtT1.size(); ++i)
        txtT1(i).setLocked(true);

    form.addRows(segmentRows());
    QHBoxLayout& sum = form.lineBelow();
    auto* legend = new Caption("A- Formation     B- Alignment    C- Rainfall");
    legend->setLines({{legend->text()}});
    sum.addStretch(6);  // under the factor's column
    sum.addWidget(legend);
    sum.addStretch(1);
    txtMan3(Total).setNumeric();
    txtMan3(Total).setLocked(true);
    controls::addField(sum, "Total Mandays for      ('T'+ 'R') Activities        for the Sr.S.E. ", txtMan3(Total), 12);
    form.buttons({&cmdCompute, &cmdPrint, &cmdNext});
    setDefaultButton(&cmdCompute);
    cmdCompute.setToolTip(flow::LockTip);
}

RowSheet* frmT4::segmentRows()
{
    auto* rows = new RowSheet("segment", Segments);
    rows->heading("Seg ment No").result(txtSS, 6);
    rows->heading("Equivalent Length").result(txtEqtkm, 10);
    rows->heading("GMT").result(txtGmt, 8);
    rows->heading("      Method of               Maintenance").textResult(txtTmc, 18);
    rows->heading("Length and no  of Eq.t/outs on conc Sleepers", 2)
        .result(txtConc1, 8, "length")
        .result(txtConc2, 8, "turnouts");
    rows->heading("Total no of Eq.    turnouts").result(txtTout, 8);
    rows->heading("Augmention     Factor       (1+A+B+C) ").result(txtABC, 10);
    rows->heading("  Mandays required for      ' T '          ' R '       Activities    Activities", 2,
                  {{"Mandays required for"}, {"' T '", "' R '"}, {"Activities", "Activities"}})
        .result(txtMan1, 11, "'T'")
        .result(txtMan2, 11, "'R'");
    rows->heading("  Mandays        for         ('T'+ 'R')  ").result(txtMan3, 12);
    rows->finish();
    rows->showRows(m_t1.SegCount);
    for (int i = 0; i < Segments; ++i)
        txtSS(i).setToolTip("Max number of subsections is 12");
    return rows;
}

void frmT4::readRow(int i)
{
    Segment& segment = segments[static_cast<std::size_t>(i)];
    segment.Eqtkm = valueOf(txtEqtkm(i));
    segment.Conc1 = valueOf(txtConc1(i));
    segment.Conc2 = valueOf(txtConc2(i));
    segment.ConcKm = track::concreteKm(segment.Conc1, segment.Conc2, i);
    segment.Gmt = valueOf(txtGmt(i));
    segment.Factor = figures::toSingle(valueOf(txtABC(i)), numbered("the augmentation factor of segment", i), i);
}

void frmT4::Manpower_BG()
{
    for (int i = 0; Segment & segment : counted()) {
        const bool isSuburban = m_t1.chkSub.checkState() == Qt::Checked;
        const track::Method method = track::methodOf(segment.Method.toStdString());
        keep(segment, track::bgMandays(read(segment), isSuburban, method, i));
        ++i;
    }
}

void frmT4::manpowerMg()
{
    for (int i = 0; Segment & segment : counted())
        keep(segment, track::mgMandays(read(segment), i++));
}

void frmT4::manpowerNg()
{
    for (int i = 0; Segment & segment : counted())
        keep(segment, track::ngMandays(read(segment), i++));
}

void frmT4::cmdCompute_Click()
{
    Gauge = m_t1.txtT1(3).text();
    for (int i = 0; i < m_t1.SegCount; ++i)
        readRow(i);

    // Any other text is no gauge: no mandays.
    if (Gauge == "BG")
        Manpower_BG();
    if (Gauge == "MG")
        manpowerMg();
    if (Gauge == "NG")
        manpowerNg();
    for (int i = 0; Segment & segment : counted())
        segment.ManTR = track::trMandays({.t = segment.ManT, .r = segment.ManR}, i++);
    float total = TotMan;
    for (int i = 0; const Segment& segment : counted())
        total = track::addTrMandays(total, segment.ManTR, i++);
    TotMan = total;

    for (int i = 0; const Segment& segment : counted()) {
        setText(txtMan1(i), picture(segment.ManT, "####.##"));
        setText(txtMan2(i), picture(segment.ManR, "####.##"));
        setText(txtMan3(i), picture(segment.ManTR, "####.##"));
        ++i;
    }
    setText(txtMan3(Total), picture(TotMan, "######.##"));
    finishCompute();
}
