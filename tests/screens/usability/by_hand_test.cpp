// A Sr SE without a data file: every figure typed, and no key but those of a keyboard's typing part.
#include <QApplication>
#include <QTest>
#include <vector>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

namespace {

class ByHand : public ScreenTest {  // slow
protected:
    struct Entry {
        std::string box;
        std::string text;
    };

    static std::string focused()
    {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? widget->objectName().toStdString() : "nothing";
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }

    static void goOnTo(const std::string& name)
    {
        for (int i = 0; i < 60 && focused() != name; ++i)
            press(i % 2 ? Qt::Key_Tab : Qt::Key_Return);
        ASSERT_EQ(focused(), name) << "Enter and Tab do not lead there";
    }

    /// From box to box, as they come.
    static void fill(const std::vector<Entry>& entries)
    {
        for (const auto& [box, text] : entries) {
            goOnTo(box);
            QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(text));
            press(Qt::Key_Return);
        }
    }

    /// Compute by its mnemonic, and on without printing.
    template <class Next>
    void computeAndGoOn()
    {
        press(Qt::Key_C, Qt::AltModifier);
        QTRY_COMPARE(focused(), "cmdPrint");  // a mnemonic presses the button for a moment
        expectPrintQuestion(false);
        press(Qt::Key_N, Qt::AltModifier);
        QTRY_VERIFY(chain.isLoaded<Next>());
        nowOn<Next>();
    }

    void enterStart()
    {
        on<frmStart>();
        fill({{"txtT1(5)", "Sample Railway"}, {"txtT1(2)", "Sample Division"}, {"txtT1(3)", "1"}});
        fill({{"txtT1(0)", "Sr SE Ambapur"}});
        goOnTo("cmdFile");
        dialogs.expectFile("");  // Cancel
        press(Qt::Key_Space);
        goOnTo("cmdProceed");
        press(Qt::Key_Return);
        nowOn<frmT1>();
    }

    void enterTrack()
    {
        fill({{"txtT1(0)", "Sample Section"}, {"txtT1(2)", "Km 10 to 25"}});
        goOnTo("optBG");
        press(Qt::Key_Space);
        fill({{"txtNSeg", "1"},
              {"cboLn(0)", "UP"},
              {"txtKmf(0)", "10"},
              {"txtKmt(0)", "25"},
              {"txtKm1(0)", "1.5"},
              {"txtGmt(0)", "10"},
              {"txtLWR(0)", "3"},
              {"cboMtc(0)", "Machine Packed"},
              {"txtConc1(0)", "4"},
              {"txtConc2(0)", "10"},
              {"txtTout(0)", "12"}});
        computeAndGoOn<frmT2>();
    }

    void enterGround()
    {
        fill({{"txtSoil1(0)", "2"},
              {"txtTout1(0)", "5"},
              {"txtSoil2(0)", "1"},
              {"txtTout2(0)", "0"},
              {"txtCur1(0)", "2"},
              {"txtcur2(0)", "1.5"},
              {"txtCur3(0)", ".4"},
              {"txtRain(0)", "225"}});
        computeAndGoOn<frmT4>();
    }

    void enterYards()
    {
        fill({{"txtNYd", "1"},
              {"txtStn(0)", "Ambapur"},
              {"txtM1(0)", "2"},
              {"txtM2(0)", "1"},
              {"TXTM3(0)", "3"},
              {"TXTM4(0)", "10"},
              {"txtM5(0)", "5"},
              {"txtM6(0)", "0"}});
        computeAndGoOn<frmM1>();
    }

    void enterMisc()
    {
        fill({{"txtNB", "1"}, {"txtND(0)", "100"}, {"txtBL(0)", "2"}, {"txtNS(0)", "1"}, {"txtNM(0)", "2"}});
        fill({{"txtVL", "1"}, {"txtDV(0)", "30"}, {"txtDS(0)", "3"}});
        computeAndGoOn<frmM2>();
        fill({{"txtNLC", "1"}, {"txtLCN(0)", "1"}, {"txtLCN(1)", "2"}, {"txtLCN(2)", "1"}});
        fill({{"txtKbeats", "2"}, {"txtNG", "1"}, {"txtSL", "1"}});
        computeAndGoOn<frmS1>();
    }

