// Single bytes of a good file changed on purpose: what is shown all the same, and what is said of the rest.

#include <bit>
#include <cstring>
#include <fstream>

#include <gtest/gtest.h>

#include "store/data_file.h"
#include "store/files.h"

namespace store {
namespace {

constexpr std::size_t PageSize = 4096;

/// A data file in memory, to be changed byte by byte.
class Changed {
public:
    explicit Changed(const std::string& name) : m_name(name), m_bytes(bytesOf(dataFile(name))) {}

    Changed& set(std::size_t page, std::size_t offset, std::string_view bytes)
    {
        m_bytes.replace(page * PageSize + offset, bytes.size(), bytes);
        return *this;
    }
    Changed& clearFrom(std::size_t page)
    {
        std::fill(m_bytes.begin() + static_cast<std::ptrdiff_t>(page * PageSize), m_bytes.end(), '\x5a');
        return *this;
    }
    /// Exchanges the only place in the file that holds `one` for `other`.
    Changed& exchange(std::string_view one, std::string_view other)
    {
        const std::size_t at = m_bytes.find(one);
        if (at == std::string::npos || m_bytes.find(one, at + 1) != std::string::npos)
            throw std::runtime_error("the file does not hold these bytes just once");
        m_bytes.replace(at, one.size(), other);
        return *this;
    }
    /// Number of two bytes, low byte first.
    unsigned number(std::size_t page, std::size_t offset) const
    {
        const std::size_t at = page * PageSize + offset;
        return static_cast<unsigned char>(m_bytes[at]) | static_cast<unsigned char>(m_bytes[at + 1]) << 8;
    }

    Reading read() const
    {
        const Folder folder;
        const std::filesystem::path path = folder.path() / m_name;
        std::ofstream(path, std::ios::binary) << m_bytes;
        return DataFile().read(path, "TR");
    }

private:
    std::string m_name;
    std::string m_bytes;
};

/// The cells of a good file, with some of them empty.
Grid gridWithout(const std::string& name, const std::vector<std::pair<std::size_t, std::size_t>>& cells)
{
    Grid grid = gridOf(DataFile().read(dataFile(name), "TR").table);
    for (const auto& [row, column] : cells)
        grid.at(row).at(column) = "";
    return grid;
}

std::string bytesOfDouble(double value)
{
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

// column-types.mdb: table TR is defined on page 24. Its 11 columns follow behind 63 bytes, 25 bytes each: B, I, L, F,
// D, M, N, Y, T, O, W. Byte 0 of them is the kind, byte 16 the further properties.
constexpr std::size_t Definition = 24;
constexpr std::size_t CountOfRecords = 16;
constexpr std::size_t ColumnOfD = 63 + 4 * 25;
constexpr std::size_t ColumnOfO = 63 + 9 * 25;

TEST(DataFileDamage, NothingChangedNothingSaid)
{
    const Reading reading = Changed("column-types.mdb").read();
    EXPECT_EQ(reading.reason + reading.notice, "");
    EXPECT_EQ(gridOf(reading.table), gridWithout("column-types.mdb", {}));
}

TEST(DataFileDamage, ColumnsOfKindsThatAreNotReadAreNamed)
{
    const Reading reading = Changed("column-types.mdb")
                                .set(Definition, ColumnOfD, "\x12")  // an attachment
                                .set(Definition, ColumnOfO, "\x0b")  // a picture
                                .read();
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, "The columns D, O are of a kind that cannot be read, and shown empty.");
    EXPECT_EQ(gridOf(reading.table), gridWithout("column-types.mdb", {{1, 4}, {2, 4}, {3, 4}, {4, 4}, {1, 9}, {2, 9}}));
}

TEST(DataFileDamage, AValueThatIsNotStoredAsACalculatedOneIsACellThatCouldNotBeRead)
{
    const Reading reading = Changed("column-types.mdb").set(Definition, ColumnOfD + 16, "\xc0").read();
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, "4 cells could not be read and are shown empty: the file may be damaged.");
    EXPECT_EQ(gridOf(reading.table), gridWithout("column-types.mdb", {{1, 4}, {2, 4}, {3, 4}, {4, 4}}));
}

TEST(DataFileDamage, NumbersOf64BitsAreRead)
{
    constexpr std::size_t columnOfM = 63 + 5 * 25;  // Currency, which is such a number of ten thousandths
    const Reading reading = Changed("column-types.mdb").set(Definition, columnOfM, "\x13").read();
    EXPECT_EQ(reading.reason + reading.notice, "");
    const char* const expected[] = {"M", "125000", "-1", "9223372036854775", "5000", ""};
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(reading.table.text(row, 6), expected[row]);
}

// The beginning of the long memo is made a calculated text: 16 bytes of no meaning, the length of "UP", "UP".
TEST(DataFileDamage, ACalculatedTextIsRead)
{
    const std::string memo("a\0 \0l\0o\0n\0g\0 \0m\0e\0m\0o\0 \0", 24);
    const Reading reading = Changed("column-types.mdb")
                                .set(Definition, ColumnOfO + 16, "\xc0")
                                .exchange(memo, std::string(16, '\0') + std::string("\4\0\0\0U\0P\0", 8))
                                .read();
    EXPECT_EQ(reading.notice, "1 cell could not be read and is shown empty: the file may be damaged.");  // "line"
    EXPECT_EQ(reading.table.text(1, 10), "UP");
}

// The long memo: 3,012 characters are 6,024 bytes (0x1788), the first piece of which is place 0 of page 0x1a.
const std::string MemoHead("\x88\x17\x00\x00\x00\x1a\x00\x00", 8);

TEST(DataFileDamage, ALongTextWhosePiecesAreMissingIsACellThatCouldNotBeRead)
{
    const struct {
        const char* name;
        std::string head;
    } cases[] = {
        {"no such page", std::string("\x88\x17\x00\x00\x00\xff\xff\x00", 8)},
        {"no such place on the page", std::string("\x88\x17\x00\x00\xfe\x1a\x00\x00", 8)},
        {"no piece at all", std::string("\x88\x17\x00\x00\x00\x00\x00\x00", 8)},
        {"longer than its pieces", std::string("\x00\x20\x00\x00\x00\x1a\x00\x00", 8)},
        {"in the record, which is too short", std::string("\x88\x17\x00\x80\x00\x1a\x00\x00", 8)},
    };
    for (const auto& [name, head] : cases) {
        const Reading reading = Changed("column-types.mdb").exchange(MemoHead, head).read();
        EXPECT_EQ(reading.reason, "") << name;
        EXPECT_EQ(reading.notice, "1 cell could not be read and is shown empty: the file may be damaged.") << name;
        EXPECT_EQ(gridOf(reading.table), gridWithout("column-types.mdb", {{1, 9}})) << name;
    }
}

TEST(DataFileDamage, ANumberThatIsNoneIsACellThatCouldNotBeRead)
{
    const std::string notANumber = bytesOfDouble(std::bit_cast<double>(0x7ff8000000000000));
    const Reading reading = Changed("column-types.mdb").exchange(bytesOfDouble(1e15), notANumber).read();
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, "1 cell could not be read and is shown empty: the file may be damaged.");
    EXPECT_EQ(gridOf(reading.table), gridWithout("column-types.mdb", {{3, 4}}));
}

