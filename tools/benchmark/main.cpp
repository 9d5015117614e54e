// Runs the benchmark round after round, every job once a round so that a busy minute of the machine is shared by all,
// and prints the table of docs/performance.md. tools/bench builds and starts it.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <exception>

#include "jobs.h"
#include "samples.h"
#include "table.h"

namespace {

const QString Bin = CREWMARK_BUILD "/bin/";
const QString SampleFiles = CREWMARK_ROOT "/samples";
const QString TestFiles = CREWMARK_ROOT "/tests/data/";

struct Effort {
    int rounds;
    int idleMs;
    int srSes;
    bool brief;
};
constexpr Effort Smoke = {.rounds = 1, .idleMs = 300, .srSes = 2, .brief = true};

void oneRound(Samples& samples, const Effort& effort)
{
    samples.add("start crewmark", jobs::start(Bin + "crewmark"));
    samples.add("start bare", jobs::start(Bin + "bare-window"));
    samples.add("start word", jobs::start(Bin + "bare-window", {"--word"}));
    samples.add("start words", jobs::start(Bin + "bare-window", {"--words"}));
    jobs::report(samples, "bare ", Bin + "bare-window", {"--memory", "1"});
    jobs::report(samples, "ten bare ", Bin + "bare-window", {"--memory", "10"});

    const auto screens = [&](const QString& prefix, const QStringList& arguments) {
        jobs::report(samples, prefix, Bin + "bench-screens", QStringList("--samples=" + SampleFiles) + arguments);
    };
    screens("", {"one-sr-se", QString("--idle=%1").arg(effort.idleMs)});
    screens("", {"loaded"});
    screens("16 ", {"segments", "--file=" + TestFiles + "count-above-16.mdb"});
    screens("many ", {"table", "--file=" + TestFiles + "many-records.mdb"});
    screens("few ", {"table", "--file=" + SampleFiles + "/1-ambapur.mdb"});
    screens("", {"division", QString("--sr-ses=%1").arg(effort.srSes)});

    const auto example = [&](const QString& figure, int srSes) {
        jobs::run(samples, figure, Bin + "crewmark-example",
                  {"--no-print-outs", QString("--sr-ses=%1").arg(srSes), SampleFiles + "/division.crewmark"});
    };
    example("example", effort.srSes);
    example("example of one", 1);
    jobs::figures(samples, Bin + "bench-figures", effort.brief);
}

// "next frmT2" -> "frmT2"
QString screenOf(const QString& figure)
{
    return figure.section(' ', -1);
}

void compare(Samples& samples)
{
    samples.addRatio("start", "start crewmark", "start bare");
    samples.addRatio("word", "start word", "start bare");
    samples.addRatio("words", "start words", "start bare");
    for (const QString kind : {"own", "proportional"}) {
        samples.addDifference(kind + " ten beyond bare", kind + " ten loaded", "bare " + kind);
        samples.addDifference(kind + " ten printed beyond bare", kind + " ten printed", "bare " + kind);
        samples.addDifference("ten bare " + kind + " beyond bare", "ten bare " + kind, "bare " + kind);
        samples.addDifference(kind + " of the records", "many " + kind + " table", "few " + kind + " table");
        samples.addRatio(kind + " growth", kind + " after all", kind + " after two");
    }
    if (!samples.has("spreadsheet"))
        return;
    samples.addRatio("spreadsheet ratio", "spreadsheet", "example of one");
    samples.addRatio("cpu spreadsheet ratio", "cpu spreadsheet", "cpu example of one");
}

void fill(Table& table, const Samples& samples)
{
    table.line("start until painted, to the bare window", "start", "x", 1.2, 1.0, 2);
    table.line("- floor: a window with one word in it", "word", "x", Table::NoGoal, 1.0, 2);
    table.line("- floor: with the start screen's texts and faces", "words", "x", Table::NoGoal, 1.0, 2);
    table.line("- Crewmark", "start crewmark", "ms");
    table.line("- bare window", "start bare", "ms");
    const QString next = samples.worst("next ");
    table.line("Next until painted, worst of nine: " + screenOf(next), next, "ms", 30);
    table.line("- of the processor", "cpu " + next, "ms");
    table.line("import until painted, 16 segments", "16 import frmT1", "ms", 20);
    table.line("- of the processor", "16 cpu import frmT1", "ms");
    const QString compute = samples.worst("compute handler");
    table.line("Compute, worst screen: " + screenOf(compute), compute, "ms", 5, 1.0, 2);
    table.line("20,000 records until painted", "many next frmT1", "ms", 200);
    table.line("- of the processor", "many cpu next frmT1", "ms");
    table.line("- memory for them, own and shared in part", "proportional of the records", "MiB", 12);
    table.line("- memory for them, own", "own of the records", "MiB", 12);
    table.line("ten screens one behind the other, beyond the bare window", "proportional ten beyond bare", "MiB", 16);
    table.line("- own", "own ten beyond bare", "MiB", 16);
    table.line("- when each has been printed", "proportional ten printed beyond bare", "MiB");
    table.line("- to compare: ten bare windows beyond one", "ten bare proportional beyond bare", "MiB");
    table.line("memory at Sr SE 15, to that at Sr SE 2", "proportional growth", "x", 1.05, 1.0, 3);
    table.line("- own", "own growth", "x", 1.05, 1.0, 3);
    const QString print = samples.worst("print frm");
    table.line("one screen to PDF, slowest: " + screenOf(print), print, "ms", 150);
    table.line("- of the processor", "cpu " + print, "ms");
    const QString paper = samples.worst("paper ");
    table.line("- its size, largest: " + screenOf(paper), paper, "kB", 1000, 1e-3);
    table.line("idle: of a core", "idle processor", "%", 0.2, 1.0, 2);
    table.line("- wake-ups a second", "idle wake-ups", "", 12);
    table.line("- repaints", "idle repaints", "", 0, 1.0, 0);
    table.line("a division of 15 by the example", "example", "s", 10, 1.0, 2);
    if (samples.has("spreadsheet ratio")) {
        table.atLeast("the same sums by a spreadsheet, to one Sr SE", "spreadsheet ratio", "x", 20);
        table.line("- of the processor", "cpu spreadsheet ratio", "x");
        table.line("- the spreadsheet", "cpu spreadsheet", "s", Table::NoGoal, 1.0, 2);
        table.line("- one Sr SE", "cpu example of one", "s", Table::NoGoal, 1.0, 2);
    } else {
        table.missing("the same sums by a spreadsheet, to one Sr SE", ">= 20 x", "soffice not installed");
    }
    if (samples.has("installed"))
        table.line("installed, without Qt", "installed", "KiB", 2048, 1.0, 0);
    table.line("picture", "picture", "ns", 100, 1.0, 0);
    table.line("valueOf", "valueOf", "ns", 100, 1.0, 0);
}

// What the worst was the worst of.
void printScreens(const Samples& samples)
{
    std::printf("\nMilliseconds, screen by screen (next, import, compute, print: until painted; handler: until the "
                "results stand in the boxes)\n\n| screen     | next | import | compute | handler | print | PDF kB |\n"
                "|------------|------|--------|---------|---------|-------|--------|\n");
    for (const char* screen : {"frmT1", "frmT2", "frmT4", "frmY", "frmM1", "frmM2", "frmS1", "frmS2", "frmSummary"}) {
        const auto of = [&](const char* figure, double factor = 1.0) {
            const QString name = QString("%1 %2").arg(figure, screen);
            return samples.has(name) ? QString::number(samples.median(name) * factor, 'f', 1) : QString();
        };
        std::printf("| %-10s | %4s | %6s | %7s | %7s | %5s | %6s |\n", screen, qPrintable(of("next")),
                    qPrintable(of("import")), qPrintable(of("compute")), qPrintable(of("compute handler of")),
                    qPrintable(of("print")), qPrintable(of("paper", 1e-3)));
    }
}

void bench(const Effort& effort)
{
    const QTemporaryDir scratch;
    const QString soffice = QStandardPaths::findExecutable("soffice");
    Samples samples;
    if (!effort.brief) {  // what is read from the disk for the first time is not what is measured
        samples.add("installed", jobs::installedSize(CREWMARK_BUILD, scratch.filePath("installed")));
        Samples cold;
        oneRound(cold, Smoke);
        if (!soffice.isEmpty())
            jobs::spreadsheet(cold, soffice, scratch.path());
    }
    for (int round = 1; round <= effort.rounds; ++round) {
        std::fprintf(stderr, "round %d of %d\n", round, effort.rounds);
        oneRound(samples, effort);
        if (!soffice.isEmpty() && !effort.brief)
            jobs::spreadsheet(samples, soffice, scratch.path());
    }
    compare(samples);

    Table table(samples);
    fill(table, samples);
    std::printf("Median of %d rounds; spread: their minimum and maximum; platform: %s\n\n", effort.rounds,
                qPrintable(qEnvironmentVariable("QT_QPA_PLATFORM").section(':', 0, 0)));
    table.print();
    printScreens(samples);
}

}  // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen");
    // Without a file that tells it otherwise, the offscreen desktop has 800 x 800 pixels.
    qputenv("QT_QPA_PLATFORM", platform == "offscreen"
                                   ? QByteArray("offscreen:configfile=" CREWMARK_ROOT "/tools/benchmark/desktop.json")
                                   : platform.toUtf8());
    const QTemporaryDir runtimeFolder;  // as a session of a desktop has one; those who end in haste leave things there
    qputenv("XDG_RUNTIME_DIR", runtimeFolder.path().toUtf8());
    QCommandLineParser line;
    line.setApplicationDescription("Measures what Crewmark costs; see docs/performance.md.");
    line.addHelpOption();
    const QCommandLineOption rounds("rounds", "How often everything is measured.", "number", "15");
    const QCommandLineOption smoke("smoke", "As little as possible, only to see that it runs.");
    line.addOptions({rounds, smoke});
    line.process(application);
    try {
        bench(line.isSet(smoke) ? Smoke
                                : Effort{.rounds = std::max(1, line.value(rounds).toInt()),
                                         .idleMs = 3000,
                                         .srSes = 15,
                                         .brief = false});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The benchmark stopped: %s\n", error.what());
        return 1;
    }
    return 0;
}