    void enterSite()
    {
        fill({{"txtND(0)", "100"}, {"txtND(1)", "100"}, {"txtND(4)", "50"}, {"txtND(8)", "200"}, {"txtND(12)", ".5"}});
        computeAndGoOn<frmS2>();
        fill({{"txtTB1", "1"}, {"txtND(0)", "100"}, {"txtTB2", "1"}, {"txtND(8)", "2"}, {"txtND(17)", "8"}});
        fill({{"txtND(26)", "300"}, {"txtND(27)", "330"}, {"txtND(28)", "360"}, {"txtTB3", "1"}});
        fill({{"txtND(29)", "30"}, {"txtND(30)", "30"}, {"txtND(31)", "30"}});
        computeAndGoOn<frmSummary>();
    }
};

TEST_F(ByHand, ASrSeIsWorkedFromTheStartScreenToTheDivisionsTotals)
{
    enterStart();
    enterTrack();
    EXPECT_EQ(text("txtEqtkm(0)"), "17.7");  // 25 - 10 + 1.5 + 12 x .1
    enterGround();
    EXPECT_EQ(text("txtABC(0)"), "1.153672");  // 1 + .6 / 17.7 + .35 / 17.7 + .1
    computeAndGoOn<frmY>();
    enterYards();
    EXPECT_EQ(chain.get<frmT4>().txtMan3(16).text(), "5057.56");  // (80 + 23) x 1.153672 x 17.7; 159 x 12.7 + 187 x 5
    EXPECT_EQ(chain.get<frmY>().txtYd4.text(), "1570.5");         // 177 x 3 + 297 x (1.5 + 2 x 3 / 3)
    enterMisc();
    EXPECT_EQ(chain.get<frmM1>().TotalMandays, 616.0F);  // 100 x 2 x 2 + 30 x 3 + 12 x 3 + 30 x 3
    // 365 x (1 + 4 + 3) - 294; 71 x 2; 294; 1095; and 616
    EXPECT_EQ(chain.get<frmM2>().txtMan9.text(), "4773");
    enterSite();
    // .6 x 100 + 294 x 2 / 8 + 330 + 294 + 30; .348 x 300 + .319 x 50 + .64 x 200 + 294 x .5
    EXPECT_EQ(chain.get<frmS2>().txtMan20.text(), "1183");

    // No file, no establishment: it is typed where Transfer stops, and opens Compute.
    EXPECT_EQ(focused(), "cmdTransfer");
    dialogs.expectCriticalWith("Manpower Requirement Summary for the Division", "row 2 of table S2 is missing");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "txtKey(0)");
    EXPECT_FALSE(enabled("cmdCompute"));
    fill({{"txtKey(0)", "6"}, {"txtLR(0)", "2"}, {"txtSS(0)", "40"}, {"txtSDC(0)", "2"}});
    dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
    press(Qt::Key_C, Qt::AltModifier);
    QTRY_COMPARE(focused(), "cmdTotal");
    EXPECT_EQ(text("txtTkm(0)") + "|" + text("txtTMan(0)"), "16.5|11013.56");  // 5057.56 + 4773 + 1183
    EXPECT_EQ(text("txtCS(0)") + "|" + text("txtEx(0)"), "43|-1");  // (11013.56 + .125 x 11019.56) / 294 = 42.15

    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "cmdPrint");
    EXPECT_EQ(text("txtTMan(15)") + "|" + text("txtCS(15)"), "11013.56|43.");
    expectPrintQuestion(false);
    press(Qt::Key_E, Qt::AltModifier);
    QTRY_VERIFY(!chain.isLoaded<frmSummary>());
}

}  // namespace