TEST(DataFileDamage, TheTablesOwnCountIsCompared)
{
    const struct {
        char count;
        const char* notice;
    } cases[] = {
        {5, ""},
        {0, ""},  // not known: a file that was not closed properly
        {7, "The file says 7 records, 5 could be read: it may be damaged."},
        {4, ""},  // records that were added without the count
        {1, ""},
    };
    for (const auto& [count, notice] : cases) {
        const Reading reading =
            Changed("column-types.mdb").set(Definition, CountOfRecords, std::string(1, count)).read();
        EXPECT_EQ(reading.reason, "");
        EXPECT_EQ(reading.notice, notice);
        EXPECT_EQ(reading.table.rows(), 6);  // headings + 5 records
    }
}

// records-200.mdb: TR is defined on page 24, and its first records lie on page 26. Bytes 12 and 13 of such a page count
// its places, the place of record n on the page stands at byte 14 + 2 n.
constexpr std::size_t FirstRecords = 26;

TEST(DataFileDamage, APlaceOutsideItsPageIsALostRecord)
{
    Changed file("records-200.mdb");
    file.set(FirstRecords, 14 + 2 * 3, "\xff\x1f");  // the fourth begins behind the page's end, where the fifth ends
    const Reading counted = file.read();
    EXPECT_EQ(counted.notice, "The file says 200 records, 198 could be read: it may be damaged.");
    EXPECT_EQ(counted.table.text(3, 1), "3");
    EXPECT_EQ(counted.table.text(4, 1), "6");

    const Reading uncounted = file.set(Definition, CountOfRecords, std::string(4, '\0')).read();
    EXPECT_EQ(uncounted.notice, "The file holds records that could not be read: it may be damaged.");
    EXPECT_EQ(uncounted.table.rows(), 199);  // headings + 198
}

TEST(DataFileDamage, AFileThatLostItsSignatureIsReadAllTheSame)
{
    const Reading reading = Changed("records-200.mdb").set(0, 4, "***************").read();
    EXPECT_EQ(reading.reason + reading.notice, "");
    EXPECT_EQ(reading.table.rows(), 201);
}

