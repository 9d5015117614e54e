#include "store/reader_output.h"

#include <gtest/gtest.h>

#include "store/files.h"
#include "store/wire_output.h"

namespace store {
namespace {

const Asked AskedFor{.file = "x.mdb", .table = "TR"};
const std::string NoProperAnswer =
    "\"x.mdb\" could not be read: the program that reads data files gave no proper answer. Install Crewmark again.";

Reading parsed(const WireOutput& output)
{
    return parseReaderOutput(output.bytes(), AskedFor);
}

/// Two columns, two records, all of them there.
WireOutput whole()
{
    return WireOutput().headings({"LINE", "KMFROM"}).record({"UP", "12.5"}).record({"", "केसर"}).shortfall(2).end();
}

TEST(ReaderOutput, GivesTheTable)
{
    const Reading reading = parsed(whole());
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, "");
    EXPECT_EQ(reading.table.name(), "TR");
    EXPECT_EQ(gridOf(reading.table), (Grid{{"LINE", "KMFROM"}, {"UP", "12.5"}, {"", "केसर"}}));
}

TEST(ReaderOutput, TextsMayHoldAnyCharacter)
{
    const std::string odd("\0HRSXE\x7f\n\xc2\x80\xf4\x8f\xbf\xbf", 14);
    const Reading reading = parsed(WireOutput().headings({odd}).record({odd}).shortfall(1).end());
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(gridOf(reading.table), (Grid{{odd}, {odd}}));
}

TEST(ReaderOutput, ATableMayHaveNoRecords)
{
    const Reading reading = parsed(WireOutput().headings({"A"}).shortfall(0).end());
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.table.rows(), 1);
}

TEST(ReaderOutput, ARefusalTakesBackWhatCameBefore)
{
    const Reading reading = parsed(WireOutput().headings({"A"}).record({"1"}).failure(Refusal::Damaged).end());
    EXPECT_EQ(reading.reason, reasonFor(Refusal::Damaged, AskedFor));
    EXPECT_EQ(reading.notice, "");
    EXPECT_EQ(reading.table.rows(), 0);
    EXPECT_EQ(reading.table.name(), "TR");
}

TEST(ReaderOutput, CutAnywhereItIsNoAnswer)
{
    const std::string bytes = whole().bytes();
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const Reading reading = parseReaderOutput(std::string_view(bytes).substr(0, length), AskedFor);
        EXPECT_EQ(reading.reason, NoProperAnswer) << "cut to " << length << " of " << bytes.size() << " bytes";
        EXPECT_EQ(reading.table.rows(), 0) << "cut to " << length << " of " << bytes.size() << " bytes";
    }
}

TEST(ReaderOutput, MayHaveAllTheColumnsOfAnAccessTable)
{
    const WireOutput::Cells names(255, "N");
    EXPECT_EQ(parsed(WireOutput().headings(names).shortfall(0).end()).table.columns(), 256);  // and the margin
}

struct Nonsense {
    const char* name;
    WireOutput output;
};

class ReaderOutputNonsense : public testing::TestWithParam<Nonsense> {};

