#include "track/frmT1.h"

#include <QGroupBox>

#include "figures/conversions.h"
#include "figures/numeric_text.h"
#include "figures/picture.h"
#include "screens/flow/chain.h"
#include "start/frmStart.h"
#include "track/track_length.h"

using controls::RowSheet;
using figures::picture;

namespace {

const QString MachinePacked = "Machine Packed";
const QString ManuallyPacked = "Manually Packed";

}  // namespace

frmT1::frmT1(flow::Chain& owner, const frmStart& start)
    : ImportScreen(owner,
                   {.form = "frmT1",
                    .caption = "Entering Track Data",
                    .table = "TR",
                    .source = "Tr Data",
                    .grid = "TrGrid",
                    .records = MaxSegments,
                    .columns = 13,
                    .opensCompute = false},
                   cmdCopy, cmdCompute),
      m_start(start)
{
    layOut();
    addSource(start.txtT1(1).text());
    DataFilePath = dataFile();
    openCount();
    cmdCopy.setEnabled(false);
    setHint("Choose the gauge: it opens the import.");
    takeSrSe();

    onChange(txtNSeg, &frmT1::txtNSeg_Change);
    onChoice(optBG, &frmT1::optBG_Click);
    onChoice(optMG, &frmT1::optMG_Click);
    onChoice(optNG, &frmT1::optNG_Click);
    onChoice(chkSub, &frmT1::chkSub_Click);
    onPress(cmdCopy, &frmT1::cmdCopy_Click);
    onPress(cmdCompute, &frmT1::cmdCompute_Click);
}

void frmT1::takeSrSe()
{
    txtT1(1).setText(m_start.txtT1(0).text());
    txtT1(4).setText(m_start.txtT1(4).text());
}

// A name that was forgotten or mistyped would otherwise be missing on every sheet of the Sr SE.
void frmT1::onShownAgain()
{
    if (isUntouched())
        takeSrSe();
    ImportScreen::onShownAgain();
    DataFilePath = dataFile();
    if (!cmdNext.isEnabled())
        openCount();
}

void frmT1::layOut()
{
    QHBoxLayout& who = form.headerLine();
    controls::Caption& section = controls::addField(who, "Section-", txtT1(0), 30);
    controls::addField(who, "Sr S.E. with index-", txtT1(1), 30);
    controls::addBox(who, txtT1(4), 4, "Sr S.E. index");
    addDate(who);

    QHBoxLayout& how = form.headerLine();
    // The boxes that are typed stand under one another.
    section.setMinimumWidth(controls::addField(how, "Jurisdiction -", txtT1(2), 30).sizeHint().width());
    controls::addGroup(how, "fraG", "Gauge", {&optBG, &optMG, &optNG});
    controls::addField(how, "Gauge", txtT1(3), 5);
    QGroupBox& suburban = controls::addGroup(how, "fraSub", "Subarban Section", {&chkSub});
    how.addStretch();
    controls::addField(how, "No of Segments ?", txtNSeg, 5);

    optMG.setToolTip("\"For MG sections  Maintenace has to be Manual\"");
    optNG.setToolTip("\"For NG sections the Maintenace has to be Manual\"");
    chkSub.setToolTip("\"For Subarban Sections the Maintenance has to be Mechanical\"");
    suburban.setToolTip(chkSub.toolTip());
    txtNSeg.setToolTip("Maximum number of segments is 16");
    txtNSeg.setLimit(MaxSegments);
    for (const int taken : {1, 3, 4})
        txtT1(taken).setLocked(true);
    txtNSeg.setLocked(true);

    m_rows = segmentRows();
    form.addRows(m_rows);
}

RowSheet* frmT1::segmentRows()
{
    auto* rows = new RowSheet("segment", MaxSegments);
    rows->heading("Segment     No").entry(txtSS, 6);
    rows->heading(" Line  dn/up").choice(cboLn, 7, {"UP", "DN", "SL"}, "Line");
    rows->heading("Km From").entry(txtKmf, 8);
    rows->heading("Km To").entry(txtKmt, 8);
    rows->heading("  Extra      Kms      if  any").entry(txtKm1, 7);
    rows->heading("GMT").entry(txtGmt, 7);
    rows->heading("LWR (kms)").entry(txtLWR, 7);
    rows->heading(" Method   of    Maintenance")
        .choice(cboMtc, 20, {MachinePacked, ManuallyPacked}, "Method of Maintenance");
    rows->heading("Length and no  of Eq.t/outs on conc Sleepers", 2)
        .entry(txtConc1, 8, "length")
        .entry(txtConc2, 7, "turnouts");
    rows->heading("Total no of Eq.    turnouts").entry(txtTout, 8);
    rows->heading("Total Km").result(txtTkm, 8);
    rows->heading("Eq. Length").result(txtEqtkm, 8);
    rows->finish();
    for (int i = 0; i < MaxSegments; ++i)
        txtSS(i).setText(QString::number(i + 1));
    return rows;
}

void frmT1::forceMethod(int i, const QString& method)
{
    cboMtc(i).setText(method);
    cboMtc(i).setLocked(true);
}

void frmT1::txtNSeg_Change()
{
    SrSeIndexT1 = valueOf(txtT1(4));
    SectionText = txtT1(0).text();
    SrSeNameT1 = txtT1(1).text();
    SegCount = countOf(txtNSeg, MaxSegments);
    if (chkSub.isChecked())
        forceMethod(0, MachinePacked);
    m_rows->showRows(SegCount);
    for (int i = 0; i < SegCount; ++i)
        if (chkSub.isChecked())
            forceMethod(i, MachinePacked);
        else
            cboMtc(i).setLocked(false);
    cmdCompute.setEnabled(true);
    setDefaultButton(&cmdCompute);
    openImport();
}