// grown-records.mdb: TR's first page is 26; its records have moved and left pointers, page and place in four bytes.
TEST(DataFileDamage, APointerInACircleIsALostRecord)
{
    Changed file("grown-records.mdb");
    const unsigned place = file.number(FirstRecords, 14 + 2 * 9);  // of the tenth record
    ASSERT_EQ(place & 0xE000, 0x4000U) << "not a pointer";
    file.set(FirstRecords, place & 0x1FFF, std::string("\x09\x1a\x00\x00", 4));  // place 9 of page 26: itself
    const Reading reading = file.read();
    EXPECT_EQ(reading.notice, "The file says 60 records, 59 could be read: it may be damaged.");
    EXPECT_EQ(reading.table.text(9, 1), "9");
    EXPECT_EQ(reading.table.text(10, 1), "11");
}

TEST(DataFileDamage, APointerIntoAnotherTableIsALostRecord)
{
    Changed file("grown-records.mdb");
    const unsigned place = file.number(FirstRecords, 14 + 2 * 9);
    file.set(FirstRecords, place & 0x1FFF, std::string("\x00\x0e\x00\x00", 4));  // place 0 of page 14: the catalogue's
    EXPECT_EQ(file.read().notice, "The file says 60 records, 59 could be read: it may be damaged.");
}

TEST(DataFileDamage, OnlyAFileOfAccess2007IsEncryptedUnderAPassword)
{
    const std::string otherKey = "\x01\x02\x03\x04";
    EXPECT_EQ(Changed("format-2007.accdb").set(0, 0x3e, otherKey).clearFrom(1).read().reason,
              "\"format-2007.accdb\" is encrypted under a password. Remove the password in Access, then choose the "
              "file again.");
    EXPECT_EQ(
        Changed("format-2007.accdb").clearFrom(1).read().reason,
        "\"format-2007.accdb\" is damaged: its table \"TR\" cannot be read. Use another copy of the file, or type "
        "the figures.");
    EXPECT_EQ(Changed("encoded.mdb").clearFrom(1).read().reason,
              "\"encoded.mdb\" is damaged: its table \"TR\" cannot be read. Use another copy of the file, or type the "
              "figures.");
}

/// What must be told of a small damage that shows nowhere but in the rules that the file breaks.
struct Fault {
    const char* name;
    const char* file;
    const char* table;
    int rows;  // with the headings; 0: refused
    const char* said;
};

class DataFileFault : public testing::TestWithParam<Fault> {};

