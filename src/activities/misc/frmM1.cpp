#include "activities/misc/frmM1.h"

#include <array>

#include "activities/misc/misc_norms.h"
#include "figures/numeric_text.h"
#include "figures/picture.h"
#include "start/frmStart.h"
#include "track/frmT1.h"
#include "track/sr_se_header.h"

using controls::addField;
using controls::Caption;
using controls::RowSheet;
using controls::Section;
using controls::setText;
using controls::TextBox;
using figures::picture;

namespace {

constexpr int CountWidth = 3;
constexpr int FigureWidth = 7;

/// Shows the first `count` rows, numbered. Hidden rows keep their texts.
void showNumbered(RowSheet& rows, controls::ControlArray<TextBox>& numbers, int count)
{
    for (int i = 0; i < count; ++i)
        numbers(i).setText(QString::number(i + 1));
    rows.showRows(count);
}

/// The count that builds the rows below it, with its limit as a note, and at the right the activity's result.
void addCount(Section& section, const QString& caption, TextBox& count, const QString& note,
              const QString& resultCaption, TextBox& mandays)
{
    QHBoxLayout& line = section.line();
    addField(line, caption, count, CountWidth);
    count.setLimit(frmM1::MaxRows);
    auto* limit = new Caption(note);
    limit->setMinimumWidth(limit->sizeHint().width() / 2);  // in a narrow window no tower of single words
    line.addWidget(limit, 1);
    section.addResult(line, resultCaption, mandays, FigureWidth);
}

Section* weatherPatrolling(const QString& heading, TextBox& length, TextBox& mandays)
{
    auto* section = new Section(heading);
    QHBoxLayout& line = section->line();
    addField(line, "Length of LWR track on single line basis(km) ?", length, FigureWidth);
    length.setNumeric();
    length.setLocked(true);
    section->nameAfterActivity(length);
    section->addResult(line, "Calculated Mandays - ", mandays, FigureWidth);
    return section;
}

}  // namespace

frmM1::frmM1(flow::Chain& owner, const frmStart& start, const frmT1& t1)
    : ImportScreen(owner,
                   {.form = "frmM1",
                    .caption = "Data Entry for - For Miscelleneous Activities",
                    .table = "M1",
                    .source = "M1 Data",
                    .grid = "GridM1",
                    .records = 10,
                    .columns = 2 + MaxRows},
                   cmdData, cmdCompute),
      m_t1(t1)
{
    layOut();
    addSource(start.txtT1(1).text());
    for (TextBox* length : {&txtHLWR, &txtCLWR})
        setText(*length, figures::textOf(t1.LwrTotal));

    onChange(txtNB, &frmM1::txtNB_Change);
    onChange(txtVL, &frmM1::txtVL_Change);
    onPress(cmdData, &frmM1::cmdData_Click);
    onPress(cmdCompute, &frmM1::cmdCompute_Click);
}

void frmM1::layOut()
{
    QHBoxLayout& who = form.headerLine();
    track::addHeader(who, m_t1, txtT1);
    addDate(who);

    form.sections({{monsoonPatrolling()},
                   {weatherPatrolling("M.2-Hot Weather Patrolling- Monsoon Patrollong :--", txtHLWR, txtMan2),
                    weatherPatrolling("M.3-Cold Weather Patrolling-", txtCLWR, txtMan3), vulnerableLocations()}});
}

Section* frmM1::monsoonPatrolling()
{
    auto* section = new Section("M.1- Monsoon Patrollong :--");
    addCount(*section, "Total Number of Beat Lengths ?", txtNB, "Data for a maximum of 12 beat lengths can be entered",
             "Calculated Mandays - ", txtman1);
    m_beatRows = new RowSheet("beat length", MaxRows);
    m_beatRows->heading("Beat Length Number- ").result(txtTB, 7);
    m_beatRows->heading("     Number of days needing                  Patrolling in the beat length").entry(txtND, 15);
    m_beatRows->heading("No of Beats in the beat length").entry(txtBL, 10);
    m_beatRows->heading("No of Shifts inthe beat length").entry(txtNS, 10);
    m_beatRows->heading("Number of men in each Shift").entry(txtNM, 10);
    m_beatRows->finish();
    section->add(m_beatRows);
    return section;
}

