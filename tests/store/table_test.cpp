#include "store/table.h"

#include <gtest/gtest.h>

#include "figures/run_time_error.h"

namespace store {
namespace {

/// Two fields, three records; "" and several words among the cells.
Table track()
{
    Table table("TR", {"LINE", "METHOD"});
    table.append({"UP", "Machine Packed"});
    table.append({"", "केसर"});
    table.append({"SL", ""});
    return table;
}

TEST(Table, HeadingsAreRowZeroAndTheMarginIsColumnZero)
{
    const Table table = track();
    EXPECT_EQ(table.name(), "TR");
    EXPECT_EQ(table.rows(), 4);     // headings + 3 records
    EXPECT_EQ(table.columns(), 3);  // margin + 2 fields

    const char* const cells[4][3] = {
        {"", "LINE", "METHOD"}, {"", "UP", "Machine Packed"}, {"", "", "केसर"}, {"", "SL", ""}};
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column)
            EXPECT_EQ(table.text(row, column), cells[row][column]) << "row " << row << ", column " << column;
}

TEST(Table, WithoutRecordsItStillHasHeadings)
{
    const Table table("CS", {"SEGNO"});
    EXPECT_EQ(table.rows(), 1);
    EXPECT_EQ(table.columns(), 2);
    EXPECT_EQ(table.text(0, 1), "SEGNO");
}

TEST(Table, NeverOpenedItHasNothing)
{
    EXPECT_EQ(Table().rows(), 0);
    EXPECT_EQ(Table().columns(), 0);
    EXPECT_EQ(Table("TR", {}).rows(), 0);
    EXPECT_EQ(Table("TR", {}).columns(), 0);
    EXPECT_EQ(Table("TR", {}).name(), "TR");
}

TEST(Table, RoomMadeBeforehandChangesNothing)
{
    Table table("TR", {"A", "B"});
    table.reserve(1000, 100);
    table.append({"1", "2"});
    EXPECT_EQ(table.rows(), 2);
    EXPECT_EQ(table.text(1, 2), "2");
}

struct Missing {
    const char* name;
    Table table;
    int row;
    int column;
    const char* message;
};

class TableSubscript : public testing::TestWithParam<Missing> {};

TEST_P(TableSubscript, SaysWhatIsMissing)
{
    const Missing& tested = GetParam();
    try {
        tested.table.text(tested.row, tested.column);
        FAIL() << "a cell outside the table was read";
    } catch (const figures::RunTimeError& error) {
        EXPECT_EQ(error.kind(), figures::ErrorKind::SubscriptOutOfRange);
        EXPECT_STREQ(error.what(), tested.message);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cells, TableSubscript, testing::Values(
    //      name            table             row  column  message
    Missing{"RowBelow",     track(),            4,   1, "Subscript out of range: row 4 of table TR is missing. Type the figures, or choose a data file that holds it."},
    Missing{"RowNegative",  track(),           -1,   1, "Subscript out of range: row -1 of table TR is missing. Type the figures, or choose a data file that holds it."},
    Missing{"ColumnBeyond", track(),            1,   3, "Subscript out of range: column 3 of table TR is missing. Type the figures, or choose a data file that holds it."},
    Missing{"ColumnNegative", track(),          1,  -1, "Subscript out of range: column -1 of table TR is missing. Type the figures, or choose a data file that holds it."},
    Missing{"MarginBelow",  track(),            4,   0, "Subscript out of range: row 4 of table TR is missing. Type the figures, or choose a data file that holds it."},
    Missing{"BothOutside",  track(),            9,   9, "Subscript out of range: row 9 of table TR is missing. Type the figures, or choose a data file that holds it."},
    Missing{"NoRecords",    Table("CS", {"A"}), 1,   1, "Subscript out of range: row 1 of table CS is missing. Type the figures, or choose a data file that holds it."},
    Missing{"NeverOpened",  Table("YD", {}),    1,   2, "Subscript out of range: row 1 of table YD is missing. Type the figures, or choose a data file that holds it."},
    Missing{"NotEvenHeadings", Table("YD", {}), 0,   1, "Subscript out of range: row 0 of table YD is missing. Type the figures, or choose a data file that holds it."}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

}  // namespace
}  // namespace store
