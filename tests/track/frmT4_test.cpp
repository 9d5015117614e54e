#include <QTemporaryDir>

#include "support/lock_tip.h"
#include "track/mandays_screen.h"

namespace {

const std::string Title = "Calculations  of Mandays required for ' T ' and ' R ' activities of main line";

// What the screen shows

TEST_F(MandaysScreen, CaptionsStandToTheLetter)
{
    auto& form = open("BG", {{"10"}});

    EXPECT_EQ(form.windowTitle().toStdString(), Title);
    for (const char* caption :
         {"Calculations  of Mandays required for ' T ' and ' R ' activities of main line", "Section-",
          "Sr S.E. with index-", "Jurisdiction -", "Gauge", "     Date (mm-dd-yyyy)", "No of Segments ?", "Seg ment No",
          "Equivalent Length", "GMT", "      Method of               Maintenance",
          "Length and no  of Eq.t/outs on conc Sleepers", "Total no of Eq.    turnouts",
          "Augmention     Factor       (1+A+B+C) ",
          "  Mandays required for      ' T '          ' R '       Activities    Activities",
          "  Mandays        for         ('T'+ 'R')  ",
          "Total Mandays for      ('T'+ 'R') Activities        for the Sr.S.E. ",
          "A- Formation     B- Alignment    C- Rainfall"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(text("chkSub"), "Subarban     Section");
    EXPECT_EQ(find("fraSub").property("title").toString(), "Subarban Section");
    EXPECT_EQ(text("cmdCompute"), "&Compute");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdNext"), "&Next");
}

TEST_F(MandaysScreen, ToolTipsStandToTheLetter)
{
    open("BG", {{"10"}});

    for (const char* button : {"cmdCompute", "cmdPrint", "cmdNext"})
        EXPECT_EQ(toolTip(button), LockTip) << button;
    for (const char* box : {"txtNSeg", "txtSS(0)", "txtSS(15)"})
        EXPECT_EQ(toolTip(box), "Max number of subsections is 12") << box;
}

TEST_F(MandaysScreen, TakesItsHeadFromTheTrackScreen)
{
    auto& t1 = chain.get<frmT1>();
    for (int i = 0; i < 5; ++i)
        t1.txtT1(i).setText(QString("head %1").arg(i));
    open("NG", {{"10"}, {"20"}}, true);

    EXPECT_EQ(texts("txtT1", 0, 4), "head 0|head 1|head 2|NG|head 4");
    EXPECT_EQ(text("txtNSeg"), "2");
    EXPECT_TRUE(chain.get<frmT4>().chkSub.isChecked());
    EXPECT_NE(text("txtRly(2)"), "");
}

TEST_F(MandaysScreen, TakesTheSegmentsFromTheScreensBefore)
{
    auto& t1 = chain.get<frmT1>();
    t1.txtSS(1).setText("2.5");
    t1.txtTout(1).setText("19");
    auto& form = open("BG", {{"10.5"}, {"17.7", "42.6", "1.031955", "Manually Packed", "35.6", "14"}, {"9", "", "1."}});

    EXPECT_EQ(texts("txtSS", 0, 3), "1|2.5|3|");
    EXPECT_EQ(texts("txtEqtkm", 0, 3), "10.5|17.7|9|");
    EXPECT_EQ(texts("txtGmt", 0, 3), "|42.6||");
    EXPECT_EQ(texts("txtTmc", 0, 3), "Machine Packed|Manually Packed|Machine Packed|");
    EXPECT_EQ(form.segments[1].Method, "Manually Packed");
    EXPECT_EQ(texts("txtConc1", 0, 3), "|35.6||");
    EXPECT_EQ(texts("txtConc2", 0, 3), "|14||");
    EXPECT_EQ(texts("txtTout", 0, 3), "|19||");
    EXPECT_EQ(texts("txtABC", 0, 3), "1.|1.031955|1.|");
    EXPECT_EQ(mandays(1), "||");
    EXPECT_EQ(text("txtMan3(16)"), "");
}

TEST_F(MandaysScreen, ShowsOneRowASegment)
{
    open("BG", {{"10"}, {"20"}, {"30"}});

    for (const char* column : {"txtSS", "txtEqtkm", "txtGmt", "txtTmc", "txtConc1", "txtConc2", "txtTout", "txtABC",
                               "txtMan1", "txtMan2", "txtMan3"})
        EXPECT_EQ(shownOf(column, 0, 15), "1110000000000000") << column;
    EXPECT_TRUE(shown("txtMan3(16)"));
}

TEST_F(MandaysScreen, ShowsAllSixteenSegments)
{
    open("BG", std::vector<Segment>(16, Segment{"10"}));
    EXPECT_EQ(shownOf("txtMan3", 0, 16), "11111111111111111");
    click("cmdCompute");
    EXPECT_EQ(text("txtMan3(15)"), "2390.");   // 80 x 10 + 159 x 10
    EXPECT_EQ(text("txtMan3(16)"), "38240.");  // 16 x 2390
}

TEST_F(MandaysScreen, NothingIsTypedHere)
{
    open("BG", {{"10"}});

    for (const char* box : {"txtT1(0)", "txtT1(1)", "txtT1(2)", "txtT1(3)", "txtT1(4)", "txtRly(2)", "txtNSeg",
                            "txtSS(0)", "txtEqtkm(0)", "txtGmt(0)", "txtTmc(0)", "txtConc1(0)", "txtConc2(0)",
                            "txtTout(0)", "txtABC(0)", "txtMan1(0)", "txtMan2(0)", "txtMan3(0)", "txtMan3(16)"}) {
        EXPECT_TRUE(locked(box)) << box;
        EXPECT_TRUE(pale(box)) << box;
    }
    EXPECT_FALSE(enabled("chkSub"));
}

TEST_F(MandaysScreen, ComputeIsOpenAtOnceAndHasTheFocus)
{
    open("BG", {{"10"}});

    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdPrint"));
    EXPECT_FALSE(enabled("cmdNext"));
    EXPECT_EQ(focus(), "cmdCompute");
}

TEST_F(MandaysScreen, ComputeOpensNextAndPrintAndClosesItself)
{
    open("BG", {{"10"}});
    click("cmdCompute");

    EXPECT_TRUE(enabled("cmdNext"));
    EXPECT_TRUE(enabled("cmdPrint"));
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdPrint");
}

TEST_F(MandaysScreen, BoxesAreNamedToPeopleWhoListen)
{
    open("BG", {{"10"}, {"20"}});
    EXPECT_EQ(find("txtGmt(1)").accessibleName(), "GMT, segment 2");
    EXPECT_EQ(find("txtMan3(16)").accessibleName(), "Total Mandays for ('T'+ 'R') Activities for the Sr.S.E.");
}

// Where the figures are read

TEST_F(MandaysScreen, TheGaugeIsTheTrackScreensWhenComputeIsPressed)
{
    auto& form = open("MG", {{"10"}});
    form.txtT1(3).setText("NG");  // this screen's copy
    chain.get<frmT1>().txtT1(3).setText("BG");
    click("cmdCompute");
    EXPECT_EQ(mandays(0), "800.|1590.|2390.");
}

TEST_F(MandaysScreen, TheSuburbanBoxIsTheTrackScreensAndNotItsCopy)
{
    auto& form = open("BG", {{"5", "10", "1.1"}});
    form.chkSub.setChecked(true);
    click("cmdCompute");
    EXPECT_EQ(mandays(0), "566.5|795.|1361.5");  // (80 + 23) x 1.1 x 5; 159 x 5
}

TEST_F(MandaysScreen, TheSuburbanBoxIsReadWhenComputeIsPressed)
{
    auto& form = open("BG", {{"5", "10", "1.1"}});
    chain.get<frmT1>().chkSub.setChecked(true);
    click("cmdCompute");
    EXPECT_EQ(mandays(0), "759.|1990.|2749.");  // (115 + 23) x 1.1 x 5; 398 x 5
    EXPECT_FALSE(form.chkSub.isChecked());
}

TEST_F(MandaysScreen, AGreyedSuburbanBoxIsNotATickedOne)
{
    auto& form = open("BG", {{"5", "10", "1.1"}});
    chain.get<frmT1>().chkSub.setCheckState(Qt::PartiallyChecked);
    click("cmdCompute");
    EXPECT_EQ(mandays(0), "566.5|795.|1361.5");
    EXPECT_EQ(form.segments[0].Method, "Machine Packed");
}

TEST_F(MandaysScreen, TheMethodIsTheOneTakenWhenTheScreenCame)
{
    open("BG", {{"10", "10", "1.", "Manually Packed"}});
    chain.get<frmT1>().cboMtc(0).setText("Machine Packed");
    click("cmdCompute");
    EXPECT_EQ(mandays(0), "3054.|1680.|4734.");  // (223 + 82.4) x 10; 168 x 10
}

TEST_F(MandaysScreen, ManpowerBgWorksOutBroadGaugeByItself)
{
    auto& form = open("MG", {{"5", "10", "1.1"}, {"10", "0", "1."}});
    click("cmdCompute");
    EXPECT_EQ(form.segments[0].ManR, 640.0);  // 128 x 5

    chain.get<frmT1>().chkSub.setChecked(true);
    form.Manpower_BG();
    EXPECT_EQ(form.segments[0].ManR, 1990.0);  // 398 x 5
    EXPECT_EQ(form.segments[1].ManR, 3980.0);  // 398 x 10
    EXPECT_EQ(form.segments[1].ManT, 1150.0);  // 115 x 10
    EXPECT_EQ(text("txtMan2(0)"), "640.");     // Compute alone shows
    chain.get<frmT1>().txtNSeg.setText("1");   // and it goes by the track screen's count
    chain.get<frmT1>().chkSub.setChecked(false);
    form.Manpower_BG();
    EXPECT_EQ(form.segments[0].ManR, 795.0);  // 159 x 5
    EXPECT_EQ(form.segments[1].ManR, 3980.0);
}

// Errors

TEST_F(MandaysScreen, ASingleOutOfItsRangeIsAFloatingPointErrorAndNothingIsShown)
{
    auto& form = open("NG", {{"10"}, {"10", "1", "3e38"}});  // 3e38 x 180
    dialogs.expectCriticalWith(Title, "Floating-point error: ");
    click("cmdCompute");

    EXPECT_EQ(mandays(0), "||");  // not the good row either
    EXPECT_EQ(text("txtMan3(16)"), "");
    EXPECT_EQ(form.TotMan, 0.0F);
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdNext"));
    EXPECT_FALSE(enabled("cmdPrint"));
    EXPECT_EQ(focus(), "txtEqtkm(1)");
}

TEST_F(MandaysScreen, AFactorBeyondASingleIsAnOverflow)
{
    open("BG", {{"10"}, {"10", "1", "1e39"}});
    dialogs.expectCritical(Title,
                           "Overflow: the augmentation factor of segment 2 is 1e+39, too large to compute with.");
    click("cmdCompute");
    EXPECT_EQ(mandays(0), "||");
}

TEST_F(MandaysScreen, MandaysBeyondADoubleAreAnOverflowAndNothingIsShown)
{
    open("BG", {{"10"}, {"1e200", "1e200"}});  // 2.3 x 1e200 x 1e200
    dialogs.expectCritical(Title, "Overflow: the number of 'T' mandays of segment 2 is too large to compute with.");
    click("cmdCompute");
    EXPECT_EQ(mandays(0), "||");
    EXPECT_EQ(text("txtMan3(16)"), "");
    EXPECT_TRUE(enabled("cmdCompute"));
}

TEST_F(MandaysScreen, MoreThanSixteenSegmentsAreASubscriptError)
{
    open("BG", {{"10"}});
    chain.unload<frmT4>();
    auto& t2 = on<frmT2>();
    chain.get<frmT1>().SegCount = 17;
    t2.cmdNext.setEnabled(true);
    expectPrintQuestion(false);
    dialogs.expectCritical("Entering Data on Formation , Rainfall and Curves",
                           "Subscript out of range: txtSS has no element 16.");
    click("cmdNext");
    EXPECT_FALSE(chain.isLoaded<frmT4>());
}

// Print and Next

TEST_F(MandaysScreen, NextAsksUntilTheFormIsPrinted)
{
    auto& form = open("BG", {{"10"}});
    click("cmdCompute");
    expectPrintQuestion(true);
    click("cmdNext");
    EXPECT_EQ(form.Printed, 0);

    const QTemporaryDir prints;
    const std::string pdf = prints.filePath("frmT4").toStdString();
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, pdf);
    click("cmdPrint");
    EXPECT_EQ(form.Printed, 1);
    EXPECT_EQ(pagesOf(pdf), 1);

    click("cmdNext");  // no question any more
    on<frmT4>();
    EXPECT_EQ(mandays(0), "800.|1590.|2390.");
}

}  // namespace