TEST_P(DataFileFault, IsTold)
{
    const Fault& tested = GetParam();
    const Reading reading = DataFile().read(dataFile("faults") / tested.file, tested.table);
    EXPECT_EQ(reading.reason + reading.notice, tested.said);
    EXPECT_EQ(reading.reason.empty(), tested.rows > 0);
    EXPECT_EQ(reading.table.rows(), tested.rows);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, DataFileFault, testing::Values(
    // A place that is wrong spoils the record before it, too: one ends where the other begins.
    Fault{"RowPlace",         "row-place.mdb",             "CS",  6, "Records 1, 2 are damaged and shown empty."},
    Fault{"RowCount",         "row-count-tr.mdb",          "TR",  6, "Records 2, 3 are damaged and shown empty."},
    Fault{"TailGarbage",      "tail-garbage.mdb",          "CS",  1, "The file says 2 records, 0 could be read: it may be damaged."},
    Fault{"NoTexts",          "definition-no-texts.mdb",   "TR",  0, "\"definition-no-texts.mdb\" is damaged: its table \"TR\" cannot be read. Use another copy of the file, or type the figures."},
    Fault{"CutCountUnknown",  "cut-count0.mdb",            "TR", 71, "The file holds records that could not be read: it may be damaged."},
    Fault{"CutBeforeThem",    "count0-cut-27.mdb",         "TR",  1, "The file holds records that could not be read: it may be damaged."},
    Fault{"WideDefinition",   "wide-definition.mdb",       "TR", 13, ""},
    Fault{"DefinitionZeroed", "wide-definition-zeroed.mdb", "TR", 0, "\"wide-definition-zeroed.mdb\" is damaged: its table \"TR\" cannot be read. Use another copy of the file, or type the figures."}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(DataFileDamage, WhatIsSoundInADamagedTableIsShown)
{
    const Grid grid = gridOf(DataFile().read(dataFile("faults") / "row-count-tr.mdb", "TR").table);
    Grid expected = expectedGrid("1-ambapur", "TR");
    for (const std::size_t row : {2, 3})
        std::fill(expected[row].begin(), expected[row].end(), "");
    EXPECT_EQ(grid, expected);
}

// In the definition's head: the most columns and variable columns at bytes 41 and 43, the columns at 45, the indexes at
// 51. In a column's entry: its number at byte 5, its place among the variable ones at 7, in the fixed part at 21.
TEST(DataFileDamage, ADefinitionThatBreaksARuleIsRefused)
{
    constexpr std::size_t columnOfI = 63 + 1 * 25;
    constexpr std::size_t columnOfT = 63 + 8 * 25;
    const struct {
        const char* name;
        std::size_t offset;
        std::string bytes;
    } cases[] = {
        {"no definition page", 0, "\x01"},
        {"a continuation that is none", 4, std::string("\x1a\x00\x00\x00", 4)},  // with the next
        {"fewer columns possible than there are", 41, std::string("\x0a\x00", 2)},
        {"fewer variable columns than there are", 43, std::string("\x02\x00", 2)},
        {"no columns", 45, std::string("\x00\x00", 2)},
        {"too many columns", 45, std::string("\x00\x01", 2)},
        {"more columns than are defined", 45, std::string("\x0c\x00", 2)},
        {"indexes that are not there", 51, std::string("\x01\x00\x00\x00", 4)},
        {"indexes without end", 51, std::string("\xff\xff\xff\xff", 4)},
        {"a map where there is no place", 55, "\x63"},
        {"a map on a page that is not there", 56, "\xff\xff\xff"},
        {"a number twice", columnOfI + 5, std::string("\x00\x00", 2)},
        {"a number beyond the maximum", columnOfI + 5, std::string("\x0b\x00", 2)},
        {"a fixed place twice", columnOfI + 21, std::string("\x00\x00", 2)},
        {"a fixed place beyond the page", columnOfI + 21, std::string("\x00\x10", 2)},
        {"a variable place beyond the maximum", columnOfT + 7, std::string("\x03\x00", 2)},
        {"a variable place twice", columnOfT + 7, std::string("\x02\x00", 2)},
        {"a name without a letter", 63 + 11 * 25, std::string("\x00\x00", 2)},
        {"a name too long", 63 + 11 * 25, std::string("\x82\x00", 2)},
    };
    for (const auto& [name, offset, bytes] : cases) {
        Changed file("column-types.mdb");
        file.set(Definition, offset, bytes);
        if (offset == 4)  // so that it is asked for
            file.set(Definition, 51, std::string("\xa0\x00\x00\x00", 4));
        EXPECT_EQ(file.read().reason,
                  "\"column-types.mdb\" is damaged: its table \"TR\" cannot be read. Use another copy of the file, or "
                  "type the figures.")
            << name;
    }
}

// The map of the pages of TR in records-200.mdb is on page 27, behind its 4 bytes a bit for each page of the file:
// records lie on pages 26 and 28 to 32.
TEST(DataFileDamage, APageThatIsNotTheTablesIsALostRecord)
{
    constexpr std::size_t map = 27;
    const std::string lost = "The file holds records that could not be read: it may be damaged.";
    Changed file("records-200.mdb");
    file.set(Definition, CountOfRecords, std::string(4, '\0'));
    ASSERT_EQ(file.number(map, 4 + 3), 0x01F4U);  // bits 2, 4 to 7 and 8, counted from page 24
    EXPECT_EQ(file.read().notice, "");
    EXPECT_EQ(Changed(file).set(28, 0, std::string(1, '\0')).read().notice, lost);  // no page of records any more
    EXPECT_EQ(Changed(file).set(28, 4, "\x02").read().notice, lost);                // of the catalogue
    EXPECT_EQ(Changed(file).set(map, 4 + 20, "\x01").read().notice, lost);          // page 160: beyond the file
    EXPECT_EQ(Changed(file).set(map, 0, "\x01").read().notice, lost);               // no map any more
    // Pages that hold an index or long texts of this table hold no records.
    EXPECT_EQ(Changed(file).set(28, 0, "\x04").read().notice, "");
    EXPECT_EQ(Changed(file).set(28, 4, "LVAL").read().notice, "");
}

// In records-200.mdb the entries of the catalogue lie on page 14; the last one is that of TR.
constexpr std::size_t Catalog = 14;

TEST(DataFileDamage, ATableWhoseEntryWasLostIsNotCalledMissing)
{
    Changed file("records-200.mdb");
    const unsigned entries = file.number(Catalog, 12);
    ASSERT_EQ(entries, 19U);
    file.set(Catalog, 14 + 2 * (entries - 1), "\xff\x1f");
    EXPECT_EQ(file.read().reason,
              "\"records-200.mdb\" is damaged: its table \"TR\" cannot be read. Use another copy of "
              "the file, or type the figures.");
}

}  // namespace
}  // namespace store
