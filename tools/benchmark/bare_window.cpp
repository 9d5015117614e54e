// The yardstick: one Qt window with nothing in it, as large as a screen of Crewmark.
//
//   bare-window                 stands there, as Crewmark does
//   bare-window --word          the same with one word in it, for which Qt must know its fonts
//   bare-window --words         with the words of Crewmark's start screen in its three faces, and nothing else of it
//   bare-window --memory        tells what it takes once it is painted, and ends
//   bare-window --memory 10     the same with ten such windows
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>
#include <memory>
#include <vector>

#include "probe.h"
#include "screens/flow/placement.h"

namespace {

// The longest texts of the start screen, one in each of its faces.
void addWords(QWidget& window)
{
    auto* title = new QLabel("Calculations of Crewmark\nBased on PLKTM Committee's Report", &window);
    QFont serif("Times New Roman");
    serif.setPointSizeF(title->font().pointSizeF() * 1.9);
    serif.setBold(true);
    title->setFont(serif);
    auto* caption = new QLabel("Calculations of Crewmark Based on PLKTN Commitees's Report", &window);
    QFont bold = caption->font();
    bold.setPointSizeF(bold.pointSizeF() * 1.3);
    bold.setBold(true);
    caption->setFont(bold);
    auto* introduction = new QLabel(
        "An interactive program for the computation of manpower and the review of strength, by the norms of the PLKTM "
        "Committee's report.\nGo through the screens once for each Sr SE: fill them from the Sr SE's data file or by "
        "hand, compute, print, and go on. The last screen sums up the division.",
        &window);
    introduction->setWordWrap(true);
    auto* down = new QVBoxLayout(&window);
    for (QLabel* label : {title, caption, introduction})
        down->addWidget(label);
}

}  // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int windows = std::max(1, arguments.value(2).toInt());
    std::vector<std::unique_ptr<QWidget>> standing;
    for (int i = 0; i < windows; ++i) {
        standing.push_back(std::make_unique<QWidget>());
        standing.back()->resize(flow::OpeningSize);
        if (arguments.contains("--word"))
            new QLabel("Crewmark", standing.back().get());
        if (arguments.contains("--words"))
            addWords(*standing.back());
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
