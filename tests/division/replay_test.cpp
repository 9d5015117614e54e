#include "division/replay.h"

#include <QLineEdit>
#include <map>

#include "compose.h"
#include "division/replay_dialogs.h"
#include "division/steps.h"
#include "screens/flow/chain.h"
#include "support/tsv.h"

#include <gtest/gtest.h>

namespace division {

namespace {

/// The sample division, replayed.
class Replayed : public testing::Test {  // slow
protected:
    Replayed() { compose(chain); }

    void run(const std::function<void(const Moment&)>& look = {}) { replay(kept, chain, dialogs, look); }

    std::string stopOf()
    {
        try {
            run();
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "to its end";
    }

    /// The Sr SE of this index alone.
    void only(std::size_t index)
    {
        kept.workings = {kept.workings.at(index)};
        kept.srSes = 1;
    }

    std::vector<Act>& actsOf(std::size_t working, const QString& form)
    {
        for (KeptScreen& screen : kept.workings.at(working).screens)
            if (screen.form == form)
                return screen.acts;
        throw std::logic_error("no such screen");
    }

    static std::string textOf(const flow::Screen& screen, const std::string& control)
    {
        const auto* found = screen.findChild<QWidget*>(QString::fromStdString(control));
        if (!found)
            return "no such control";
        const QVariant text = found->property(found->inherits("QComboBox") ? "currentText" : "text");
        return text.toString().toStdString();
    }

    std::string text(const char* form, const std::string& control) { return textOf(*chain.find(form), control); }

    KeptDivision kept = readKeptFile(CREWMARK_SAMPLES "/division.crewmark");
    ReplayDialogs dialogs;
    flow::Chain chain{dialogs};
};

/// Compares the screen with the figures that were worked out apart from the program; how many there are.
template <class TextOf>
int expectFigures(const flow::Screen& screen, const std::string& file, TextOf textOf)
{
    int compared = 0;
    for (const auto& line : readTsv(std::string(CREWMARK_EXPECTED) + "/" + file + ".tsv"))
        if (screen.objectName().toStdString() == line.at(0)) {
            EXPECT_EQ(textOf(screen, line.at(1)), line.at(2)) << file << ": " << line.at(0) << "." << line.at(1);
            ++compared;
        }
    return compared;
}

TEST_F(Replayed, EveryScreenIsAsWorkedOut)
{
    const std::string files[] = {"1-ambapur", "2-eklahra", "3-jamunia", "4-mandar-hill", "5-parasnath-ghat"};
    int screens = 0;
    run([&](const Moment& moment) {
        if (moment.state != State::Computed)
            return;
        const std::string file = moment.srSe == 0 ? "division" : files[moment.srSe - 1];
        EXPECT_GT(expectFigures(moment.screen, file, textOf), 0) << moment.screen.objectName().toStdString();
        ++screens;
    });
    EXPECT_EQ(screens, 5 * 10 + 1);
    EXPECT_EQ(dialogs.errors.join('\n').toStdString(), "");
}

TEST_F(Replayed, ScreensThatTheFileSaysNothingOfAreImportedAndComputed)
{
    only(0);
    kept.workings[0].screens.resize(1);
    run();
    EXPECT_EQ(text("frmSummary", "txtTMan(0)"), "73341.38");  // expected/division.tsv
    EXPECT_EQ(text("frmSummary", "txtEx(15)"), "-17");
}

TEST_F(Replayed, WithoutTotalsItEndsBeforeThem)
{
    only(0);
    kept.totals.clear();
    run();
    EXPECT_EQ(text("frmSummary", "txtEx(0)"), "-17");
    EXPECT_EQ(text("frmSummary", "txtEx(15)"), "");
}

TEST_F(Replayed, MomentsComeInTheOrderOfTheWork)
{
    only(3);
    std::string told;
    run([&](const Moment& moment) {
        told += moment.screen.objectName().toStdString() + std::to_string(moment.srSe) +
                "efc"[static_cast<std::size_t>(moment.state)] + " ";
    });
    EXPECT_EQ(told, "frmStart1e frmStart1c frmT11e frmT11f frmT11c frmT21e frmT21f frmT21c frmT41e frmT41c "
                    "frmY1e frmY1f frmY1c frmM11e frmM11f frmM11c frmM21e frmM21f frmM21c frmS11e frmS11f frmS11c "
                    "frmS21e frmS21f frmS21c frmSummary1e frmSummary1f frmSummary1c frmSummary0c ");
}

TEST_F(Replayed, WhatIsTypedTakesTheFilesPlace)
{
    only(0);
    kept.workings[0].dataFile = "";
    actsOf(0, "frmSummary") = {{"cmdTransfer"}, {"txtKey(0)", "23"}, {"cmdCompute"}};
    for (KeptScreen& screen : kept.workings[0].screens)
        std::erase_if(screen.acts, [](const Act& act) { return act.control == "cmdCopy" || act.control == "cmdData"; });
    EXPECT_EQ(stopOf(), "Sr SE 1: cmdCompute of frmT1 is closed");
    EXPECT_EQ(text("frmT1", "txtT1(0)"), "Sample Section") << "what was replayed stands";
}

TEST_F(Replayed, AnExceptionOfTheCallersEndsIt)
{
    struct Cancelled {};
    EXPECT_THROW(run([](const Moment& moment) {
                     if (moment.screen.objectName() == "frmT2")
                         throw Cancelled();
                 }),
                 Cancelled);
    EXPECT_NE(chain.find("frmT2"), nullptr);
    EXPECT_EQ(chain.find("frmT4"), nullptr);
}

TEST_F(Replayed, StopsWhereAControlIsUnknown)
{
    actsOf(1, "frmY").insert(actsOf(1, "frmY").begin(), {"txtYard(0)", "1"});
    EXPECT_EQ(stopOf(), "Sr SE 2: frmY has no \"txtYard(0)\"");
    EXPECT_EQ(text("frmSummary", "txtTMan(0)"), "73341.38") << "Sr SE 1 stands";
}

TEST_F(Replayed, StopsWhereComputeFailedAndTellsWhy)
{
    actsOf(0, "frmT1") = {{"optBG"}, {"cmdCopy"}, {"txtKmf(0)", "300"}, {"cmdCompute"}};
    EXPECT_EQ(stopOf(), "Sr SE 1: cmdNext of frmT1 is closed (Revise Values of 'Km from' and 'Km to': 'Kilometer to' "
                        "can not be less than 'Km from')");
}

TEST_F(Replayed, GoesOnWhereAFailedComputeWasMended)
{
    only(0);
    actsOf(0, "frmT1") = {{"optBG"},     {"cmdCopy"}, {"txtKmf(0)", "300"}, {"cmdCompute"}, {"txtKmf(0)", "212.4"},
                          {"cmdCompute"}};
    EXPECT_EQ(stopOf(), "to its end");
    EXPECT_EQ(dialogs.errors.size(), 1);
    EXPECT_EQ(text("frmSummary", "txtTkm(0)"), "37.7");
}

TEST_F(Replayed, StopsBehindTheLastSrSeOfTheDivision)
{
    kept.srSes = 1;
    EXPECT_EQ(stopOf(), "Sr SE 2: the start screen does not come back for it");
}

TEST_F(Replayed, StopsWhereADataFileIsMissing)
{
    kept.workings[0].dataFile = "/nowhere/1-ambapur.mdb";
    const std::string stop = stopOf();
    EXPECT_EQ(stop.substr(0, 10), "Sr SE 1: c") << stop;
    EXPECT_FALSE(dialogs.errors.isEmpty());
    EXPECT_TRUE(dialogs.errors.first().startsWith("Tr Data: ")) << dialogs.errors.first().toStdString();
}

// A file that came by mail must not print, leave screens or end the program.
TEST_F(Replayed, PressesNoOtherButtons)
{
    for (const char* button : {"cmdPrint", "cmdNext"}) {
        actsOf(0, "frmT1").push_back({button});
        flow::Chain fresh(dialogs);
        compose(fresh);
        try {
            replay(kept, fresh, dialogs);
            ADD_FAILURE() << button << " was pressed";
        } catch (const std::runtime_error& error) {
            EXPECT_EQ(error.what(), std::string("Sr SE 1: ") + button + " of frmT1 cannot be replayed");
        }
        actsOf(0, "frmT1").pop_back();
    }
    only(0);
    kept.totals.push_back({"cmdExit"});
    EXPECT_EQ(stopOf(), "totals: cmdExit of frmSummary cannot be replayed");
    EXPECT_NE(chain.find("frmSummary"), nullptr) << "the program goes on";
}

}  // namespace

}  // namespace division
