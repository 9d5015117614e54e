// Blocks from a spreadsheet and from the grid, on the screens themselves.

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QTest>

#include "activities/site/frmS2.h"
#include "screens/controls/data_grid.h"
#include "screens/usability/ten_screens.h"
#include "start/frmStart.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "yards/frmY.h"

namespace {

class Paste : public TenScreens {
protected:
    void paste(const std::string& box, const std::string& block)
    {
        QGuiApplication::clipboard()->setText(QString::fromStdString(block));
        find(box).setFocus();
        key(box, Qt::Key_V, Qt::ControlModifier);
    }

    /// Copies cells of the grid, counted as the screen shows them, from 1.
    void copy(const std::string& grid, QPoint from, QPoint to)
    {
        auto& table = dynamic_cast<controls::DataGrid&>(find(grid));
        const auto index = [&](QPoint cell) { return table.model()->index(cell.y() - 1, cell.x() - 1); };
        table.selectionModel()->select(QItemSelection(index(from), index(to)), QItemSelectionModel::ClearAndSelect);
        key(grid, Qt::Key_C, Qt::ControlModifier);
    }
};

TEST_F(Paste, FillsTheTracksRowsInTheOrderOfTheirColumns)
{
    on<frmT1>();
    chain.get<frmT1>().txtNSeg.setText("2");
    settle();
    // No  Line  From  To  Extra  GMT  LWR  Method  Length  Turnouts  Total
    paste("txtSS(0)", "1\tUP\t100\t112.5\t0\t25\t12\tMachine Packed\t12\t3\t5\n2\tDN\t112.5\t120\t1\t25\t7\tManually "
                      "Packed\t7\t2\t4\n");
    EXPECT_EQ(texts("cboLn", 0, 1), "UP|DN");
    EXPECT_EQ(texts("txtKmt", 0, 1), "112.5|120");
    EXPECT_EQ(texts("txtGmt", 0, 1), "25|25");
    EXPECT_EQ(texts("cboMtc", 0, 1), "Machine Packed|Manually Packed");
    EXPECT_EQ(texts("txtTout", 0, 1), "5|4");
    EXPECT_EQ(texts("txtTkm", 0, 1), "|") << "computed boxes are left alone";
}

TEST_F(Paste, LeavesOutWhatIsLockedAndStopsAtTheLastRowShown)
{
    chain.get<frmT1>().txtNSeg.setText("2");
    chain.get<frmT1>().txtEqtkm(0).setText("10.5");
    chain.get<frmT1>().txtEqtkm(1).setText("7");
    on<frmT2>();
    const std::string first =
        find("txtSoil1(0)").geometry().x() < find("txtRain(0)").geometry().x() ? "txtSoil1(0)" : "txtRain(0)";
    paste(first, "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\n1\t2\t3\t4\t5\t6\t7\t8\n1\t2\t3\n");
    EXPECT_EQ(texts("txtEqtkm", 0, 1), "10.5|7");
    EXPECT_EQ(texts("txtSS", 0, 1), "1|2");
    EXPECT_EQ(texts("txtA", 0, 1), "|") << "a ninth cell finds no open box";
    EXPECT_EQ(texts("txtSoil1", 0, 2), "1|1|") << "a third line finds no row";
    EXPECT_TRUE(enabled("cmdCompute")) << "pasting is typing";
}

TEST_F(Paste, TakesWhatWasCopiedFromTheGrid)
{
    chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample("1-ambapur.mdb")));
    on<frmY>();
    type("txtNYd", "4");
    copy("YdGrid", {3, 1}, {9, 4});  // stations and their figures
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 4);
    paste("txtStn(0)", QGuiApplication::clipboard()->text().toStdString());
    const auto pasted = [this] {
        std::string all;
        for (const char* column : {"txtStn", "txtM1", "txtM2", "TXTM3", "TXTM4", "txtM5", "txtM6"})
            all += texts(column, 0, 3) + "\n";
        return all;
    };
    const std::string byHand = pasted();
    EXPECT_NE(text("txtM6(3)"), "");
    click("cmdYdata");
    EXPECT_EQ(byHand, pasted()) << "the import takes the same cells";
}

TEST_F(Paste, SaysHowManyRowsTheScreenHasNoRoomForAndCtrlZTakesAllBack)
{
    on<frmT1>();
    chain.get<frmT1>().txtNSeg.setText("2");
    chain.get<frmT1>().txtKmf(1).setText("7");
    settle();
    paste("txtKmf(0)", "100\t112.5\n112.5\t120\n120\t131\n");
    const auto* notice = find("txtKmf(0)").window()->findChild<QLabel*>("pasteNotice");
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(notice->text().toStdString(),
              "Pasted: 2 of 3 rows. Left out: 1, because no more rows are shown. Ctrl+Z undoes the paste.");
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(texts("txtKmt", 0, 2), "112.5|120|");
    key("txtKmt(1)", Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(texts("txtKmf", 0, 1), "|7");
    EXPECT_EQ(texts("txtKmt", 0, 1), "|");
}

TEST_F(Paste, ACountThatWasCutAndTheBoxesItShowedGoBackToo)
{
    on<frmS2>();
    type("txtTB1", "2");
    EXPECT_EQ(shownOf("txtND", 0, 7), "11000000");
    paste("txtTB1", "99\t1\n");  // two cells: a block
    EXPECT_EQ(text("txtTB1"), "8");
    EXPECT_EQ(shownOf("txtND", 0, 7), "11111111");
    key("txtTB1", Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("txtTB1"), "2");
    EXPECT_EQ(shownOf("txtND", 0, 7), "11000000");
}

}  // namespace
