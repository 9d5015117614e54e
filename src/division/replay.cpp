#include "division/replay.h"

#include <QCoreApplication>
#include <QEvent>
#include <span>

#include "division/replay_dialogs.h"
#include "division/steps.h"
#include "screens/flow/chain.h"
#include "start/frmStart.h"

namespace division {

namespace {

constexpr Step Start = Steps.front();
constexpr Step Summary = Steps.back();
const char* const GrandTotal = "cmdTotal";

class Replay {
public:
    Replay(const KeptDivision& division, flow::Chain& chain, ReplayDialogs& dialogs,
           const std::function<void(const Moment&)>& look)
        : m_division(division), m_chain(chain), m_dialogs(dialogs), m_look(look)
    {
    }

    void run()
    {
        m_chain.show<frmStart>();
        for (const KeptWorking& working : m_division.workings) {
            ++m_srSe;
            work(working);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // of the screens that it unloaded
        }
        if (m_division.totals.empty())
            return;
        m_srSe = 0;
        takeUp(Summary);
        for (const Act& act : m_division.totals)
            replayAct(Summary, act);
        look(State::Computed);
    }

private:
    void work(const KeptWorking& working)
    {
        start(working);
        for (const Step& step : std::span(Steps).subspan(1)) {
            takeUp(step);
            look(State::Empty);
            bool anything = false;
            for (const Act& act : actsOf(working, step)) {
                if (act.control == step.compute && anything)
                    look(State::Filled);
                replayAct(step, act);
                anything = true;
            }
            look(State::Computed);
            goOn(step);
        }
    }

    void start(const KeptWorking& working)
    {
        takeUp(Start);
        if (m_chain.get<frmStart>().txtT1(4).text() != QString::number(m_srSe))
            stop("the start screen does not come back for it");
        look(State::Empty);
        if (m_srSe == 1) {  // later they are locked
            enter("txtT1(5)", m_division.railway);
            enter("txtT1(2)", m_division.division);
            enter("txtT1(3)", m_division.srSes > 0 ? QString::number(m_division.srSes) : QString());
        }
        enter("txtT1(0)", working.name);
        m_dialogs.dataFile = working.dataFile;
        press("cmdFile");
        look(State::Computed);
        goOn(Start);
    }

    // What stands there already was not typed.
    void enter(const QString& box, const QString& text)
    {
        if (m_screen->findChild<QLineEdit*>(box)->text() != text)
            act({box, text});
    }

    static std::vector<Act> actsOf(const KeptWorking& working, const Step& step)
    {
        for (const KeptScreen& screen : working.screens)
            if (screen.form == step.form)
                return screen.acts;
        if (!*step.import)
            return {{step.compute}};
        return {{step.import}, {step.compute}};
    }

    // From here on this is the screen that is worked.
    void takeUp(const Step& step)
    {
        m_screen = m_chain.find(step.form);
        if (!m_screen || !m_screen->isVisible())
            stop(QString("%1 does not open").arg(step.form));
    }

    // What a file may ask for: it neither prints nor leaves a screen nor ends the program.
    void replayAct(const Step& step, const Act& kept)
    {
        const QString& name = kept.control;
        if (name.startsWith("cmd") && name != step.import && name != step.compute && name != GrandTotal)
            stop(QString("%1 of %2 cannot be replayed").arg(name, step.form));
        act(kept);
    }

    void act(const Act& act)
    {
        try {
            perform(*m_screen, act);
        } catch (const Refused& refused) {
            stop(refused.what());
        }
    }

    void press(const char* button) { act({.control = button}); }

    void goOn(const Step& step)
    {
        if (!*step.next)
            return;
        const auto errors = m_dialogs.errors.size();
        press(step.next);
        m_errorsBefore = errors;  // the next screen may have reported one as it opened
    }

    [[noreturn]] void stop(const QString& reason) const
    {
        const QString place = m_srSe > 0 ? QString("Sr SE %1").arg(m_srSe) : QString("totals");
        const QString cause =
            m_dialogs.errors.size() > m_errorsBefore ? QString(" (%1)").arg(m_dialogs.errors.last()) : QString();
        throw std::runtime_error((place + ": " + reason + cause).toStdString());
    }

    void look(State state) const
    {
        if (m_look)
            m_look({m_srSe, *m_screen, state});
    }

    const KeptDivision& m_division;
    flow::Chain& m_chain;
    ReplayDialogs& m_dialogs;
    const std::function<void(const Moment&)>& m_look;
    flow::Screen* m_screen = nullptr;
    int m_srSe = 0;
    qsizetype m_errorsBefore = 0;  // reported before this screen
};

}  // namespace

void replay(const KeptDivision& division, flow::Chain& chain, ReplayDialogs& dialogs,
            const std::function<void(const Moment&)>& look)
{
    Replay(division, chain, dialogs, look).run();
}

}  // namespace division
