#include "activities/misc/frmM2.h"

#include <array>

#include "activities/misc/frmM1.h"
#include "activities/misc/misc_norms.h"
#include "figures/numeric_text.h"
#include "figures/picture.h"
#include "start/frmStart.h"
#include "track/frmT1.h"
#include "track/sr_se_header.h"

using controls::addField;
using controls::Caption;
using controls::Section;
using controls::setText;
using controls::TextBox;
using figures::picture;

namespace {

constexpr int FigureWidth = 9;
constexpr int CaptionWidth = 22;  // the activities' boxes stand under each other

const QString Result = "Calculated Mandays - ";

/// An activity that goes by one figure.
Section* activity(const QString& heading, const QString& caption, TextBox& figure, TextBox& mandays,
                  const QList<QStringList>& captionLines = {})
{
    auto* section = new Section(heading);
    QHBoxLayout& line = section->line();
    Caption& label = addField(line, caption, figure, FigureWidth);
    label.setMinimumWidth(controls::widthOf(figure, CaptionWidth));
    label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    if (!captionLines.isEmpty())
        label.setLines(captionLines);
    figure.setNumeric();
    section->addResult(line, Result, mandays, FigureWidth);
    return section;
}

}  // namespace

frmM2::frmM2(flow::Chain& owner, const frmStart& start, const frmT1& t1, const frmM1& m1)
    : ImportScreen(owner,
                   {.form = "frmM2",
                    .caption = "Data Entry for Miscelleneous Activities  (continued).....",
                    .table = "M2",
                    .source = "M2 Data",
                    .grid = "GridM2",
                    .records = 9,
                    .columns = 2 + ShiftKinds},
                   cmdData, cmdCompute),
      m_m1(m1)
{
    layOut(t1);
    addSource(start.txtT1(1).text());

    onPress(cmdData, &frmM2::cmdData_Click);
    onPress(cmdCompute, &frmM2::cmdCompute_Click);
}

void frmM2::layOut(const frmT1& t1)
{
    QHBoxLayout& who = form.headerLine();
    track::addHeader(who, t1, txtT1);
    addDate(who);

    form.sections(
        {{gateKeeping()},
         {activity("M.6- Rest giving for Keyman-", "Number of Keyman beats-", txtKbeats, txtMan6),
          activity("M.7- Waterman duty-", "Number of Gangs-", txtNG, txtMan7),
          activity("M.8- Store Watchman Duty-",
                   "Number of Store Locations -        (in addition to Sr S.E.'s              H.Q.   (not to exceed "
                   "2)",
                   txtSL, txtMan8,
                   {{"Number of Store Locations -"}, {"(in addition to Sr S.E.'s H.Q."}, {"(not to exceed 2)"}})}});
    txtSL.setLimit(misc::MaxStoreLocations);

    QHBoxLayout& total = form.lineBelow();
    total.addStretch();
    addField(total, "Total Number of Calculated Mandays for Miscelleneous Activities - ", txtMan9, FigureWidth);
    txtMan9.setNumeric();
    txtMan9.setLocked(true);
}

Section* frmM2::gateKeeping()
{
    for (int i = 0; i < ShiftKinds; ++i) {
        txtLCS(i).setNumeric();
        txtLCS(i).setText(QString::number(i + 1));
        txtLCS(i).setLocked(true);
        txtLCN(i).setNumeric();
    }
    auto* section = new Section("M.5- Gate Keeping of level Crossings-");
    QHBoxLayout& line = section->line();
    Caption& posts = addField(line, "Number of Gatemen's posts sanctioned (excludin LR)-", txtNLC, FigureWidth);
    posts.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    txtNLC.setNumeric();
    section->addResult(line, Result, txtman5, FigureWidth);
    auto* crossings = new controls::BoxLines("shifts");
    crossings->line("No . of Shifts--", txtLCS, 0, ShiftKinds - 1, FigureWidth)
        .setMinimumWidth(posts.sizeHint().width());
    crossings->line("Corresponding Number of Level Crossings-", txtLCN, 0, ShiftKinds - 1, FigureWidth);
    section->add(crossings);
    return section;
}

void frmM2::cmdData_Click()
{
    txtNLC.setText(cell(2, 2));
    for (int i = 0; i < ShiftKinds; ++i)
        txtLCN(i).setText(cell(3, 3 + i));
    txtKbeats.setText(cell(5, 2));
    txtNG.setText(cell(7, 2));
    txtSL.setText(cell(9, 2));
    finishImport();
}

// Not always whole; what is more than the most is rewritten.
double frmM2::storeLocations()
{
    const double stores = figures::countUpTo(misc::MaxStoreLocations + 1, txtSL.text().toStdString());
    if (stores <= misc::MaxStoreLocations)
        return stores;
    txtSL.setText(QString::number(misc::MaxStoreLocations));
    return misc::MaxStoreLocations;
}

void frmM2::cmdCompute_Click()
{
    const double posts = valueOf(txtNLC);
    const double keymanBeats = valueOf(txtKbeats);
    const double stores = storeLocations();
    const double gangs = valueOf(txtNG);
    std::array<misc::LevelCrossings, ShiftKinds> crossings;
    for (int i = 0; i < ShiftKinds; ++i)
        crossings[static_cast<std::size_t>(i)] = {.crossings = valueOf(txtLCN(i)), .shifts = valueOf(txtLCS(i))};

    const double gateMandays = misc::gateKeeping(crossings, posts);
    const double keymanMandays = misc::keymanRest(keymanBeats);
    const double watermanMandays = misc::watermanDuty(gangs);
    const float storeMandays = misc::storeWatchmanDuty(stores);
    // M.1 to M.4 are 0 where they were never computed.
    TotalMandays = misc::miscTotal(gateMandays, keymanMandays, watermanMandays, storeMandays, m_m1.TotalMandays);

    setText(txtman5, picture(gateMandays, "####"));
    setText(txtMan6, picture(keymanMandays, "####"));
    setText(txtMan7, picture(watermanMandays, "####"));
    setText(txtMan8, picture(storeMandays, "####"));
    setText(txtMan9, picture(TotalMandays, "#####"));
    for (TextBox* entered : {&txtNLC, &txtKbeats, &txtNG, &txtSL})
        entered->setLocked(true);
    finishCompute();
}
