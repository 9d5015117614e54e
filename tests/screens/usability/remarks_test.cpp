// What is odd about a figure is said at its box and nowhere else: nothing is refused, changed or blocked.

#include <QAccessible>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "screens/usability/ten_screens.h"
#include "start/frmStart.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "yards/frmY.h"

namespace {

class Remarks : public TenScreens {
protected:
    std::string described(const std::string& box)
    {
        return QAccessible::queryAccessibleInterface(&find(box))->text(QAccessible::Description).toStdString();
    }

    void expectRemark(const std::string& box, const std::string& remark)
    {
        EXPECT_EQ(toolTip(box).substr(0, remark.size()), remark) << box;
        EXPECT_EQ(described(box), remark) << box;
    }

    QImage picture(const std::string& box) { return find(box).grab().toImage(); }
};

TEST_F(Remarks, AFigureThatIsNoNumberIsMarkedAndCountsAsItIsRead)
{
    chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample("1-ambapur.mdb")));
    on<frmT1>();
    click("optBG");
    click("cmdCopy");
    type("txtKmf(0)", "100");
    type("txtKmt(0)", "110");
    type("txtKm1(0)", "0.5km");
    expectRemark("txtKm1(0)", "\"0.5km\" is not a number: it counts as .5.");
    click("cmdCompute");
    EXPECT_TRUE(enabled("cmdNext")) << "a remark blocks nothing";
    EXPECT_EQ(text("txtKm1(0)"), "0.5km") << "a remark changes nothing";
    EXPECT_EQ(text("txtTkm(0)"), "10.5");  // 110 - 100 + .5
}

TEST_F(Remarks, TheMarkIsSeenWithoutColourToo)
{
    on<frmM2>();
    type("txtNG", "12");
    QImage plain = picture("txtNG").convertToFormat(QImage::Format_Grayscale8);
    type("txtNG", "1x");
    QImage marked = picture("txtNG").convertToFormat(QImage::Format_Grayscale8);
    EXPECT_GT(std::abs(qGray(plain.pixel(3, 3)) - qGray(marked.pixel(3, 3))), 60) << "the corner of the box";
}

TEST_F(Remarks, EveryScreensFiguresAreLookedAt)  // slow
{
    chain.get<frmT1>().txtNSeg.setText("1");
    // clang-format off
    const auto odd = [this](const std::string& box, const std::string& typed, const std::string& remark) {
        type(box, typed);
        expectRemark(box, remark);
        type(box, "");
        expectRemark(box, "");
    };
    on<frmT1>();  odd("txtGmt(0)",  "ten",   "\"ten\" is not a number: it counts as 0.");
    on<frmT2>();  odd("txtRain(0)", "1,5",   "\"1,5\" is not a number: it counts as 1.");
    on<frmY>();
    type("txtNYd", "1");
                  odd("txtM1(0)",   "3 km",  "\"3 km\" is not a number: it counts as 3.");
    on<frmM1>();
    type("txtNB", "1");
                  odd("txtNM(0)",   "-",     "\"-\" is not a number: it counts as 0.");
    on<frmM2>();  odd("txtKbeats",  "4..5",  "\"4..5\" is not a number: it counts as 4.");
    on<frmS1>();  odd("txtND(12)",  "0x10",  "\"0x10\" is not a number: it counts as 0.");
    on<frmS2>();  odd("txtTB3",     "1e999", "\"1e999\" is too large to compute with.");
    // clang-format on
}

TEST_F(Remarks, ACountBeyondItsLimitIsRemarkedUponUntilComputeCutsIt)
{
    on<frmM2>();
    type("txtSL", "3");
    EXPECT_EQ(text("txtSL"), "3");
    expectRemark("txtSL", "The most is 2: more counts as 2.");
    click("cmdCompute");
    EXPECT_EQ(text("txtSL"), "2");
    expectRemark("txtSL", "");
}

TEST_F(Remarks, NamesAndComputedFiguresAreNotLookedAt)
{
    on<frmStart>();
    type("txtT1(0)", "Sr SE no 7");
    EXPECT_EQ(described("txtT1(0)"), "");
    on<frmT1>();
    type("txtT1(2)", "km 1 to 7");
    EXPECT_EQ(described("txtT1(2)"), "");
    EXPECT_EQ(toolTip("txtT1(2)"), "");
}

// The data file's path

TEST_F(Remarks, ALongPathShowsItsEndAndAsToolTipAllOfIt)
{
    auto& start = on<frmStart>();
    start.resize(900, 650);
    const std::string path = "/" + std::string(200, 'x') + "/division/1-ambapur.mdb";
    dialogs.expectFile(path);
    click("cmdFile");
    EXPECT_EQ(toolTip("txtT1(1)"), path);
    start.grab();
    const QRect cursor = start.txtT1(1).inputMethodQuery(Qt::ImCursorRectangle).toRect();
    EXPECT_EQ(start.txtT1(1).cursorPosition(), static_cast<int>(path.size()));
    EXPECT_TRUE(start.txtT1(1).rect().contains(cursor.center()))
        << "the end is out of sight at " << cursor.center().x();
    EXPECT_GT(start.txtT1(1).fontMetrics().horizontalAdvance(start.txtT1(1).text()), start.txtT1(1).width());

    start.txtT1(1).setText("");  // as the summary leaves it for the next Sr SE
    EXPECT_EQ(toolTip("txtT1(1)"), "");
}

}  // namespace
