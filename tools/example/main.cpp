// The worked example: a division of five Sr SEs, from the start screen to the grand total, through the program's own
// screens by keys and clicks.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <cstdio>
#include <exception>

#include "compose.h"
#include "division.h"
#include "example_dialogs.h"
#include "screens/flow/chain.h"

// The offscreen platform remarks on every window that it can neither raise nor keep from shrinking.
static void quiet(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

int main(int argc, char* argv[])
{
    qInstallMessageHandler(quiet);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser line;
    line.setApplicationDescription("Works the sample division through Crewmark's screens.");
    line.addHelpOption();
    const QCommandLineOption samples("samples", "Folder of the sample data files.", "folder", CREWMARK_SAMPLES);
    const QCommandLineOption output("output", "Folder for print-outs and pictures.", "folder", "build/example");
    const QCommandLineOption srSes("sr-ses", "Number of Sr SEs, the five samples over and over.", "number", "5");
    const QCommandLineOption bare("no-print-outs", "Neither print-outs nor pictures.");
    const QCommandLineOption guide("guide", "Pictures for the guide only: each screen empty, filled and computed.");
    line.addOptions({samples, output, srSes, bare, guide});
    line.process(application);

    try {
        Division division{.samples = line.value(samples),
                          .output = line.value(output),
                          .srSes = line.value(srSes).toInt(),
                          .printOuts = !line.isSet(bare) && !line.isSet(guide),
                          .guide = line.isSet(guide)};
        if (!line.isSet(bare))
            QDir().mkpath(division.output);
        workDivision(division);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The example stopped: %s\n", error.what());
        return 1;
    }
    return 0;
}
