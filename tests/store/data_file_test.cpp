// Real data files through the real reader program. What each file of tests/data must give stands in its README.

#include "store/data_file.h"

#include <chrono>
#include <numeric>

#include <gtest/gtest.h>

#include "store/files.h"

namespace store {
namespace {

Reading read(const std::filesystem::path& path, const std::string& table)
{
    return DataFile().read(path, table);
}

void expectOpenWithoutNotice(const Reading& reading)
{
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, "");
}

std::vector<std::string> columnOf(const Table& table, int column)
{
    std::vector<std::string> texts;
    for (int row = 1; row < table.rows(); ++row)
        texts.emplace_back(table.text(row, column));
    return texts;
}

std::vector<std::string> numbers(int first, int last)
{
    std::vector<std::string> texts;
    for (int number = first; number <= last; ++number)
        texts.push_back(std::to_string(number));
    return texts;
}

TEST(DataFile, ReadsEveryTableOfTheSamples)
{
    for (const char* name : {"1-ambapur", "2-eklahra", "3-jamunia", "4-mandar-hill", "5-parasnath-ghat", "blank"}) {
        for (const char* table : AllTables) {
            SCOPED_TRACE(std::string(name) + ", " + table);
            const Reading reading = read(sample(std::string(name) + ".mdb"), table);
            expectOpenWithoutNotice(reading);
            EXPECT_EQ(reading.table.name(), table);
            EXPECT_EQ(gridOf(reading.table), expectedGrid(name, table));
        }
    }
}

TEST(DataFile, ReadsTheSameFromEveryFormat)
{
    for (const char* name : {"format-2003.mdb", "format-2007.accdb", "encoded.mdb"}) {
        for (const char* table : AllTables) {
            SCOPED_TRACE(std::string(name) + ", " + table);
            const Reading reading = read(dataFile(name), table);
            expectOpenWithoutNotice(reading);
            EXPECT_EQ(gridOf(reading.table), expectedGrid("1-ambapur", table));
        }
    }
}

TEST(DataFile, ShowsEveryKindOfColumnAsTheUserSeesIt)
{
    const std::string longMemo = "a long memo " + std::string(3000, 'x');
    // clang-format off
    const Grid expected{
        {"B",   "I",     "L",           "F",            "D",                    "M",                 "N",             "Y",     "T",                "O",      "W"},
        {"7",   "-12",   "123456",      "23.7",         "0.1",                  "12.5",              "1.25",          "True",  "Kesar केसर",       longMemo, "2008-03-31"},
        {"200", "32767", "-2147483648", "0.3",          "1e-07",                "-0.0001",           "-3.125",        "False", "tab and \"quotes\"", "line", "2008-03-31 14:05:09"},
        {"0",   "0",     "0",           "1.677722e+07", "1e+15",                "922337203685.4775", "0",             "True",  "  blanks kept  ",  "",       "06:00:00"},
        {"1",   "1",     "1",           "1e-05",        "1.23456789012346e+17", "0.5",               "999999999.999", "False", "₹ 500",            "",       "00:00:00"},
        {"",    "",      "",            "",             "",                     "",                  "",              "False", "",                 "",       ""}};
    // clang-format on
    const Reading reading = read(dataFile("column-types.mdb"), "TR");
    expectOpenWithoutNotice(reading);
    EXPECT_EQ(gridOf(reading.table), expected);
}

struct Counted {
    const char* name;
    const char* file;
    int records;
    int columns;
    const char* segments;  // cell (1, 2), where the import looks for the count
};

class DataFileCount : public testing::TestWithParam<Counted> {};

TEST_P(DataFileCount, AllRecordsAreThere)
{
    const Counted& tested = GetParam();
    const Reading reading = read(dataFile(tested.file), "TR");
    expectOpenWithoutNotice(reading);
    EXPECT_EQ(reading.table.rows(), tested.records + 1);
    EXPECT_EQ(reading.table.columns(), tested.columns + 1);
    EXPECT_EQ(reading.table.text(1, 2), tested.segments);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, DataFileCount, testing::Values(
    //      name           file                      records columns segments
    Counted{"R200",         "records-200.mdb",            200,    13, "200"},
    Counted{"Many",         "many-records.mdb",         20000,    13, "16"},
    Counted{"Above",        "count-above-records.mdb",      3,    13, "5"},
    Counted{"Below",        "count-below-records.mdb",      6,    13, "2"},
    Counted{"AboveSixteen", "count-above-16.mdb",          18,    13, "20"},
    Counted{"Zero",         "count-zero.mdb",               3,    13, "0"},
    Counted{"Narrow",       "narrow-tables.mdb",            1,     6, "1"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(DataFile, DeletedRecordsAreGone)
{
    const Reading reading = read(dataFile("deleted-records.mdb"), "TR");
    expectOpenWithoutNotice(reading);
    EXPECT_EQ(columnOf(reading.table, 3), (std::vector<std::string>{"1", "3", "4", "6"}));
}

TEST(DataFile, RecordsThatOutgrewTheirPlaceKeepTheirOrder)
{
    const Reading reading = read(dataFile("grown-records.mdb"), "TR");
    expectOpenWithoutNotice(reading);
    EXPECT_EQ(columnOf(reading.table, 1), numbers(1, 60));
    for (const std::string& method : columnOf(reading.table, 13))
        EXPECT_TRUE(method == "Machine Packed" || method == "Manually Packed") << method;
}

TEST(DataFile, MovedColumnsStandWhereTheyWereMovedTo)
{
    const Reading reading = read(dataFile("moved-columns.mdb"), "TR");
    expectOpenWithoutNotice(reading);
    ASSERT_EQ(reading.table.rows(), 4);
    const Grid grid = gridOf(reading.table);
    const std::vector<std::string> headings{"ID",     "NSEG",     "SEGNO",   "LINE", "KMFROM", "KMTO",  "EXTRAKM",
                                            "CONCKM", "CONCTOUT", "TOTTOUT", "GMT",  "LWRKM",  "METHOD"};
    EXPECT_EQ(grid[0], headings);
    EXPECT_EQ(grid[1][12], "Machine Packed");
    EXPECT_EQ(grid[3][12], "Manually Packed");
}

TEST(DataFile, RecordsOfManyPagesKeepTheirOrder)
{
    const Reading reading = read(dataFile("many-records.mdb"), "TR");
    expectOpenWithoutNotice(reading);
    EXPECT_EQ(columnOf(reading.table, 1), numbers(1, 20000));
}

TEST(DataFile, EmptyTablesHaveTheirHeadings)
{
    for (const char* table : AllTables) {
        SCOPED_TRACE(table);
        const Reading reading = read(dataFile("empty-tables.mdb"), table);
        expectOpenWithoutNotice(reading);
        EXPECT_EQ(reading.table.rows(), 1);
        EXPECT_EQ(gridOf(reading.table)[0], expectedGrid("1-ambapur", table)[0]);
    }
}

// Not the tables of the Sr SE, but those of Access itself in the files that they were made from: nothing of what Access
// writes is taken for damage.
TEST(DataFile, TablesOfAccessItselfKeepTheRules)
{
    const struct {
        const char* file;
        const char* table;
        int records;
    } tables[] = {
        {"format-2003.mdb", "MSysObjects", 29},
        {"format-2007.accdb", "MSysObjects", 39},
        {"format-2003.mdb", "MSysACEs", 97},
        {"format-2007.accdb", "MSysACEs", 127},
        {"format-2003.mdb", "MSysAccessStorage", 23},
        {"format-2007.accdb", "MSysAccessStorage", 23},
        {"format-2003.mdb", "MSysNavPaneObjectIDs", 22},
        {"format-2007.accdb", "MSysNavPaneObjectIDs", 19},
        {"format-2003.mdb", "MSysNavPaneGroups", 9},
        {"format-2007.accdb", "MSysNavPaneGroups", 9},
    };
    for (const auto& [file, table, records] : tables) {
        const Reading reading = read(dataFile(file), table);
        EXPECT_EQ(reading.reason, "") << file << ", " << table;
        EXPECT_EQ(reading.notice.find("damaged"), std::string::npos) << file << ", " << table << ": " << reading.notice;
        EXPECT_EQ(reading.table.rows(), records + 1) << file << ", " << table;
    }
}

TEST(DataFile, CapitalsInTheTablesNameDoNotMatter)
{
    EXPECT_EQ(gridOf(read(sample("1-ambapur.mdb"), "tr").table), expectedGrid("1-ambapur", "TR"));
}

struct Refused {
    const char* name;
    const char* file;
    const char* table;
    const char* reason;
};

class DataFileRefusal : public testing::TestWithParam<Refused> {};

TEST_P(DataFileRefusal, NamesTheFileAndWhatToDo)
{
    const Refused& tested = GetParam();
    const Reading reading = read(dataFile(tested.file), tested.table);
    EXPECT_EQ(reading.reason, tested.reason);
    EXPECT_EQ(reading.notice, "");
    EXPECT_EQ(reading.table.rows(), 0);
    EXPECT_EQ(reading.table.columns(), 0);
    EXPECT_EQ(reading.table.name(), tested.table);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, DataFileRefusal, testing::Values(
    Refused{"Missing",       "no-such-file.mdb",            "TR", "There is no file \"no-such-file.mdb\". Choose the .mdb file of the Sr SE."},
    Refused{"MissingFolder", "no-such-folder/x.mdb",        "TR", "There is no file \"x.mdb\". Choose the .mdb file of the Sr SE."},
    Refused{"FileAsFolder",  "blank.mdb/../README.md/x.mdb", "TR", "There is no file \"x.mdb\". Choose the .mdb file of the Sr SE."},
    Refused{"NoBytes",       "damaged-no-bytes.mdb",        "TR", "\"damaged-no-bytes.mdb\" is not an Access data file: it is empty. Choose the .mdb file of the Sr SE."},
    Refused{"Text",          "damaged-text.mdb",            "TR", "\"damaged-text.mdb\" is not an Access data file. Choose the .mdb file of the Sr SE."},
    Refused{"LongerText",    "README.md",                   "TR", "\"README.md\" is not an Access data file. Choose the .mdb file of the Sr SE."},
    Refused{"HeaderOnly",    "damaged-header-only.mdb",     "TR", "\"damaged-header-only.mdb\" is damaged: it ends after its header. Use another copy of the file, or type the figures."},
    Refused{"HalfCS",        "damaged-half.mdb",            "CS", "\"damaged-half.mdb\" is damaged: its table \"CS\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"HalfYD",        "damaged-half.mdb",            "YD", "\"damaged-half.mdb\" is damaged: its table \"YD\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"HalfM1",        "damaged-half.mdb",            "M1", "\"damaged-half.mdb\" is damaged: its table \"M1\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"HalfM2",        "damaged-half.mdb",            "M2", "\"damaged-half.mdb\" is damaged: its table \"M2\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"HalfS1",        "damaged-half.mdb",            "S1", "\"damaged-half.mdb\" is damaged: its table \"S1\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"HalfS2",        "damaged-half.mdb",            "S2", "\"damaged-half.mdb\" is damaged: its table \"S2\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"BadMap",        "damaged-kills-reader-1.mdb",  "TR", "\"damaged-kills-reader-1.mdb\" is damaged: its table \"TR\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"EmptyMap",      "damaged-kills-reader-2.mdb",  "TR", "\"damaged-kills-reader-2.mdb\" is damaged: its table \"TR\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"Endless",       "damaged-endless.mdb",         "TR", "\"damaged-endless.mdb\" is damaged: its table \"TR\" cannot be read. Use another copy of the file, or type the figures."},
    Refused{"NoTR",          "no-tables.mdb",               "TR", "\"no-tables.mdb\" holds no table \"TR\". Choose the .mdb file of the Sr SE."},
    Refused{"NoS2",          "no-tables.mdb",               "S2", "\"no-tables.mdb\" holds no table \"S2\". Choose the .mdb file of the Sr SE."},
    Refused{"NoTableName",   "records-200.mdb",             "",   "\"records-200.mdb\" holds no table \"\". Choose the .mdb file of the Sr SE."},
    Refused{"OtherTable",    "records-200.mdb",             "TRX", "\"records-200.mdb\" holds no table \"TRX\". Choose the .mdb file of the Sr SE."}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

struct Cut {
    const char* name;
    const char* file;
    int records;
    const char* notice;
};

class DataFileNotice : public testing::TestWithParam<Cut> {};

TEST_P(DataFileNotice, ShowsWhatCouldBeReadAndSaysWhatIsMissing)
{
    const Cut& tested = GetParam();
    const Reading reading = read(dataFile(tested.file), "TR");
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, tested.notice);
    EXPECT_EQ(columnOf(reading.table, 1), numbers(1, tested.records));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, DataFileNotice, testing::Values(
    //  name           file                             records  notice
    Cut{"Half",         "damaged-half.mdb",                   0, "The file says 5 records, 0 could be read: it may be damaged."},
    Cut{"BetweenPages", "damaged-cut-between-pages.mdb",    105, "The file says 200 records, 105 could be read: it may be damaged."}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// A page holds its records from its end to its front. Of the page of records 106 to 140 only the first 1,000 bytes are
// left: 140 begins at byte 154 and 134 ends at byte 942 (112 bytes each, 114 with "SL"), 133 would end at byte 1,054.
TEST(DataFile, CutInsideAPageItShowsTheRecordsThatAreWhole)
{
    const Reading reading = read(dataFile("damaged-cut-in-page.mdb"), "TR");
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice,
              "The file says 200 records, 112 could be read, and the file ends inside a page: it may be damaged.");

    std::vector<std::string> expected = numbers(1, 105);
    for (const std::string& number : numbers(134, 140))
        expected.push_back(number);
    EXPECT_EQ(columnOf(reading.table, 1), expected);
}

TEST(DataFile, ReadingChangesNothing)
{
    const Folder folder;
    const std::filesystem::path copy = folder.path() / "copy.mdb";
    std::filesystem::copy_file(sample("1-ambapur.mdb"), copy);
    const std::string bytes = bytesOf(copy);
    const auto time = std::filesystem::last_write_time(copy);

    for (const char* table : AllTables)
        expectOpenWithoutNotice(read(copy, table));

    EXPECT_EQ(bytesOf(copy), bytes);
    EXPECT_EQ(std::filesystem::last_write_time(copy), time);
    const std::filesystem::directory_iterator files(folder.path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "something was left beside the file";
}

TEST(DataFile, AReadOnlyFileInAReadOnlyFolderIsRead)
{
    const Folder folder;
    const std::filesystem::path copy = folder.path() / "copy.mdb";
    std::filesystem::copy_file(sample("1-ambapur.mdb"), copy);
    std::filesystem::permissions(copy, std::filesystem::perms::owner_read);
    std::filesystem::permissions(folder.path(),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);

    expectOpenWithoutNotice(read(copy, "TR"));
    std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace store
