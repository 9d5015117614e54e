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
                                .set(Definition, ColumnOfD, "\x13")  // a whole number of 64 bits
                                .set(Definition, ColumnOfO, "\x0b")  // a picture
                                .read();
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, "The columns D, O are of a kind that cannot be read, and shown empty.");
    EXPECT_EQ(gridOf(reading.table), gridWithout("column-types.mdb", {{1, 4}, {2, 4}, {3, 4}, {4, 4}, {1, 9}, {2, 9}}));
}

TEST(DataFileDamage, CalculatedColumnsAreNamed)
{
    const Reading reading = Changed("column-types.mdb").set(Definition, ColumnOfD + 16, "\xc0").read();
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, "The column D is of a kind that cannot be read, and shown empty.");
    EXPECT_EQ(gridOf(reading.table), gridWithout("column-types.mdb", {{1, 4}, {2, 4}, {3, 4}, {4, 4}}));
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
        {4, "The file says 4 records, 5 could be read: it may be damaged."},
        {1, "The file says 1 record, 5 could be read: it may be damaged."},
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
