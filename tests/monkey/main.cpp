// Works the real screens by chance for as long as one likes: keys, clicks, pastes, closings, boxes answered anyhow,
// print-outs that fail, data files that are damaged or gone, signals. After every step it looks whether all that must
// hold still holds.
//
//   monkey [--steps N] [--seed S] [--log]

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <exception>

#include "compose.h"
#include "monkey/invariants.h"
#include "monkey/random_user.h"
#include "screens/flow/end_requests.h"
#include "start/frmStart.h"

namespace {

using namespace monkey;

/// A step may wait for one reader's deadline, and no longer: beyond this, the program hangs.
constexpr int LongestStep = 20'000;  // [ms]

QStringList warnings;

// What Qt says of misuse names its function; what it says of this machine's fonts and windows does not.
void onMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg && text.contains(QRegularExpression("^Q\\w+::")))
        warnings += text;
}

/// One run of the program, from the start screen to its end.
struct Run {
    explicit Run(Chance& chance)
        : answers(chance), chain(answers), requests(chain), hands(chance, chain, answers), watch(chain, answers)
    {
        compose(chain);
        chain.show<frmStart>();
        watch.before();
    }

    RandomDialogs answers;
    flow::Chain chain;
    flow::EndRequests requests;
    RandomUser hands;
    Invariants watch;
};

struct Tally {
    int steps = 0;
    int runs = 0;
    int wrong = 0;
    int boxes = 0;
    qint64 slowest = 0;  ///< [ms]
    std::map<QString, int> pressed;
};

/// Whether the program goes on.
bool step(Run& run, Tally& tally, bool log)
{
    QElapsedTimer clock;
    clock.start();
    std::vector<std::string> wrong;
    try {
        run.hands.act();
        QCoreApplication::processEvents();
    } catch (const std::exception& error) {
        wrong.push_back(std::string("an exception came out of a handler: ") + error.what());
    }
    const qint64 took = clock.elapsed();
    tally.slowest = std::max(tally.slowest, took);
    if (took > LongestStep)
        wrong.push_back("it took " + std::to_string(took) + " ms");
    const bool printerGaveOut = std::any_of(run.answers.given.begin(), run.answers.given.end(), [](const auto& box) {
        return box.printOut == RandomDialogs::PrintOut::Lost;
    });
    for (const QString& warning : printerGaveOut ? QStringList() : warnings)
        wrong.push_back("Qt warns: " + warning.toStdString());
    for (const std::string& one : run.watch.after(run.hands.workedOn()))
        wrong.push_back(one);

    ++tally.steps;
    tally.boxes += static_cast<int>(run.answers.given.size());
    tally.wrong += static_cast<int>(wrong.size());
    if (log || !wrong.empty())
        std::printf("%d: %s\n", tally.steps, qPrintable(run.hands.told()));
    for (const std::string& one : wrong)
        std::printf("  WRONG: %s\n", one.c_str());
    for (const RandomDialogs::Given& box : run.answers.given)
        if (log || !wrong.empty())
            std::printf("  box \"%s\": %s%s\n", qPrintable(box.title), qPrintable(box.text), box.yes ? " - yes" : "");
    if (log)
        std::fflush(stdout);

    run.answers.given.clear();
    warnings.clear();
    run.watch.before();
    return run.chain.isLoaded<frmStart>();
}

}  // namespace

int main(int argc, char* argv[])
{
    if (const QByteArray platform = qgetenv("QT_QPA_PLATFORM"); platform.isEmpty() || platform == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" CREWMARK_DESKTOP);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(onMessage);

    QCommandLineParser line;
    line.setApplicationDescription("Works the screens by chance and looks whether all that must hold still holds.");
    line.addHelpOption();
    const QCommandLineOption steps("steps", "How many acts of the hands.", "number", "2000");
    const QCommandLineOption seed("seed", "The chance: the same seed, the same acts.", "number", "1");
    const QCommandLineOption log("log", "Tell every act.");
    line.addOptions({steps, seed, log});
    line.process(application);

    Chance chance(line.value(seed).toULongLong());
    Tally tally;
    const int wanted = line.value(steps).toInt();
    QElapsedTimer clock;
    clock.start();
    while (tally.steps < wanted && tally.wrong == 0) {
        Run run(chance);
        ++tally.runs;
        QTimer next;
        next.setSingleShot(true);  // an act may let the event loop run: no act within an act
        QObject::connect(&next, &QTimer::timeout, [&] {
            const bool goesOn = step(run, tally, line.isSet(log));
            if (tally.steps == wanted || tally.wrong > 0)
                QApplication::exit();
            else if (goesOn)
                next.start();  // else the end of the program has ended its loop, too
        });
        next.start();
        QApplication::exec();
        for (const auto& [button, count] : run.watch.pressed())
            tally.pressed[button] += count;
    }

    const auto pressed = [&](const char* button) { return tally.pressed[button]; };
    std::printf(
        "%d steps in %.1f minutes (seed %s), %d runs of the program, %d boxes, slowest step %lld ms\n"
        "imports %d, computes %d, nexts %d, transfers %d, grand totals %d, exits %d\n%d wrong\n",
        tally.steps, static_cast<double>(clock.elapsed()) / 60'000, qPrintable(line.value(seed)), tally.runs,
        tally.boxes, static_cast<long long>(tally.slowest),
        pressed("frmT1.cmdCopy") + pressed("frmT2.cmdCopy") + pressed("frmY.cmdYdata") + pressed("frmM1.cmdData") +
            pressed("frmM2.cmdData") + pressed("frmS1.cmdData") + pressed("frmS2.cmdData"),
        pressed("frmT1.cmdCompute") + pressed("frmT2.cmdCompute") + pressed("frmT4.cmdCompute") +
            pressed("frmY.cmdCOMPUTE") + pressed("frmM1.cmdCompute") + pressed("frmM2.cmdCompute") +
            pressed("frmS1.cmdCompute") + pressed("frmS2.cmdCompute") + pressed("frmSummary.cmdCompute"),
        pressed("frmT1.cmdNext") + pressed("frmT2.cmdNext") + pressed("frmT4.cmdNext") + pressed("frmY.cmdNext") +
            pressed("frmM1.cmdNext") + pressed("frmM2.cmdNext") + pressed("frmS1.cmdNext") + pressed("frmS2.cmdNext"),
        pressed("frmSummary.cmdTransfer"), pressed("frmSummary.cmdTotal"), pressed("frmSummary.cmdExit"), tally.wrong);
    return tally.wrong == 0 ? 0 : 1;
}
