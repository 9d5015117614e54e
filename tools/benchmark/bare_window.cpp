// The yardstick: one window of the toolkit with nothing in it, as large as a screen of Crewmark.
//
//   bare-window                 stands there, as Crewmark does
//   bare-window --word          the same with one word in it, for which the toolkit must know its fonts
//   bare-window --memory        tells what it takes once it is painted, and ends
//   bare-window --memory 10     the same with ten such windows
#include <QApplication>
#include <QLabel>
#include <QWidget>
#include <memory>
#include <vector>

#include "probe.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int windows = std::max(1, arguments.value(2).toInt());
    std::vector<std::unique_ptr<QWidget>> standing;
    for (int i = 0; i < windows; ++i) {
        standing.push_back(std::make_unique<QWidget>());
        standing.back()->resize(1340, 690);
        if (arguments.contains("--word"))
            new QLabel("Crewmark", standing.back().get());
        standing.back()->show();
    }
    if (!arguments.contains("--memory"))
        return QApplication::exec();

    probe::Painting painting;
    for (const auto& window : standing)
        painting.settle(*window);
    const probe::Memory memory = probe::memory();
    probe::report("own", memory.own);
    probe::report("proportional", memory.proportional);
    return 0;
}
