// The sample division, worked as a user works it, screen by screen with keys and clicks. What the screens must show
// was worked out apart from the program: expected/README.md tells how.

#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <array>
#include <map>

#include "activities/site/frmS2.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "support/screen_test.h"
#include "support/tsv.h"
#include "track/frmT1.h"

namespace {

struct SrSe {
    const char* sample;  ///< its data file and its expected figures, without their endings
    std::string name;
    const char* gauge;  ///< what is clicked on the track screen
};

const std::array Division = {
    SrSe{"1-ambapur", "Sr SE Ambapur", "optBG"},
    SrSe{"2-eklahra", "Sr SE Eklahra", "optBG"},
    SrSe{"3-jamunia", "Sr SE Jamunia", "chkSub"},
    SrSe{"4-mandar-hill", "Sr SE Mandar Hill", "optMG"},
    SrSe{"5-parasnath-ghat", "Sr SE Parasnath Ghat", "optNG"},
};

/// Of each screen the texts of its boxes by their object names.
using Figures = std::map<std::string, std::map<std::string, std::string>>;

/// The lines of "screen, object name, text" of an expected division or Sr SE.
Figures figuresOf(const std::string& name)
{
    Figures figures;
    for (const auto& line : readTsv(std::string(CREWMARK_EXPECTED) + "/" + name + ".tsv"))
        figures[line.at(0)][line.at(1)] = line.at(2);
    return figures;
}

class WholeWay : public ScreenTest {  // slow
protected:
    /// How each data screen is left: printed, or with No to the question.
    enum class Leaving { Printed, Unprinted };

    /// One Sr SE, from the start screen to its row of the summary. Looks at no screen if there are no figures.
    void walk(const SrSe& srSe, int index, int srSes, const Figures& figures, Leaving leaving)
    {
        m_figures = figures;
        m_leaving = leaving;
        proceed(srSe, srSes);

        for (std::size_t i = 1; i + 1 < division::Steps.size(); ++i)
            work(division::Steps[i], srSe);

        const auto& summary = nowOn<frmSummary>();
        click("cmdTransfer");
        if (index < srSes)
            dialogs.expectMessage("Proceed for Next Subordinate", "Continue for Next Sr SSE on the Division");
        else
            dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
        click("cmdCompute");
        expectTexts(summary);
    }

    /// The division, Sr SE after Sr SE; the samples come round.
    void walkDivision(int srSes, bool look)
    {
        on<frmStart>();
        for (int index = 1; index <= srSes; ++index) {
            SrSe srSe = Division.at(static_cast<std::size_t>(index - 1) % Division.size());
            if (index > static_cast<int>(Division.size()))
                srSe.name += " " + std::to_string(index);
            nowOn<frmStart>();
            EXPECT_EQ(text("txtT1(4)"), std::to_string(index));
            walk(srSe, index, srSes, look ? figuresOf(srSe.sample) : Figures{}, Leaving::Unprinted);
        }
        nowOn<frmSummary>();
        click("cmdTotal");
    }

    /// The summary behind Grand Total.
    void expectSummary(const std::string& figures)
    {
        const auto& summary = nowOn<frmSummary>();
        m_figures = figuresOf(figures);
        expectTexts(summary);
        expectNothingElse(summary);
    }

private:
    /// The start screen: the division's facts are typed once, they are locked from the second Sr SE on.
    void proceed(const SrSe& srSe, int srSes)
    {
        const auto& start = nowOn<frmStart>();
        if (!locked("txtT1(5)")) {
            type("txtT1(5)", "Sample Railway");
            type("txtT1(2)", "Sample Division");
            type("txtT1(3)", std::to_string(srSes));
        }
        type("txtT1(0)", srSe.name);
        dialogs.expectFile(sample(std::string(srSe.sample) + ".mdb"));
        click("cmdFile");
        expectTexts(start);
        click("cmdProceed");
    }

