#include "division.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QRegularExpression>
#include <array>
#include <cstdio>
#include <stdexcept>

#include "compose.h"
#include "division/replay.h"
#include "division/replay_dialogs.h"
#include "screens/flow/chain.h"
#include "screens/flow/placement.h"

using division::KeptDivision;
using division::Moment;
using division::State;

namespace {

class Worker {
public:
    Worker(const KeptDivision& division, const Output& output) : m_division(division), m_output(output)
    {
        compose(m_chain);
    }

    void work();

private:
    void look(const Moment& moment);
    void checkErrors() const;
    QString stemOf(const Moment& moment) const;
    void tell(const Moment& moment) const;
    void photograph(const Moment& moment) const;
    void print(const Moment& moment);
    void printTable() const;

    const KeptDivision& m_division;
    const Output& m_output;
    division::ReplayDialogs m_dialogs;
    flow::Chain m_chain{m_dialogs};
};

// No example should see one.
void Worker::checkErrors() const
{
    if (!m_dialogs.errors.isEmpty())
        throw std::runtime_error(m_dialogs.errors.first().toStdString());
}

// Of the file names: "01-ambapur".
QString Worker::stemOf(const Moment& moment) const
{
    if (moment.srSe == 0)
        return "division";
    const QString& file = m_division.workings[static_cast<std::size_t>(moment.srSe) - 1].dataFile;
    static const QRegularExpression number("^\\d+-");
    return QString("%1-%2").arg(moment.srSe, 2, 10, QChar('0')).arg(QFileInfo(file).baseName().remove(number));
}

void Worker::tell(const Moment& moment) const
{
    const bool atStart = moment.screen.objectName() == "frmStart";
    const QString what = atStart ? m_division.workings[static_cast<std::size_t>(moment.srSe) - 1].name
                                 : moment.screen.windowTitle().simplified();
    std::printf("Sr SE %d of %zu: %s\n", moment.srSe, m_division.workings.size(), what.toUtf8().constData());
    std::fflush(stdout);
}

void Worker::photograph(const Moment& moment) const
{
    constexpr std::array states = {"empty", "filled", "computed"};
    const QString form = moment.screen.objectName();
    QString name;
    if (m_output.guide && moment.srSe <= 1)
        name = form + "-" + states[static_cast<std::size_t>(moment.state)];
    else if (m_output.printOuts && moment.state == State::Computed)
        name = stemOf(moment) + "-" + form;
    else
        return;
    moment.screen.resize(flow::OpeningSize);
    for (int i = 0; i < 10; ++i)  // what was shown is laid out, and what wraps then once more
        QApplication::processEvents();
    const QString file = m_output.folder + "/" + name + ".png";
    if (!moment.screen.grab().save(file))
        throw std::runtime_error("cannot write " + file.toStdString());
}

void Worker::print(const Moment& moment)
{
    if (!m_output.printOuts || moment.state != State::Computed)
        return;
    m_dialogs.printOut = m_output.folder + "/" + stemOf(moment) + "-" + moment.screen.objectName() + ".pdf";
    division::perform(moment.screen, {.control = "cmdPrint"});
    checkErrors();
    if (!QFile::exists(m_dialogs.printOut))
        throw std::runtime_error("nothing was printed to " + m_dialogs.printOut.toStdString());
}

void Worker::look(const Moment& moment)
{
    checkErrors();
    if (moment.state == State::Empty)
        tell(moment);
    const bool table = moment.screen.objectName() == "frmSummary" && moment.state == State::Computed;
    if (table && moment.srSe > 0)
        return;  // it is complete when the totals are
    photograph(moment);
    print(moment);
}

void Worker::printTable() const
{
    struct Column {
        const char* heading;
        const char* boxes;
        int width;  // left-aligned if negative
    };
    constexpr std::array columns = {
        Column{"No", "txtSN", 9},        Column{"Sr SE", "txtSSE", -24}, Column{"Km", "txtTkm", 9},
        Column{"T+R", "txtTR", 9},       Column{"M", "txtM", 9},         Column{"S", "txtS", 9},
        Column{"Mandays", "txtTMan", 9}, Column{"Keymen", "txtKey", 9},  Column{"LR", "txtLR", 9},
        Column{"Strength", "txtCS", 9},  Column{"Sanctd", "txtSS", 9},   Column{"Decas.", "txtSDC", 9},
        Column{"+/-", "txtEx", 9},
    };
    const flow::Screen& summary = *m_chain.find("frmSummary");
    const auto line = [&](const auto& text) {
        for (const Column& column : columns) {
            const QString cell = text(column);
            std::printf("%s ",
                        (column.width < 0 ? cell.leftJustified(-column.width) : cell.rightJustified(column.width))
                            .toUtf8()
                            .constData());
        }
        std::printf("\n");
    };
    const auto row = [&](int index) {
        line([&](const Column& column) {
            return summary.findChild<QLineEdit*>(QString("%1(%2)").arg(column.boxes).arg(index))->text();
        });
    };
    std::printf("\n");
    line([](const Column& column) { return QString(column.heading); });
    for (int srSe = 0; srSe < static_cast<int>(m_division.workings.size()); ++srSe)
        row(srSe);
    row(15);
}

void Worker::work()
{
    division::replay(m_division, m_chain, m_dialogs, [this](const Moment& moment) { look(moment); });
    checkErrors();
    printTable();
}

}  // namespace

KeptDivision repeated(KeptDivision division, int srSes)
{
    if (srSes < 1 || srSes > 15)
        throw std::runtime_error("a division has 1 to 15 Sr SEs");
    const auto wanted = static_cast<std::size_t>(srSes);
    const std::size_t given = division.workings.size();
    if (given == 0)
        throw std::runtime_error("there is no Sr SE to be worked");
    division.srSes = srSes;
    division.workings.resize(wanted);
    for (std::size_t i = given; i < wanted; ++i) {
        division.workings[i] = division.workings[i % given];
        division.workings[i].name += QString(" %1").arg(i + 1);
    }
    return division;
}

void workDivision(const KeptDivision& division, const Output& output)
{
    Worker(division, output).work();
}
