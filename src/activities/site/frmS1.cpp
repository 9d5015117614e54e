#include "activities/site/frmS1.h"

#include <span>

#include "figures/conversions.h"
#include "figures/picture.h"
#include "start/frmStart.h"
#include "track/frmT1.h"
#include "track/sr_se_header.h"

using controls::BoxLines;
using controls::Caption;
using controls::Section;
using controls::setText;
using controls::TextBox;
using figures::picture;

namespace {

// Of the data file's table. A kind's lengths for one, two, three and four tracks stand side by side from column 2 on.
constexpr std::array RowOfKind = {3, 5, 7};
constexpr int FirstColumn = 2;
constexpr int CurvesRow = 9;

// What a message calls the kinds' lengths.
constexpr std::array LengthOfKind = {"the S.1 length for number of tracks", "the S.2 length for number of tracks",
                                     "the S.3 length for number of tracks"};

constexpr int LengthCharacters = 9;
constexpr int ResultCharacters = 9;
constexpr int SectionSpacing = 14;
constexpr int ResultSpacing = 40;
constexpr int CaptionCharacters = 53;  // the longest of the captions: all boxes begin under each other

void alignBoxes(Caption& caption)
{
    caption.setMinimumWidth(controls::widthOf(caption, CaptionCharacters));
}

Section* section(const QString& heading, BoxLines* lengths, TextBox& mandays)
{
    auto* section = new Section(heading);
    QHBoxLayout& line = section->line();
    line.addWidget(lengths);
    line.addSpacing(ResultSpacing);
    section->addResult(line, "Calculated Mandays - ", mandays, ResultCharacters);
    return section;
}

}  // namespace

frmS1::frmS1(flow::Chain& owner, const frmStart& start, const frmT1& t1)
    : ImportScreen(owner,
                   {.form = "frmS1",
                    .caption = "Data Entry for Site Specefic Activiries 'S'",
                    .table = "S1",
                    .source = "S1 Data",
                    .grid = "GridS1",
                    .records = CurvesRow,
                    .columns = FirstColumn + TrackCounts - 1},
                   cmdData, cmdCompute)
{
    layOut(t1);
    addSource(start.txtT1(1).text());

    onPress(cmdData, &frmS1::cmdData_Click);
    onPress(cmdCompute, &frmS1::cmdCompute_Click);
}

void frmS1::layOut(const frmT1& t1)
{
    QHBoxLayout& who = form.headerLine();
    track::addHeader(who, t1, txtT1);
    addDate(who);

    auto* across = new QHBoxLayout;
    auto* down = new QVBoxLayout;
    down->setSpacing(SectionSpacing);
    form.sections().addLayout(across);
    across->addLayout(down);
    across->addStretch();  // the results stand near what they come from
    down->addWidget(structures(0, "S.1- Tunnel Maintenance -", "     Length of Tunnel in Metres-", txtman10));
    down->addWidget(
        structures(1, "S.2- Bridge Substructure Maintenance-", "     Length of Bridges in Metres-", txtMan11));
    down->addWidget(structures(2, "S.3- Long Girder Maintenance -",
                               "Length of Bridges in Metres- (Lineal Waterway more than 150 metres) ", txtMan12));
    down->addWidget(sharpCurves());
}

Section* frmS1::structures(int kind, const QString& heading, const QString& lengthCaption, TextBox& result)
{
    const int first = kind * TrackCounts;
    const int last = first + TrackCounts - 1;
    for (int i = first; i <= last; ++i) {
        txtTB(i).setText(QString::number(i - first + 1));
        txtTB(i).setNumeric();
        txtTB(i).setLocked(true);
        txtND(i).setNumeric();
    }
    auto* lengths = new BoxLines("tracks");
    lengths->line("Number of Tracks-", txtTB, first, last, LengthCharacters);
    Caption& caption = lengths->line(lengthCaption, txtND, first, last, LengthCharacters);
    alignBoxes(caption);
    Section* whole = section(heading, lengths, result);
    for (int i = first; i <= last; ++i)
        for (TextBox* box : {&txtTB(i), &txtND(i)})
            whole->nameAfterActivity(*box);
    return whole;
}

Section* frmS1::sharpCurves()
{
    txtND(Curves).setNumeric();
    auto* length = new BoxLines("");
    Caption& caption =
        length->line("Total Length of Curves in Kms sharper than 3 Degrees on BG                    and 6 Degrees on "
                     "MG                                                    (NG Track does not need extra "
                     "maintenance on this reason)",
                     txtND, Curves, Curves, LengthCharacters);
    alignBoxes(caption);
    txtND(Curves).setAccessibleName(caption.spoken());
    return section("S.4- Extra Maintenance due to Very Sharp Curves, Deep Cuttings, and Steep Gradients-", length,
                   txtMan13);
}

void frmS1::cmdData_Click()
{
    for (int i = 0; i < Curves; ++i)
        txtND(i).setText(cell(RowOfKind[static_cast<std::size_t>(i / TrackCounts)], FirstColumn + i % TrackCounts));
    txtND(Curves).setText(cell(CurvesRow, FirstColumn));
    finishImport();
}

float frmS1::lengthOf(int i) const
{
    const std::string name =
        i == Curves ? "the S.4 length of curves"
                    : figures::numbered(LengthOfKind[static_cast<std::size_t>(i / TrackCounts)], i % TrackCounts);
    return figures::toSingle(valueOf(txtND(i)), name, i);
}

void frmS1::cmdCompute_Click()
{
    std::array<site::Structures, Curves> structures;
    for (int i = 0; i < Curves; ++i)
        structures[static_cast<std::size_t>(i)] = {.tracks = valueOf(txtTB(i)), .lengthM = lengthOf(i)};
    const float curveKm = lengthOf(Curves);

    std::array<double, Kinds> metres = m_trackMetres;
    for (std::size_t kind = 0; kind < Kinds; ++kind)
        metres[kind] =
            site::addTrackMetres(metres[kind], std::span(structures).subspan(kind * TrackCounts, TrackCounts));
    const site::SiteMandays results{.tunnels = site::tunnelMandays(metres[0]),
                                    .bridges = site::bridgeMandays(metres[1]),
                                    .longGirders = site::longGirderMandays(metres[2]),
                                    .sharpCurves = site::sharpCurveMandays(curveKm)};
    m_trackMetres = metres;
    mandays = results;

    setText(txtman10, picture(mandays.tunnels, "#####"));
    setText(txtMan11, picture(mandays.bridges, "#####"));
    setText(txtMan12, picture(mandays.longGirders, "#####"));
    setText(txtMan13, picture(mandays.sharpCurves, "#####"));
    finishCompute();
}