TEST_P(ReaderOutputNonsense, IsNoAnswer)
{
    const Reading reading = parsed(GetParam().output);
    EXPECT_EQ(reading.reason, NoProperAnswer);
    EXPECT_EQ(reading.notice, "");
    EXPECT_EQ(reading.table.rows(), 0);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bytes, ReaderOutputNonsense, testing::Values(
    Nonsense{"OnlyGreeting",       WireOutput()},
    Nonsense{"OnlyEnd",            WireOutput().end()},
    Nonsense{"SecondGreeting",     WireOutput().raw(wire::Greeting).headings({"A"}).shortfall(0).end()},
    Nonsense{"UnknownItem",        WireOutput().headings({"A"}).raw("Q").shortfall(0).end()},
    Nonsense{"NoShortfall",        WireOutput().headings({"A"}).record({"1"}).end()},
    Nonsense{"NoHeadings",         WireOutput().record({}).shortfall(0).end()},
    Nonsense{"ShortfallFirst",     WireOutput().shortfall(0).headings({"A"}).end()},
    Nonsense{"HeadingsTwice",      WireOutput().headings({"A"}).headings({"A"}).shortfall(0).end()},
    Nonsense{"ShortfallTwice",     WireOutput().headings({"A"}).shortfall(0).shortfall(0).end()},
    Nonsense{"RecordBehind",       WireOutput().headings({"A"}).shortfall(0).record({"1"}).end()},
    Nonsense{"RecordTooNarrow",    WireOutput().headings({"A", "B"}).record({"1"}).shortfall(1).end()},
    Nonsense{"RecordTooWide",      WireOutput().headings({"A"}).record({"1", "2"}).shortfall(1).end()},
    Nonsense{"BytesBehind",        WireOutput().headings({"A"}).shortfall(0).end().raw("E")},
    Nonsense{"NoColumns",          WireOutput().headings({}).shortfall(0).end()},
    Nonsense{"TooManyColumns",     WireOutput().headings(WireOutput::Cells(256, "N")).shortfall(0).end()},
    Nonsense{"EndlessColumns",     WireOutput().raw("H").number(0xFFFFFFFF).end()},
    Nonsense{"TextTooLong",        WireOutput().raw("H").number(1).number(100).raw("A").shortfall(0).end()},
    Nonsense{"EndlessText",        WireOutput().raw("H").number(1).number(0xFFFFFFFF).raw("A").shortfall(0).end()},
    Nonsense{"NeitherYesNorNo",    WireOutput().headings({"A"}).raw("S").number(0).raw({"\2\1\0", 3}).numbers({}).numbers({}).numbers({}).end()},
    Nonsense{"UnreadableBeyond",   WireOutput().headings({"A"}).shortfall(0, false, false, 0, {1}).end()},
    Nonsense{"UnreadableFarAway",  WireOutput().headings({"A"}).shortfall(0, false, false, 0, {0xFFFFFFFF}).end()},
    Nonsense{"EndlessUnreadable",  WireOutput().headings({"A"}).raw("S").number(0).raw({"\0\0\0", 3}).number(0).number(0).number(256).end()},
    Nonsense{"DamagedBeyond",      WireOutput().headings({"A"}).record({"1"}).shortfall(0, false, false, 0, {}, {1}).end()},
    Nonsense{"DamagedTwice",       WireOutput().headings({"A"}).record({"1"}).record({"2"}).shortfall(0, false, false, 0, {}, {1, 1}).end()},
    Nonsense{"EndlessDamaged",     WireOutput().headings({"A"}).raw("S").number(0).raw({"\0\0\0", 3}).number(0).number(0xFFFFFFFF).end()},
    Nonsense{"UnreadableTwice",    WireOutput().headings({"A"}).shortfall(0, false, false, 0, {0, 0}).end()},
    Nonsense{"HeadingNoUtf8",      WireOutput().headings({"A\xff"}).shortfall(0).end()},
    Nonsense{"CellNoUtf8",         WireOutput().headings({"A"}).record({"caf\xe9"}).shortfall(1).end()},
    Nonsense{"CellHalfUtf8",       WireOutput().headings({"A"}).record({"\xe0\xa4"}).shortfall(1).end()},
    Nonsense{"CellHalfUtf16",      WireOutput().headings({"A"}).record({"\xed\xa0\x80"}).shortfall(1).end()},
    Nonsense{"RefusedForNothing",  WireOutput().failure(Refusal{0}).end()},
    Nonsense{"RefusedByStore",     WireOutput().failure(Refusal::Died).end()},      // not for the reader to say
    Nonsense{"RefusedUnknown",     WireOutput().failure(Refusal{200}).end()},
    Nonsense{"RefusedTwice",       WireOutput().failure(Refusal::Empty).failure(Refusal::Empty).end()},
    Nonsense{"HeadingsAfterRefusal", WireOutput().failure(Refusal::Empty).headings({"A"}).end()},
    Nonsense{"RecordAfterRefusal", WireOutput().headings({"A"}).failure(Refusal::Empty).record({"1"}).end()}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(ReaderOutput, OfManyDamagedRecordsTheFirstAreNamed)
{
    WireOutput output;
    output.headings({"A"});
    for (int i = 0; i < 40; ++i)
        output.record({""});
    const std::vector<std::uint32_t> damaged{1, 4, 8, 9, 10, 20, 39};
    EXPECT_EQ(parsed(output.shortfall(40, false, false, 0, {}, damaged).end()).notice,
              "Records 2, 5, 9, 10, 11 and 2 more are damaged and shown empty.");
}

TEST(ReaderOutput, WhatTheScreenHasToAskIsToldApart)
{
    EXPECT_FALSE(parsed(whole()).isStale);
    EXPECT_TRUE(parsed(WireOutput().headings({"A"}).shortfall(0, false, false, 0, {}, {}, true).end()).isStale);
    EXPECT_FALSE(parsed(WireOutput().failure(Refusal::Damaged).end()).needsPermission);
    EXPECT_TRUE(parsed(WireOutput().failure(Refusal::Unconfined).end()).needsPermission);
}

TEST(ReaderOutput, OtherGreetingsAreNoAnswer)
{
    for (const std::string bytes : {"", "E", "crewmark-reader 2\nXE", "Segmentation fault\n"})
        EXPECT_EQ(parseReaderOutput(bytes, AskedFor).reason, NoProperAnswer) << bytes;
}

TEST(ReaderOutput, MayNotHaveMoreRecordsThanTheLimit)  // slow
{
    WireOutput output;
    output.headings({"A"});
    for (std::size_t i = 0; i < wire::MaxRecords; ++i)
        output.record({""});
    WireOutput more = output;
    EXPECT_EQ(parsed(output.shortfall(0).end()).table.rows(), 1'000'001);
    EXPECT_EQ(parsed(more.record({""}).shortfall(0).end()).reason, NoProperAnswer);
}

struct Short {
    const char* name;
    WireOutput end;  // what follows the headings "A", "B", "C" and three records
    const char* notice;
};

class ReaderOutputNotice : public testing::TestWithParam<Short> {};

TEST_P(ReaderOutputNotice, SaysWhatIsMissing)
{
    WireOutput output;
    output.headings({"A", "B", "C"}).record({"1", "", ""}).record({"2", "", ""}).record({"3", "", ""});
    output.raw(std::string_view(GetParam().end.bytes()).substr(wire::Greeting.size())).end();

    const Reading reading = parsed(output);
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, GetParam().notice);
    EXPECT_EQ(reading.table.rows(), 4);  // shown all the same
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Shortfalls, ReaderOutputNotice, testing::Values(
    //    name                                      said  lost   in page cells columns
    Short{"Nothing",        WireOutput().shortfall(    3, false, false,  0, {}),     ""},
    Short{"CountUnknown",   WireOutput().shortfall(    0, false, false,  0, {}),     ""},
    Short{"Fewer",          WireOutput().shortfall(   16, true,  false,  0, {}),     "The file says 16 records, 3 could be read: it may be damaged."},
    Short{"More",           WireOutput().shortfall(    1, false, false,  0, {}),     ""},  // the table's header may be behind
    Short{"LostButAllThere", WireOutput().shortfall(   3, true,  false,  0, {}),     "The file holds records that could not be read: it may be damaged."},
    Short{"MoreAndLost",    WireOutput().shortfall(    1, true,  false,  0, {}),     "The file holds records that could not be read: it may be damaged."},
    Short{"LostInPage",     WireOutput().shortfall(    1, true,  true,   0, {}),     "The file holds records that could not be read, and the file ends inside a page: it may be damaged."},
    Short{"LostOfUnknown",  WireOutput().shortfall(    0, true,  false,  0, {}),     "The file holds records that could not be read: it may be damaged."},
    Short{"InPage",         WireOutput().shortfall(    3, false, true,   0, {}),     "The file ends inside a page: it may be damaged."},
    Short{"FewerInPage",    WireOutput().shortfall(  200, true,  true,   0, {}),     "The file says 200 records, 3 could be read, and the file ends inside a page: it may be damaged."},
    Short{"OneCell",        WireOutput().shortfall(    3, false, false,  1, {}),     "1 cell could not be read and is shown empty: the file may be damaged."},
    Short{"TwoCells",       WireOutput().shortfall(    3, false, false,  2, {}),     "2 cells could not be read and are shown empty: the file may be damaged."},
    Short{"OneColumn",      WireOutput().shortfall(    3, false, false,  0, {1}),    "The column B is of a kind that cannot be read, and shown empty."},
    Short{"TwoColumns",     WireOutput().shortfall(    3, false, false,  0, {0, 2}), "The columns A, C are of a kind that cannot be read, and shown empty."},
    Short{"OneRecord",      WireOutput().shortfall(    3, false, false,  0, {}, {1}),    "Record 2 is damaged and shown empty."},
    Short{"TwoRecords",     WireOutput().shortfall(    3, false, false,  0, {}, {0, 2}), "Records 1, 3 are damaged and shown empty."},
    Short{"Changed",        WireOutput().shortfall(    3, false, false,  0, {}, {}, true), "The file was written to while it was read: import again."},
    Short{"CellAndColumn",  WireOutput().shortfall(    3, false, false,  1, {2}),    "1 cell could not be read and is shown empty: the file may be damaged. The column C is of a kind that cannot be read, and shown empty."}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

}  // namespace
}  // namespace store
