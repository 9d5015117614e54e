// docs/norms.md against the tables that the program computes with: a rate that changes in one place alone fails here.

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "activities/misc/misc_norms.h"
#include "activities/site/site_norms.h"
#include "docs/pages.h"
#include "summary/strength.h"
#include "track/augmentation.h"
#include "track/main_line_norms.h"
#include "track/track_length.h"
#include "yards/yard_norms.h"

namespace {

struct Rate {
    std::string constant;  ///< as the page names it: "track::BgSuburban.tPerKm"
    double value;
};

// clang-format off
// Name and value are one: what the program has under this name.
#define RATE(constant) Rate{#constant, double(constant)}
#define OPTIONAL_RATE(constant) Rate{#constant, double((constant).value())}

const std::vector<Rate> Rates = {
    RATE(track::KmPerTurnout),
    RATE(track::AugmentationNorms.shrinkablePerKm),
    RATE(track::AugmentationNorms.unstablePerKm),
    RATE(track::AugmentationNorms.curvePerKm),
    RATE(track::AugmentationNorms.rainfallFromCm),
    RATE(track::AugmentationNorms.rainfallSpanCm),
    RATE(track::AugmentationNorms.rainfallMost),
    RATE(track::BgSuburban.tPerKm),  RATE(track::BgSuburban.tPerKmAndGmt),  RATE(track::BgSuburban.rPerKm),
    RATE(track::BgMachine.tPerKm),   RATE(track::BgMachine.tPerKmAndGmt),   RATE(track::BgMachine.rPerKm),
    OPTIONAL_RATE(track::BgMachine.rPerKmOnConcrete),
    RATE(track::BgManual.tPerKm),    RATE(track::BgManual.tPerKmAndGmt),    RATE(track::BgManual.rPerKm),
    OPTIONAL_RATE(track::BgManual.rPerKmOnConcrete),
    RATE(track::MetreGauge.tPerKm),  RATE(track::MetreGauge.tPerKmAndGmt),  RATE(track::MetreGauge.rPerKm),
    RATE(track::NarrowGauge.tPerKm), RATE(track::NarrowGauge.tPerKmAndGmt), RATE(track::NarrowGauge.rPerKm),
    RATE(track::NgMostTPerKm),
    OPTIONAL_RATE(yards::BgYards.machinePackedPerKm),
    RATE(yards::BgYards.manuallyPackedPerKm),
    RATE(yards::MgYards.manuallyPackedPerKm),
    RATE(yards::NgYards.manuallyPackedPerKm),
    RATE(yards::NonRunningTimes),
    RATE(yards::NonRunningOver),
    RATE(misc::MandaysPerMan),
    RATE(misc::DaysPerYear),
    RATE(misc::HotWeatherPerKm),
    RATE(misc::ColdWeatherPerKm),
    RATE(misc::RestDaysPerKeyman),
    RATE(misc::ShiftsPerStore),
    RATE(misc::MaxStoreLocations),
    RATE(site::TunnelPerMetre),
    RATE(site::BridgePerMetre),
    RATE(site::LongGirderPerMetre),
    RATE(site::BadFormationPerMetre),
    RATE(site::AveragedYears),
    RATE(summary::LeaveReserve),
    RATE(summary::RoundUpFromTenth),
};
// clang-format on

/// A row of the page's tables: | activity | norm | unit | source | [constant](../src/file#Lline) |
struct NormRow {
    std::string norm;
    std::string constant;
    std::string file;  ///< from the root of the repository
    std::size_t sourceLine = 0;
    int line = 0;  ///< of the page
};

std::vector<NormRow> normRows()
{
    static const std::regex link(R"(\[`([^`]+)`\]\(\.\./([^#)]+)#L([0-9]+)\))");
    std::vector<NormRow> rows;
    for (const docs::Row& row : docs::tableRows(docs::fileText("docs/norms.md"))) {
        std::smatch found;
        if (row.cells.size() == 5 && std::regex_match(row.cells[4], found, link))
            rows.push_back({row.cells[1], found[1], found[2], std::stoul(found[3]), row.line});
        else
            ADD_FAILURE() << "docs/norms.md:" << row.line << " is no row of five cells with a link to its constant";
    }
    return rows;
}

const Rate* rateOf(const std::string& constant)
{
    const auto rate = std::find_if(Rates.begin(), Rates.end(), [&](const Rate& r) { return r.constant == constant; });
    return rate == Rates.end() ? nullptr : &*rate;
}

/// The name that stands in the header: "BgSuburban" of "track::BgSuburban.tPerKm".
std::string definedName(const std::string& constant)
{
    const std::size_t from = constant.find("::") + 2;
    return constant.substr(from, constant.find('.') - from);
}

std::vector<std::string> linesOf(const std::string& file)
{
    std::vector<std::string> lines;
    std::istringstream text(docs::fileText(file));
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

TEST(NormsPage, GivesEveryRateAsTheProgramHasIt)
{
    for (const NormRow& row : normRows()) {
        SCOPED_TRACE("docs/norms.md:" + std::to_string(row.line));
        const Rate* rate = rateOf(row.constant);
        if (!rate) {
            ADD_FAILURE() << "there is no rate " << row.constant;
            continue;
        }
        double shown = 0.0;
        const auto [end, error] = std::from_chars(row.norm.data(), row.norm.data() + row.norm.size(), shown);
        EXPECT_TRUE(error == std::errc() && end == row.norm.data() + row.norm.size()) << row.norm << " is no number";
        EXPECT_EQ(shown, rate->value) << "of " << row.constant;
    }
}

TEST(NormsPage, PointsToTheLineThatHoldsTheRate)
{
    for (const NormRow& row : normRows()) {
        const std::vector<std::string> lines = linesOf(row.file);
        const std::regex definition("\\b" + definedName(row.constant) + "\\s*=");
        std::size_t holds = 0;
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (std::regex_search(lines[i], definition))
                holds = i + 1;
        EXPECT_EQ(row.sourceLine, holds) << "docs/norms.md:" << row.line << ": " << row.constant << " stands in line "
                                         << holds << " of " << row.file;
    }
}

TEST(NormsPage, LeavesNoRateOut)
{
    std::set<std::string> onPage;
    for (const NormRow& row : normRows())
        onPage.insert(row.constant);
    for (const Rate& rate : Rates)
        EXPECT_TRUE(onPage.contains(rate.constant)) << rate.constant << " is not on docs/norms.md";
}

// A rate is an `inline constexpr` of a header, and nothing else is: so each number of such a definition must be one of
// the rates above.
TEST(NormsPage, KnowsEveryRateOfTheHeaders)
{
    static const std::regex definition(R"(inline constexpr [^;]*;)");
    static const std::regex part(R"((\w+)\s*=\s*(\{[^}]*\}|[^,;]+))");
    static const std::regex comment(R"(//[^\n]*)");
    static const std::regex number(R"([0-9][0-9.]*F?|\b[A-Z]\w+ - [A-Z]\w+)");  // or worked out of two others
    std::map<std::string, long> inHeaders;
    const std::filesystem::path sources = std::filesystem::path(CREWMARK_ROOT) / "src";
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources)) {
        if (entry.path().extension() != ".h")
            continue;
        const std::string file = "src/" + entry.path().lexically_relative(sources).generic_string();
        const std::string text = std::regex_replace(docs::fileText(file), comment, "");
        for (std::sregex_iterator found(text.begin(), text.end(), definition), last; found != last; ++found) {
            const std::string one = found->str();
            for (std::sregex_iterator piece(one.begin(), one.end(), part); piece != last; ++piece) {
                const std::string values = (*piece)[2];
                inHeaders[(*piece)[1]] =
                    std::distance(std::sregex_iterator(values.begin(), values.end(), number), last);
            }
        }
    }
    std::map<std::string, long> known;
    for (const Rate& rate : Rates)
        ++known[definedName(rate.constant)];
    for (const auto& [name, count] : inHeaders)
        EXPECT_EQ(count, known[name]) << "numbers of " << name << " in its header, and rates of it in this test";
    EXPECT_EQ(inHeaders.size(), known.size());
}

}  // namespace
