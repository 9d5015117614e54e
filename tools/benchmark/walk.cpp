#include "walk.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <array>
#include <stdexcept>

#include "compose.h"
#include "start/frmStart.h"

namespace {

constexpr std::array Files = {"1-ambapur.mdb", "2-eklahra.mdb", "3-jamunia.mdb", "4-mandar-hill.mdb",
                              "5-parasnath-ghat.mdb"};
constexpr std::array Gauges = {"optBG", "optBG", "optBG", "optMG", "optNG"};

// What the user waits, and how much of it the processor works: the difference is other programs' time on a busy
// machine.
class Cost {
public:
    Cost() { m_clock.start(); }
    double waited() const { return static_cast<double>(m_clock.nsecsElapsed()) * 1e-6; }  // [ms]
    double worked() const { return (probe::usage().cpuSeconds - m_before) * 1e3; }        // [ms]

private:
    QElapsedTimer m_clock;
    double m_before = probe::usage().cpuSeconds;
};

}  // namespace

Walk::Walk(const QString& samples, const QString& scratch) : m_samples(samples), m_scratch(scratch)
{
    compose(m_chain);
    m_form = &m_chain.show<frmStart>();
    m_painting.settle(*m_form);
}

void Walk::report(const QString& figure, double value) const
{
    if (m_reporting)
        probe::report(figure + " " + m_form->objectName(), value);
}

// The handler alone, as the user's click or key runs it.
void Walk::perform(const division::Act& act)
{
    division::perform(*m_form, act);
    if (!m_dialogs.errors.isEmpty())
        throw std::runtime_error(m_dialogs.errors.first().toStdString());
}

void Walk::press(const char* button)
{
    perform({.control = button});
}

void Walk::timed(const QString& figure, const char* button)
{
    const Cost cost;
    press(button);
    report(figure + " handler of", cost.waited());
    m_painting.settle(*m_form);
    report(figure, cost.waited());
    report("cpu " + figure, cost.worked());
}

void Walk::goTo(const division::Step& step, const char* button)
{
    const Cost cost;
    press(button);
    m_form = m_chain.find(step.form);
    if (!m_form || !m_form->isVisible())
        throw std::runtime_error(std::string(step.form) + " did not appear");
    m_painting.settle(*m_form);
    report("next", cost.waited());
    report("cpu next", cost.worked());
}

void Walk::print()
{
    m_dialogs.printOut = m_scratch + "/" + m_form->objectName() + ".pdf";
    timed("print", "cmdPrint");
    const QFileInfo paper(m_dialogs.printOut);
    if (!paper.exists())
        throw std::runtime_error("nothing was printed");
    report("paper", static_cast<double>(paper.size()));
}

void Walk::proceed(int index, const QString& file)
{
    m_form = &m_chain.get<frmStart>();
    if (index == 1)
        perform({"txtT1(3)", "15"});
    perform({"txtT1(0)", QString("Sr SE %1").arg(index)});
    m_dialogs.dataFile = file;
    press("cmdFile");
    m_painting.settle(*m_form);
    goTo(division::Steps[1], division::Steps[0].next);
    press(Gauges[static_cast<std::size_t>(index - 1) % Gauges.size()]);
    m_painting.settle(*m_form);
}

// Up to Print.
void Walk::work(const division::Step& step)
{
    if (*step.import)
        timed("import", step.import);
    timed("compute", step.compute);
}

void Walk::track()
{
    work(division::Steps[1]);
}

void Walk::oneSrSe(int index)
{
    proceed(index, m_samples + "/" + Files[static_cast<std::size_t>(index - 1) % Files.size()]);
    for (std::size_t i = 1; i + 1 < division::Steps.size(); ++i) {
        work(division::Steps[i]);
        if (m_reporting)
            print();
        goTo(division::Steps[i + 1], division::Steps[i].next);
    }
    timed("transfer", division::Steps.back().import);
}

void Walk::sumUp()
{
    timed("compute", division::Steps.back().compute);
    m_painting.settle(m_chain.get<frmStart>());
}
