#include "activities/site/frmS2.h"

#include <algorithm>
#include <span>

#include "activities/site/frmS1.h"
#include "activities/site/site_norms.h"
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

constexpr int MaxLocations = 8;
constexpr int MaxGangs = 9;
constexpr int MaxWaterLocations = 6;

// Where the blocks of txtND begin.
constexpr int Location = 0;
constexpr int PoorVisibility = 8;
constexpr int GangLength = 17;
constexpr int FogSignalYears = 26;
constexpr int SecurityYears = 29;
constexpr int Shifts = 32;
constexpr int Days = 38;

// What a message calls the value in box `i`, with its place in the block.
std::string nameOf(int i)
{
    struct Block {
        int first;
        const char* name;
    };
    constexpr std::array blocks = {Block{Days, "the S.10 number of days of location"},
                                   Block{Shifts, "the S.10 number of shifts of location"},
                                   Block{SecurityYears, "the S.9 mandays of year"},
                                   Block{FogSignalYears, "the S.7 mandays of year"},
                                   Block{GangLength, "the length of gang"},
                                   Block{PoorVisibility, "the length of poor visibility of gang"},
                                   Block{Location, "the S.5 length of location"}};
    const auto* block = std::find_if(blocks.begin(), blocks.end(), [i](const Block& one) { return one.first <= i; });
    return figures::numbered(block->name, i - block->first);
}

const QString Result = "Calculated  Mandays -";
constexpr int CountCharacters = 2;
constexpr int ValueCharacters = 5;
constexpr int YearCharacters = 6;
constexpr int ResultCharacters = 6;
constexpr int CaptionCharacters = 21;  // the boxes stand under one another

int captionWidth(const TextBox& box)
{
    return controls::widthOf(box, CaptionCharacters);
}

// A count; behind it its limit as a note and the activity's result.
void addCount(Section& section, const QString& caption, TextBox& count, const QString& note, TextBox& result)
{
    QHBoxLayout& line = section.line();
    Caption& label = controls::addField(line, caption, count, CountCharacters);
    label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label.setMinimumWidth(captionWidth(count));
    if (!note.isEmpty())
        line.addWidget(new Caption(note), 1);
    section.addResult(line, Result, result, ResultCharacters);
}

}  // namespace

frmS2::frmS2(flow::Chain& owner, const frmStart& start, const frmT1& t1, const frmS1& s1)
    : ImportScreen(owner,
                   {.form = "frmS2",
                    .caption = "Data Entry for Site Specefic Activities 'S' (Continued)",
                    .table = "S2",
                    .source = "S2 Data",
                    .grid = "GridS2",
                    .records = 17,
                    .columns = 21},  // the last four are the summary's
                   cmdData, cmdCompute),
      m_s1(s1)
{
    layOut(t1);
    addSource(start.txtT1(1).text());

    onChange(txtTB1, &frmS2::txtTB1_Change);
    onChange(txtTB2, &frmS2::txtTB2_Change);
    onChange(txtTB4, &frmS2::txtTB4_Change);
    onPress(cmdData, &frmS2::cmdData_Click);
    onPress(cmdCompute, &frmS2::cmdCompute_Click);
}

void frmS2::layOut(const frmT1& t1)
{
    for (int i = 0; i < Values; ++i) {
        txtND(i).setNumeric();
        const bool ofACount = i < FogSignalYears || i >= Shifts;
        txtND(i).setVisible(!ofACount);
    }
    txtTB1.setLimit(MaxLocations);
    txtTB2.setLimit(MaxGangs);
    txtTB3.setNumeric();
    txtTB4.setLimit(MaxWaterLocations);

    QHBoxLayout& who = form.headerLine();
    track::addHeader(who, t1, txtT1);
    addDate(who);

    form.sections(
        {{badFormations(), lookOut(),
          pastYears("S.7-Fogsignal man duty-",
                    "Total mandays actually utilised in     the past 3  years for this duty-", FogSignalYears,
                    txtMan16)},
         {filthRemoval(),
          pastYears("S.9-Security Patrolling-", "Total mandays actually utilised in    the past 3 years for this duty-",
                    SecurityYears, txtMan18),
          waterLevels(t1.chkSub.checkState() == Qt::Checked)}});

    QHBoxLayout& sum = form.lineBelow();
    sum.addStretch();
    controls::addField(sum, "Total Number of Calculated Mandays for 'S' Activities - ", txtMan20, ResultCharacters);
    txtMan20.setNumeric();
    txtMan20.setLocked(true);
}

