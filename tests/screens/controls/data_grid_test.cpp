#include "screens/controls/data_grid.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "figures/run_time_error.h"

using controls::DataGrid;

namespace {

store::Table segments(int records)
{
    store::Table table("TR", {"SEGNO", "LINE", "KMFROM"});
    for (int i = 1; i <= records; ++i) {
        const std::string number = std::to_string(i);
        table.append({number, i % 2 ? "UP" : "DN", "212.4"});
    }
    return table;
}

class Grid : public testing::Test {
protected:
    std::string errorOf(int row, int column)
    {
        try {
            grid.TextMatrix(row, column);
        } catch (const figures::RunTimeError& error) {
            EXPECT_EQ(error.kind(), figures::ErrorKind::SubscriptOutOfRange);
            return error.what();
        }
        return "none";
    }

    void select(int row, int column)
    {
        grid.selectionModel()->select(grid.model()->index(row, column), QItemSelectionModel::Select);
    }

    std::string copied()
    {
        QGuiApplication::clipboard()->setText("before");
        QTest::keySequence(&grid, QKeySequence::Copy);
        return QGuiApplication::clipboard()->text().toStdString();
    }

    DataGrid grid{"TrGrid", 16, 13};
};

TEST_F(Grid, TextMatrixCountsHeadingsAsRowZeroAndTheMarginAsColumnZero)
{
    grid.setTable(segments(2));
    EXPECT_EQ(grid.TextMatrix(0, 1), "SEGNO");
    EXPECT_EQ(grid.TextMatrix(0, 3), "KMFROM");
    EXPECT_EQ(grid.TextMatrix(1, 1), "1");
    EXPECT_EQ(grid.TextMatrix(2, 2), "DN");
    EXPECT_EQ(grid.TextMatrix(0, 0) + grid.TextMatrix(2, 0), "");
}

TEST_F(Grid, ACellOutsideIsASubscriptErrorThatNamesWhatIsMissing)
{
    grid.setTable(segments(2));
    EXPECT_EQ(
        errorOf(3, 1),
        "Subscript out of range: row 3 of table TR is missing. Type the figures, or choose a data file that holds it.");
    EXPECT_EQ(errorOf(1, 4), "Subscript out of range: column 4 of table TR is missing. Type the figures, or choose a "
                             "data file that holds it.");
    EXPECT_EQ(errorOf(-1, 1), "Subscript out of range: row -1 of table TR is missing. Type the figures, or choose a "
                              "data file that holds it.");
}

TEST_F(Grid, ShowsTheHeadingsAndNumbersTheRecords)
{
    grid.setTable(segments(2));
    ASSERT_EQ(grid.model()->rowCount(), 2);
    ASSERT_EQ(grid.model()->columnCount(), 3);
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal).toString(), "LINE");
    EXPECT_EQ(grid.model()->headerData(1, Qt::Vertical).toString(), "2");
    EXPECT_EQ(grid.model()->index(1, 1).data().toString(), "DN");
}

TEST_F(Grid, IsThereToReadOnly)
{
    grid.setTable(segments(1));
    grid.show();
    grid.setCurrentIndex(grid.model()->index(0, 0));
    QTest::keyClicks(&grid, "9");
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.currentIndex()).center());
    EXPECT_EQ(grid.TextMatrix(1, 1), "1");
    EXPECT_FALSE(grid.model()->flags(grid.currentIndex()) & Qt::ItemIsEditable);
}

TEST_F(Grid, TabLeavesItForTheNextControl)
{
    EXPECT_FALSE(grid.tabKeyNavigation());
}

TEST_F(Grid, CopiesABlockInASpreadsheetsForm)
{
    grid.setTable(segments(3));
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 3; ++column)
            select(row, column);
    EXPECT_EQ(copied(), "1\tUP\t212.4\n2\tDN\t212.4\n");
}

TEST_F(Grid, CopiesScatteredCellsInTheirPlaces)
{
    grid.setTable(segments(3));
    select(0, 0);
    select(2, 1);
    EXPECT_EQ(copied(), "1\t\n\t\n\tUP\n");
}

TEST_F(Grid, CopiesOneCell)
{
    grid.setTable(segments(3));
    select(1, 1);
    EXPECT_EQ(copied(), "DN\n");
}

TEST_F(Grid, WithoutASelectionTheClipboardIsLeftAlone)
{
    grid.setTable(segments(3));
    EXPECT_EQ(copied(), "before");
}

TEST_F(Grid, HoldsTwentyThousandRecordsInTheHeightOfAFew)
{
    grid.setTable(segments(20'000));
    EXPECT_EQ(grid.model()->rowCount(), 20'000);
    EXPECT_EQ(grid.TextMatrix(20'000, 1), "20000");
    EXPECT_EQ(errorOf(20'001, 1), "Subscript out of range: row 20001 of table TR is missing. Type the figures, or "
                                  "choose a data file that holds it.");
    EXPECT_LT(grid.sizeHint().height(), 500);
    EXPECT_LT(grid.minimumSizeHint().height(), 150);
    grid.resize(400, 200);
    grid.show();
    grid.scrollToBottom();
    EXPECT_GT(grid.visualRect(grid.model()->index(19'999, 0)).top(), 0);
    EXPECT_TRUE(grid.viewport()->rect().contains(grid.visualRect(grid.model()->index(19'999, 0)).center()));
}

TEST_F(Grid, IsNoHigherThanItsRecords)
{
    grid.setTable(segments(2));
    const int two = grid.maximumHeight();
    grid.setTable(segments(5));
    EXPECT_EQ(grid.maximumHeight(), two + 3 * grid.verticalHeader()->defaultSectionSize());
    EXPECT_LE(grid.sizeHint().height(), grid.maximumHeight());
}

TEST_F(Grid, TakesTheRoomOfWhatTheScreenTakes)
{
    grid.setTable(segments(16));
    const QSize all = grid.wholeSize();
    grid.setTable(segments(200));
    EXPECT_EQ(grid.wholeSize().height(), all.height());
    DataGrid narrow("TrGrid", 16, 2);
    narrow.setTable(segments(16));
    EXPECT_EQ(narrow.wholeSize().width(), all.width() - grid.columnWidth(2));
}

TEST_F(Grid, AMemoDoesNotSpreadOverTheWholeTable)
{
    store::Table table("TR", {"NOTE", "LINE"});
    const std::string memo(3000, 'x');
    table.append({memo, "UP"});
    grid.setTable(std::move(table));
    EXPECT_LT(grid.columnWidth(0), 250);
    EXPECT_EQ(grid.TextMatrix(1, 1).size(), 3000) << "shown narrow, kept whole";
}

TEST_F(Grid, MarkupInAFileIsShownAsItStands)
{
    store::Table table("TR", {"NOTE"});
    table.append({"<img src='/dev/zero'>"});
    table.append({"a < b"});
    grid.setTable(std::move(table));
    EXPECT_EQ(grid.TextMatrix(1, 1), "<img src='/dev/zero'>");
    EXPECT_EQ(grid.model()->index(0, 0).data(Qt::ToolTipRole).toString(), "&lt;img src='/dev/zero'&gt;");
    EXPECT_EQ(grid.model()->index(1, 0).data(Qt::ToolTipRole).toString(), "a < b");
}

}  // namespace
