#include "walk.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTest>
#include <array>
#include <stdexcept>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "compose.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

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

// The button's handler alone, as the user's click runs it.
void Walk::press(const char* button)
{
    auto* found = m_form->findChild<QAbstractButton*>(button);
    if (!found || !found->isEnabled())
        throw std::runtime_error(m_form->objectName().toStdString() + ": " + button + " cannot be pressed");
    const QPoint mark = found->inherits("QPushButton") ? found->rect().center() : QPoint(9, found->height() / 2);
    QTest::mouseClick(found, Qt::LeftButton, {}, mark);
    if (!m_dialogs.trouble.isEmpty())
        throw std::runtime_error(m_dialogs.trouble.toStdString());
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

template <class Form>
void Walk::goTo(const char* button)
{
    const Cost cost;
    press(button);
    m_form = &m_chain.get<Form>();
    if (!m_form->isVisible())
        throw std::runtime_error(m_form->objectName().toStdString() + " did not appear");
    m_painting.settle(*m_form);
    report("next", cost.waited());
    report("cpu next", cost.worked());
    m_hands.takeUp(*m_form);
}

void Walk::print()
{
    m_dialogs.nextPrintOut = m_scratch + "/" + m_form->objectName() + ".pdf";
    timed("print", "cmdPrint");
    const QFileInfo paper(m_dialogs.nextPrintOut);
    if (!paper.exists())
        throw std::runtime_error("nothing was printed");
    report("paper", static_cast<double>(paper.size()));
}

void Walk::proceed(int index, const QString& file)
{
    m_form = &m_chain.get<frmStart>();
    m_hands.takeUp(*m_form);
    if (index == 1)
        m_hands.type("txtT1(3)", "15");
    m_hands.type("txtT1(0)", QString("Sr SE %1").arg(index));
    m_dialogs.nextFile = file;
    press("cmdFile");
    m_painting.settle(*m_form);
    goTo<frmT1>("cmdProceed");
    press(Gauges[static_cast<std::size_t>(index - 1) % Gauges.size()]);
    m_painting.settle(*m_form);
}

void Walk::track()
{
    timed("import", "cmdCopy");
    timed("compute", "cmdCompute");
}

template <class Form>
void Walk::step(const char* import, const char* compute)
{
    goTo<Form>("cmdNext");
    if (*import)
        timed("import", import);
    timed("compute", compute);
    if (m_reporting)
        print();
}

void Walk::oneSrSe(int index)
{
    proceed(index, m_samples + "/" + Files[static_cast<std::size_t>(index - 1) % Files.size()]);
    track();
    if (m_reporting)
        print();
    step<frmT2>("cmdCopy", "cmdCompute");
    step<frmT4>("", "cmdCompute");
    step<frmY>("cmdYdata", "cmdCOMPUTE");
    step<frmM1>("cmdData", "cmdCompute");
    step<frmM2>("cmdData", "cmdCompute");
    step<frmS1>("cmdData", "cmdCompute");
    step<frmS2>("cmdData", "cmdCompute");
    goTo<frmSummary>("cmdNext");
    timed("transfer", "cmdTransfer");
}

void Walk::sumUp()
{
    timed("compute", "cmdCompute");
    m_painting.settle(m_chain.get<frmStart>());
}