void frmT1::openImport()
{
    cmdCopy.setEnabled(true);
    setHint("");
}

void frmT1::optBG_Click()
{
    txtT1(3).setText("BG");
    openImport();
}

void frmT1::optMG_Click()
{
    packByHand("MG");
}

void frmT1::optNG_Click()
{
    packByHand("NG");
}

// Metre and narrow gauge are packed by hand.
void frmT1::packByHand(const QString& gauge)
{
    txtT1(3).setText(gauge);
    openImport();
    chkSub.setChecked(false);
    for (int i = 0; i < SegCount; ++i)
        forceMethod(i, ManuallyPacked);
}

// A suburban section is broad gauge and packed by machine.
void frmT1::chkSub_Click()
{
    for (int i = 0; i < SegCount; ++i)
        forceMethod(i, MachinePacked);
    optBG.setChecked(true);  // clears the other two
    optBG_Click();
}

// Without a table no count can come from a file.
void frmT1::openCount()
{
    if (grid.isHidden())
        txtNSeg.setLocked(false);
}

// An import that brings a count locks the box; one that brings none opens it, and leaves a typed count alone.
void frmT1::importCount()
{
    const bool computed = cmdNext.isEnabled();
    const bool typed = computed || !txtNSeg.isLocked();
    txtNSeg.setLocked(computed);
    const QString count = cell(1, 2);
    const bool brought = !count.trimmed().isEmpty();
    if (brought || !typed)
        txtNSeg.setText(brought ? count : "");
    txtNSeg.setLocked(computed || brought);
    SegCount = countOf(txtNSeg, MaxSegments);
}

void frmT1::cmdCopy_Click()
{
    importCount();
    for (int i = 0; i < SegCount; ++i) {
        txtSS(i).setText(cell(i + 1, 3));
        cboLn(i).setText(cell(i + 1, 4));
        txtKmf(i).setText(cell(i + 1, 5));
        txtKmt(i).setText(cell(i + 1, 6));
        txtKm1(i).setText(cell(i + 1, 7));
        txtConc1(i).setText(cell(i + 1, 8));
        txtConc2(i).setText(cell(i + 1, 9));
        txtTout(i).setText(cell(i + 1, 10));
        txtGmt(i).setText(cell(i + 1, 11));
        txtLWR(i).setText(cell(i + 1, 12));
        cboMtc(i).setText(cell(i + 1, 13));
    }
    finishImport();
    if (txtNSeg.text().trimmed().isEmpty()) {
        setHint("Type the number of segments: the data file has none.");
        revealBox(txtNSeg);
    }
}

void frmT1::cmdCompute_Click()
{
    SrSeIndexAtCompute = valueOf(m_start.txtT1(4));
    ComputeError = 0;
    int firstBad = -1;
    for (int i = 0; i < SegCount; ++i)
        if (!computeRow(i) && firstBad < 0)
            firstBad = i;
    if (ComputeError != 1) {
        txtNSeg.setLocked(true);
        finishCompute();
    } else if (firstBad >= 0) {
        revealBox(txtKmf(firstBad));
    }
}

// Results are shown row by row: the rows that pass are computed, also beside one that has to be revised.
bool frmT1::computeRow(int i)
{
    Segment& segment = segments[static_cast<std::size_t>(i)];
    segment.SegNo =
        figures::strictSingle(txtSS(i).text().toStdString(), "the number of segment " + std::to_string(i + 1), i);
    segment.SegLine = cboLn(i).text();
    segment.KmFrom = valueOf(txtKmf(i));
    segment.KmTo = valueOf(txtKmt(i));
    const bool wrongWayRound = segment.KmTo < segment.KmFrom;
    txtKmf(i).setRed(wrongWayRound);
    txtKmt(i).setRed(wrongWayRound);
    if (wrongWayRound) {
        revealBox(txtKmf(i));
        ComputeError = figures::toInt16(chain.dialogs().showCritical(*this, "Revise Values of 'Km from' and 'Km to'",
                                                                     "'Kilometer to' can not be less than 'Km from'"),
                                        "the button");
        return false;
    }
    segment.KmExtra = valueOf(txtKm1(i));
    segment.LwrKm = figures::toSingle(valueOf(txtLWR(i)), "the welded rail of segment " + std::to_string(i + 1), i);
    segment.Turnouts = valueOf(txtTout(i));
    const track::SegmentLength length = track::segmentLength(
        {.kmFrom = segment.KmFrom, .kmTo = segment.KmTo, .kmExtra = segment.KmExtra, .turnouts = segment.Turnouts}, i);
    segment.TotalKm = length.totalKm;
    controls::setText(txtTkm(i), picture(segment.TotalKm, "####.##"));
    segment.EqLength = length.eqLengthKm;
    controls::setText(txtEqtkm(i), picture(segment.EqLength, "####.##"));
    // Not cleared at the start of a Compute: rows that passed before a failed one count again.
    LwrTotal = track::addWeldedRail(LwrTotal, segment.LwrKm, i);
    return true;
}

QWidget* frmT1::boxOf(const figures::RunTimeError& error)
{
    if (error.kind() == figures::ErrorKind::FloatingPoint)
        return &txtLWR(error.row());  // only the total of welded rail ends so
    return &txtSS(error.row());
}
