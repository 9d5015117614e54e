// The worked example: a kept division, from the start screen to the grand total, through the program's own screens.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <cstdio>
#include <exception>

#include "division.h"
#include "division/offscreen.h"

int main(int argc, char* argv[])
{
    division::silenceOffscreenRemarks();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser line;
    line.setApplicationDescription("Works a kept division through Crewmark's screens.");
    line.addHelpOption();
    line.addPositionalArgument("file", "The kept division; the sample division without.", "[file]");
    const QCommandLineOption output("output", "Folder for print-outs and pictures.", "folder", "build/example");
    const QCommandLineOption srSes("sr-ses", "Number of Sr SEs: those of the division over and over.", "number");
    const QCommandLineOption bare("no-print-outs", "Neither print-outs nor pictures.");
    const QCommandLineOption guide("guide", "Pictures for the guide only: each screen empty, filled and computed.");
    line.addOptions({output, srSes, bare, guide});
    line.process(application);

    try {
        const QStringList files = line.positionalArguments();
        division::KeptDivision division = division::readKeptFile(files.value(0, CREWMARK_SAMPLES "/division.crewmark"));
        if (line.isSet(srSes))
            division = repeated(division, line.value(srSes).toInt());
        const Output wanted{.folder = line.value(output),
                            .printOuts = !line.isSet(bare) && !line.isSet(guide),
                            .guide = line.isSet(guide)};
        if (!line.isSet(bare))
            QDir().mkpath(wanted.folder);
        workDivision(division, wanted);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The example stopped: %s\n", error.what());
        return 1;
    }
    return 0;
}