Section* frmM1::vulnerableLocations()
{
    auto* section = new Section("M.4-Watching Vulnerable Locations-");
    addCount(*section, "No. of vulnerable Locations-", txtVL,
             "Data for a max of 12 vulnerable locations can be entered", "Mandays Calculated-", txtMan4);
    m_locationRows = new RowSheet("location", MaxRows);
    m_locationRows->heading("Vulnerable  Location Number- ").result(txtNVL, 10);
    m_locationRows->heading("No of Days Watching required at the Location-").entry(txtDV, 14);
    m_locationRows->heading("No of Duty Shifts at  each   location-").entry(txtDS, 14);
    m_locationRows->finish();
    section->add(m_locationRows);
    return section;
}

void frmM1::txtNB_Change()
{
    m_beatLengths = countOf(txtNB, MaxRows);
    showNumbered(*m_beatRows, txtTB, m_beatLengths);
}

void frmM1::txtVL_Change()
{
    m_locations = countOf(txtVL, MaxRows);
    showNumbered(*m_locationRows, txtNVL, m_locations);
}

void frmM1::cmdData_Click()
{
    // Their changes set the counts and show the rows.
    txtNB.setText(cell(2, 2));
    txtVL.setText(cell(8, 2));
    for (TextBox* count : {&txtNB, &txtVL})
        if (count->text().isEmpty())
            count->setText("0");
    for (int i = 0; i < m_beatLengths; ++i) {
        txtND(i).setText(cell(3, 3 + i));
        txtNS(i).setText(cell(4, 3 + i));
        txtBL(i).setText(cell(5, 3 + i));
        txtNM(i).setText(cell(6, 3 + i));
    }
    for (int i = 0; i < m_locations; ++i) {
        txtDV(i).setText(cell(9, 3 + i));
        txtDS(i).setText(cell(10, 3 + i));
    }
    finishImport();
}

void frmM1::cmdCompute_Click()
{
    std::array<misc::BeatLength, MaxRows> beatLengths;
    for (int i = 0; i < m_beatLengths; ++i)
        beatLengths[static_cast<std::size_t>(i)] = {.days = valueOf(txtND(i)),
                                                    .shifts = valueOf(txtNS(i)),
                                                    .beats = valueOf(txtBL(i)),
                                                    .men = valueOf(txtNM(i))};
    std::array<misc::VulnerableLocation, MaxRows> locations;
    for (int i = 0; i < m_locations; ++i)
        locations[static_cast<std::size_t>(i)] = {.days = valueOf(txtDV(i)), .shifts = valueOf(txtDS(i))};

    // The sums of M.1 and M.4 are not cleared: what is imported after a Compute is added to what was before.
    m_atWork = &txtNM;
    const double monsoon =
        misc::addMonsoonPatrolling(m_monsoonMandays, {beatLengths.data(), static_cast<std::size_t>(m_beatLengths)});
    const float hotWeather = misc::hotWeatherPatrolling(m_t1.LwrTotal);
    const float coldWeather = misc::coldWeatherPatrolling(m_t1.LwrTotal);
    m_atWork = &txtDV;
    const float vulnerable =
        misc::addVulnerableLocations(m_locationMandays, {locations.data(), static_cast<std::size_t>(m_locations)});
    TotalMandays = misc::firstTotal(monsoon, hotWeather, coldWeather, vulnerable);
    m_monsoonMandays = monsoon;
    m_locationMandays = vulnerable;

    setText(txtman1, picture(monsoon, "####"));
    setText(txtMan2, picture(hotWeather, "####"));
    setText(txtMan3, picture(coldWeather, "####"));
    setText(txtMan4, picture(vulnerable, "####"));
    txtNB.setLocked(true);
    txtVL.setLocked(true);
    finishCompute();
}