Section* frmS2::badFormations()
{
    auto* section = new Section("S.5- Maintenance of Extremely Bad Formations-");
    auto* boxes = new BoxLines("location");
    boxes->line("     Length of Location in Metres-", txtND, Location, PoorVisibility - 1, ValueCharacters)
        .setMinimumWidth(captionWidth(txtTB1));
    addCount(*section, "Number of Locations-   ", txtTB1,
             "(No of Locations needing more than 12 attentions in a year-less than 8 locations) ", txtMan14);
    section->add(boxes);
    return section;
}

Section* frmS2::lookOut()
{
    auto* section = new Section("S.6-Look out man duty-");
    auto* boxes = new BoxLines("gang");
    boxes
        ->line("Length of Track with poor     Visibility   in   the   gang--", txtND, PoorVisibility, GangLength - 1,
               ValueCharacters)
        .setLines({{"Length of Track with poor"}, {"Visibility in the gang--"}});
    boxes->line("Length of the gang length--", txtND, GangLength, FogSignalYears - 1, ValueCharacters)
        .setMinimumWidth(captionWidth(txtTB2));
    addCount(*section, "Number of Gangs-   ", txtTB2, "(Max no of Gangs considered as 9 in a Sr S.E.'s beat)",
             txtMan15);
    section->add(boxes);
    return section;
}

Section* frmS2::filthRemoval()
{
    auto* section = new Section("S.8-Filth Removal from Track-");
    addCount(*section, "No. of Gangs having        this type of problem-", txtTB3, "", txtMan17);
    return section;
}

Section* frmS2::pastYears(const QString& heading, const QString& caption, int first, TextBox& result)
{
    auto* section = new Section(heading);
    auto* boxes = new BoxLines("year");
    Caption& mandays = boxes->line(caption, txtND, first, first + site::AveragedYears - 1, YearCharacters);
    mandays.setLines({{"Total mandays actually"}, {"utilised in the past"}, {"3 years for this duty-"}});
    mandays.setMinimumWidth(captionWidth(result));
    for (int i = first; i < first + site::AveragedYears; ++i)
        section->nameAfterActivity(txtND(i));
    QHBoxLayout& line = section->line();
    line.addWidget(boxes);
    section->addResult(line, Result, result, ResultCharacters);
    return section;
}

Section* frmS2::waterLevels(bool suburban)
{
    auto* section = new Section("S.10-Watching Waterlevels        in Subarban Sections-");
    auto* boxes = new BoxLines("location");
    boxes->line("No of Shifts required-", txtND, Shifts, Days - 1, ValueCharacters)
        .setMinimumWidth(captionWidth(txtTB4));
    boxes->line("No of days required at the location-", txtND, Days, Values - 1, ValueCharacters)
        .setLines({{"No of days required"}, {"at the location-"}});
    addCount(*section, "Number of locations-   ", txtTB4, "(Max no of locations considered as 6 in a Sr S.E.'s beat)",
             txtMan19);
    section->add(boxes);
    section->setOpen(suburban);
    return section;
}

void frmS2::txtTB1_Change()
{
    m_locations = countOf(txtTB1, MaxLocations);
    for (int i = 0; i < m_locations; ++i)
        txtND(i).setVisible(true);
    // Four boxes further than the locations go: the first four gangs' visibility boxes go too, until the number of
    // gangs is entered again.
    for (int i = m_locations; i < PoorVisibility + 4; ++i)
        txtND(i).setVisible(false);
}

