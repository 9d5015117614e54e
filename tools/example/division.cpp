#include "division.h"

#include <QFile>
#include <array>
#include <cstdio>
#include <stdexcept>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "compose.h"
#include "example_dialogs.h"
#include "hands.h"
#include "screens/flow/chain.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

namespace {

struct SrSe {
    const char* file;
    const char* name;
    const char* gauge;  // its option button, "" where the suburban box chooses it
};
constexpr std::array Sample = {
    SrSe{"1-ambapur", "Sr SE Ambapur", "optBG"},
    SrSe{"2-eklahra", "Sr SE Eklahra", "optBG"},
    SrSe{"3-jamunia", "Sr SE Jamunia", ""},
    SrSe{"4-mandar-hill", "Sr SE Mandar Hill", "optMG"},
    SrSe{"5-parasnath-ghat", "Sr SE Parasnath Ghat", "optNG"},
};

constexpr QSize UsualSize(1340, 690);

class Worker {
public:
    explicit Worker(const Division& division) : m_division(division) { compose(m_chain); }

    void work();

private:
    template <class Form>
    void takeUp();
    void enter(const SrSe& srSe, int index);
    template <class Form>
    void step(const char* import, const char* compute);
    void sumUp();
    void press(const char* button);
    void tell(const QString& what) const;
    void photograph(const QString& state);
    void print();

    const Division& m_division;
    ExampleDialogs m_dialogs;
    flow::Chain m_chain{m_dialogs};
    Hands m_hands;
    QWidget* m_form = nullptr;
    QString m_stem;  // of the file names: "1-ambapur"
    int m_index = 0;
};

template <class Form>
void Worker::takeUp()
{
    auto& form = m_chain.get<Form>();
    if (!form.isVisible())
        throw std::runtime_error(form.objectName().toStdString() + " did not appear");
    form.resize(UsualSize);
    m_form = &form;
    m_hands.takeUp(form);
}

void Worker::press(const char* button)
{
    m_hands.click(button);
    if (!m_dialogs.trouble.isEmpty())
        throw std::runtime_error(m_dialogs.trouble.toStdString());
}

void Worker::tell(const QString& what) const
{
    std::printf("Sr SE %d of %d: %s\n", m_index, m_division.srSes, what.toUtf8().constData());
    std::fflush(stdout);
}

void Worker::photograph(const QString& state)
{
    const QString folder = m_division.output + "/";
    if (m_division.guide && m_index == 1)
        m_hands.photograph(folder + m_form->objectName() + "-" + state + ".png");
    else if (m_division.printOuts && state == "computed")
        m_hands.photograph(folder + m_stem + "-" + m_form->objectName() + ".png");
}

void Worker::print()
{
    if (!m_division.printOuts)
        return;
    m_dialogs.nextPrintOut = m_division.output + "/" + m_stem + "-" + m_form->objectName() + ".pdf";
    press("cmdPrint");
    if (!QFile::exists(m_dialogs.nextPrintOut))
        throw std::runtime_error("nothing was printed to " + m_dialogs.nextPrintOut.toStdString());
}

void Worker::enter(const SrSe& srSe, int index)
{
    m_index = index;
    const QString round = index > static_cast<int>(Sample.size()) ? QString(" %1").arg(index) : QString();
    m_stem = QString("%1-%2").arg(index, 2, 10, QChar('0')).arg(QString(srSe.file).section('-', 1));
    takeUp<frmStart>();
    photograph("empty");
    if (index == 1) {
        m_hands.type("txtT1(5)", "Sample Railway");
        m_hands.type("txtT1(2)", "Sample Division");
        m_hands.type("txtT1(3)", QString::number(m_division.srSes));
    }
    m_hands.type("txtT1(0)", srSe.name + round);
    m_dialogs.nextFile = m_division.samples + "/" + srSe.file + ".mdb";
    press("cmdFile");
    tell(m_hands.text("txtT1(0)"));
    photograph("computed");
    print();
    press("cmdProceed");

    takeUp<frmT1>();
    m_hands.type("txtT1(0)", "Sample Section");
    m_hands.type("txtT1(2)", "Km 0 to 100");
    press(*srSe.gauge ? srSe.gauge : "chkSub");
}

template <class Form>
void Worker::step(const char* import, const char* compute)
{
    takeUp<Form>();
    tell(m_form->windowTitle().simplified());
    photograph("empty");
    if (*import) {
        press(import);
        photograph("filled");
    }
    press(compute);
    photograph("computed");
    print();
    press("cmdNext");
}

void Worker::sumUp()
{
    takeUp<frmSummary>();
    tell(m_form->windowTitle());
    photograph("empty");
    press("cmdTransfer");
    photograph("filled");
    press("cmdCompute");
}

void printTable(const frmSummary& summary, int srSes)
{
    const std::array columns = {&summary.txtSN, &summary.txtSSE,  &summary.txtTkm, &summary.txtTR, &summary.txtM,
                                &summary.txtS,  &summary.txtTMan, &summary.txtKey, &summary.txtLR, &summary.txtCS,
                                &summary.txtSS, &summary.txtSDC,  &summary.txtEx};
    constexpr std::array headings = {"No",     "Sr SE", "Km",       "T+R",    "M",      "S",  "Mandays",
                                     "Keymen", "LR",    "Strength", "Sanctd", "Decas.", "+/-"};
    constexpr int total = 15;
    std::printf("\n");
    for (int row = -1; row <= srSes; ++row) {
        for (std::size_t c = 0; c < columns.size(); ++c) {
            const bool name = columns[c] == &summary.txtSSE;
            const QString text = row < 0 ? QString(headings[c]) : (*columns[c])(row == srSes ? total : row).text();
            std::printf("%s ", (name ? text.leftJustified(24) : text.rightJustified(9)).toUtf8().constData());
        }
        std::printf("\n");
    }
}

void Worker::work()
{
    m_chain.show<frmStart>();
    for (int index = 1; index <= m_division.srSes; ++index) {
        enter(Sample[static_cast<std::size_t>(index - 1) % Sample.size()], index);
        step<frmT1>("cmdCopy", "cmdCompute");
        step<frmT2>("cmdCopy", "cmdCompute");
        step<frmT4>("", "cmdCompute");
        step<frmY>("cmdYdata", "cmdCOMPUTE");
        step<frmM1>("cmdData", "cmdCompute");
        step<frmM2>("cmdData", "cmdCompute");
        step<frmS1>("cmdData", "cmdCompute");
        step<frmS2>("cmdData", "cmdCompute");
        sumUp();
    }
    m_stem = "division";
    press("cmdTotal");
    m_index = m_division.guide ? 1 : m_index;  // the guide shows the finished table
    photograph("computed");
    print();
    printTable(m_chain.get<frmSummary>(), m_division.srSes);
    press("cmdExit");
}

}  // namespace

void workDivision(const Division& division)
{
    if (division.srSes < 1 || division.srSes > 15)
        throw std::runtime_error("a division has 1 to 15 Sr SEs");
    Worker(division).work();
}
