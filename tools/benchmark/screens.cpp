// One round through the real screens; every figure goes to the standard output.
#include <QApplication>
#include <QCommandLineParser>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <exception>

#include "division/offscreen.h"
#include "walk.h"

namespace {

void reportMemory(const QString& when)
{
    const probe::Memory memory = probe::memory();
    probe::report("own " + when, memory.own);
    probe::report("proportional " + when, memory.proportional);
}

// Not QTest's way to wait, which looks at the clock a hundred times a second.
void letRun(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

// The summary stands there with the cursor in a box, the nine others are hidden, and nobody does anything.
void idle(Walk& walk, int milliseconds)
{
    flow::Screen& summary = *walk.chain().find("frmSummary");
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window != &summary)
            window->hide();
    summary.activateWindow();
    summary.firstBox()->setFocus();
    letRun(300);

    const int paints = walk.painting().paints();
    const probe::Usage before = probe::usage();
    letRun(milliseconds);
    const probe::Usage after = probe::usage();
    const double seconds = milliseconds / 1000.0;
    probe::report("idle repaints", walk.painting().paints() - paints);
    probe::report("idle wake-ups", (after.wakeUps - before.wakeUps) / seconds);
    probe::report("idle processor", (after.cpuSeconds - before.cpuSeconds) / seconds * 100.0);
}

void oneSrSe(Walk& walk, int idleMs)
{
    walk.oneSrSe(1);
    letRun(300);  // what is still to be painted, and what the clock has to do
    reportMemory("ten printed");
    idle(walk, idleMs);
}

void loaded(Walk& walk)
{
    walk.setReporting(false);
    walk.oneSrSe(1);
    letRun(300);
    reportMemory("ten loaded");
}

void wholeDivision(Walk& walk, int srSes)
{
    walk.setReporting(false);
    for (int index = 1; index <= srSes; ++index) {
        walk.oneSrSe(index);
        if (index == 2)
            reportMemory("after two");
        if (index == srSes)  // the same ten screens stand there as before
            reportMemory("after all");
        walk.sumUp();
    }
}

void table(Walk& walk, const QString& file)
{
    walk.proceed(1, file);
    reportMemory("table");
}

void segments(Walk& walk, const QString& file)
{
    walk.setReporting(false);
    walk.proceed(1, file);
    walk.setReporting(true);
    walk.track();
}

}  // namespace

int main(int argc, char* argv[])
{
    division::silenceOffscreenRemarks();
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);  // as main.cpp has it
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser line;
    line.setApplicationDescription("One round of the benchmark through Crewmark's screens.");
    line.addHelpOption();
    line.addPositionalArgument("what", "one-sr-se, loaded, division, table or segments");
    const QCommandLineOption samples("samples", "Folder of the sample data files.", "folder");
    const QCommandLineOption file("file", "The data file of table and segments.", "file");
    const QCommandLineOption srSes("sr-ses", "How many Sr SEs the division has.", "number", "15");
    const QCommandLineOption idleMs("idle", "How long one-sr-se does nothing at its end.", "milliseconds", "3000");
    line.addOptions({samples, file, srSes, idleMs});
    line.process(application);

    try {
        const QTemporaryDir scratch;
        Walk walk(line.value(samples), scratch.path());
        const QString what = line.positionalArguments().value(0);
        if (what == "one-sr-se")
            oneSrSe(walk, line.value(idleMs).toInt());
        else if (what == "loaded")
            loaded(walk);
        else if (what == "division")
            wholeDivision(walk, line.value(srSes).toInt());
        else if (what == "table")
            table(walk, line.value(file));
        else if (what == "segments")
            segments(walk, line.value(file));
        else
            line.showHelp(2);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The round stopped: %s\n", error.what());
        return 1;
    }
    return 0;
}