void frmS2::txtTB2_Change()
{
    m_gangs = countOf(txtTB2, MaxGangs);
    for (int gang = 0; gang < MaxGangs; ++gang)
        for (const int block : {PoorVisibility, GangLength})
            txtND(block + gang).setVisible(gang < m_gangs);
}

void frmS2::txtTB4_Change()
{
    m_waterLocations = countOf(txtTB4, MaxWaterLocations);
    for (int location = 0; location < MaxWaterLocations; ++location)
        for (const int block : {Shifts, Days})
            txtND(block + location).setVisible(location < m_waterLocations);
}

void frmS2::cmdData_Click()
{
    // The counts first: they show the boxes. The values are all taken, whatever the counts say.
    txtTB1.setText(cell(2, 2));
    txtTB2.setText(cell(5, 2));
    txtTB3.setText(cell(11, 2));
    txtTB4.setText(cell(15, 2));
    struct Block {
        int first;
        int last;
        int row;
    };
    for (const Block& block :
         {Block{Location, PoorVisibility - 1, 3}, Block{PoorVisibility, GangLength - 1, 6},
          Block{GangLength, FogSignalYears - 1, 7}, Block{FogSignalYears, SecurityYears - 1, 9},
          Block{SecurityYears, Shifts - 1, 13}, Block{Shifts, Days - 1, 16}, Block{Days, Values - 1, 17}})
        for (int i = block.first; i <= block.last; ++i)
            txtND(i).setText(cell(block.row, 3 + i - block.first));
    finishImport();
}

std::array<float, frmS2::Values> frmS2::readValues()
{
    m_firstInWork = 0;
    std::array<float, Values> values{};
    for (int i = 0; i < Values; ++i)
        values[static_cast<std::size_t>(i)] = figures::toSingle(valueOf(txtND(i)), nameOf(i), i);
    return values;
}

void frmS2::cmdCompute_Click()
{
    const std::array<float, Values> values = readValues();
    const auto value = [&](int block, int place) { return values[static_cast<std::size_t>(block + place)]; };
    const auto years = [&](int block) { return std::array{value(block, 0), value(block, 1), value(block, 2)}; };

    std::array<site::GangLength, MaxGangs> gangs;
    for (int gang = 0; gang < m_gangs; ++gang)
        gangs[static_cast<std::size_t>(gang)] = {.poorVisibilityKm = value(PoorVisibility, gang),
                                                 .lengthKm = value(GangLength, gang)};
    std::array<site::WatchedWater, MaxWaterLocations> waters;
    for (int location = 0; location < m_waterLocations; ++location)
        waters[static_cast<std::size_t>(location)] = {.shifts = value(Shifts, location), .days = value(Days, location)};

    site::SiteMandays mandays = m_s1.mandays;  // S.1 to S.4
    mandays.badFormations = site::badFormationMandays({values.data(), static_cast<std::size_t>(m_locations)});
    m_firstInWork = GangLength;
    mandays.lookOut = site::lookOutMandays({gangs.data(), static_cast<std::size_t>(m_gangs)});
    mandays.fogSignal = site::averageMandays(years(FogSignalYears));
    mandays.filthRemoval = site::filthRemovalMandays(valueOf(txtTB3));
    mandays.securityPatrolling = site::averageMandays(years(SecurityYears));
    m_firstInWork = Shifts;
    mandays.waterLevels = site::waterLevelMandays({waters.data(), static_cast<std::size_t>(m_waterLocations)});
    TotalMandays = site::siteTotal(mandays);

    setText(txtMan14, picture(mandays.badFormations, "####"));
    setText(txtMan15, picture(mandays.lookOut, "####"));
    setText(txtMan16, picture(mandays.fogSignal, "####"));
    setText(txtMan17, picture(mandays.filthRemoval, "####"));
    setText(txtMan18, picture(mandays.securityPatrolling, "####"));
    setText(txtMan19, picture(mandays.waterLevels, "####"));
    setText(txtMan20, picture(TotalMandays, "####"));
    for (TextBox* count : {&txtTB1, &txtTB2, &txtTB3, &txtTB4})
        count->setLocked(true);
    finishCompute();
}