    /// The data screen in front: import, Compute, look, and on to the next.
    void work(const division::Step& step, const SrSe& srSe)
    {
        const flow::Screen& form = nowOn(step.form);
        if (form.objectName() == "frmT1") {
            type("txtT1(0)", "Sample Section");
            type("txtT1(2)", "Km 0 to 100");
            click(srSe.gauge);
        }
        if (*step.import)
            click(step.import);
        click(step.compute);
        expectTexts(form);
        expectNothingElse(form);
        if (m_leaving == Leaving::Printed) {
            const std::string pdf = m_prints.filePath(form.objectName()).toStdString();
            dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, pdf);
            click("cmdPrint");
            EXPECT_EQ(pagesOf(pdf), 1) << form.objectName().toStdString();
        } else {
            expectPrintQuestion(false);
        }
        click(step.next);
    }

    void expectTexts(const QWidget& form)
    {
        const std::string screen = form.objectName().toStdString();
        if (m_figures.empty())
            return;
        ASSERT_TRUE(m_figures.contains(screen)) << "no figures of " << screen;
        for (const auto& [object, expected] : m_figures.at(screen))
            EXPECT_EQ(text(object), expected) << screen << "." << object;
    }

    /// All other boxes are hidden or empty, the date apart.
    void expectNothingElse(const QWidget& form)
    {
        const std::string screen = form.objectName().toStdString();
        if (m_figures.empty())
            return;
        const auto look = [&](const QWidget& box, const QString& shown) {
            const std::string object = box.objectName().toStdString();
            if (object.empty() || object == "txtRly(2)" || box.isHidden() || shown.isEmpty())
                return;
            EXPECT_TRUE(m_figures[screen].contains(object))
                << screen << "." << object << " shows " << shown.toStdString();
        };
        for (const auto* box : form.findChildren<QLineEdit*>())
            look(*box, box->text());
        for (const auto* box : form.findChildren<QComboBox*>())
            look(*box, box->currentText());
    }

    QTemporaryDir m_prints;
    Figures m_figures;
    Leaving m_leaving = Leaving::Unprinted;
};

class OneSrSe : public WholeWay, public testing::WithParamInterface<std::size_t> {};

TEST_P(OneSrSe, EveryTextIsAsWorkedOut)  // slow
{
    const SrSe& srSe = Division.at(GetParam());
    const int index = static_cast<int>(GetParam()) + 1;
    on<frmStart>().txtT1(4).setText(QString::number(index));  // as the summary of the Sr SE before leaves it
    walk(srSe, index, static_cast<int>(Division.size()), figuresOf(srSe.sample), Leaving::Printed);
}

INSTANTIATE_TEST_SUITE_P(Division, OneSrSe, testing::Range(std::size_t{0}, Division.size()), [](const auto& tested) {
    std::string name = Division.at(tested.param).name;
    std::erase(name, ' ');
    return name;
});

TEST_F(WholeWay, ADivisionOfFiveAddsUpAsWorkedOut)
{
    walkDivision(5, true);
    expectSummary("division");
}

TEST_F(WholeWay, ADivisionOfFifteenAddsUpAsWorkedOut)
{
    walkDivision(15, false);
    expectSummary("division-15");
}

TEST_F(WholeWay, ExitEndsThePrintedDivision)
{
    walkDivision(1, false);
    const QTemporaryDir prints;
    const std::string pdf = prints.filePath("frmSummary").toStdString();
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, pdf);
    click("cmdPrint");
    EXPECT_EQ(pagesOf(pdf), 1);
    click("cmdExit");

    EXPECT_FALSE(chain.isLoaded<frmStart>());
    EXPECT_FALSE(chain.isLoaded<frmT1>());
    EXPECT_FALSE(chain.isLoaded<frmS2>());
    EXPECT_FALSE(chain.isLoaded<frmSummary>());
}

}  // namespace
