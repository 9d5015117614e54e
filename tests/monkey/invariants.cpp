#include "monkey/invariants.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS2.h"
#include "summary/frmSummary.h"
#include "track/frmT1.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

namespace monkey {

namespace {

constexpr int MaxSrSes = 15;

QString textOf(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    return dynamic_cast<const QComboBox&>(widget).currentText();
}

bool isOpen(const QWidget& widget)
{
    const auto* line = qobject_cast<const QLineEdit*>(&widget);
    return widget.isEnabled() && widget.isVisible() && !(line && line->isReadOnly());
}

QString quoted(const QString& text)
{
    return '"' + (text.size() <= 60 ? text : text.first(60) + "...") + '"';
}

/// The whole number at the start of a count box, by hand: digits behind an optional plus sign; 0 if there is none.
int leadingCount(const QString& text)
{
    int count = 0;
    QString digits = text.trimmed();
    if (digits.startsWith('+'))
        digits.remove(0, 1);
    for (const QChar digit : digits) {
        if (digit < '0' || digit > '9' || count > 1'000)
            break;
        count = 10 * count + (digit.unicode() - '0');
    }
    return count;
}

/// Whose press may change which locked boxes, the first line that fits; a locked box without a line never changes.
struct Rule {
    const char* box;
    const char* button;
};
const Rule Rules[] = {
    // the start screen and what the summary prepares there for the next Sr SE
    {"frmStart.txtT1\\(1\\)", "frmStart.cmdFile|frmSummary.cmdCompute"},
    {"frmStart.txtT1\\(4\\)", "frmSummary.cmdCompute"},
    // a name given late, on a screen where nothing has been entered
    {"frmT1.txtT1\\(1\\)", "frmStart.cmdProceed"},
    // what a screen computes
    {R"(frmT1.txt(Tkm|Eqtkm)\(\d+\))", "frmT1.cmdCompute"},
    {R"(frmT2.txt(A|B|C|ABC)\(\d+\))", "frmT2.cmdCompute"},
    {R"(frmT4.txtMan[123]\(\d+\))", "frmT4.cmdCompute"},
    {"frmY.(txtM1|txtM2|TXTM3|TXTM4|txtM5|txtM6)\\(12\\)|frmY.txtYd4", "frmY.cmdCOMPUTE"},
    {"frmM1.(txtman1|txtMan[234])", "frmM1.cmdCompute"},
    {"frmM2.(txtman5|txtMan[6789]|txtSL)", "frmM2.cmdCompute|frmM2.cmdData"},
    {"frmS1.(txtman10|txtMan1[123])", "frmS1.cmdCompute"},
    {"frmS2.(txtMan1[4-9]|txtMan20)", "frmS2.cmdCompute"},
    // gauge, and the method of maintenance that it forces
    {"frmT1.txtT1\\(3\\)", "frmT1.(opt[BMN]G|chkSub)"},
    {R"(frmT1.cboMtc\(\d+\))", "frmT1.(opt[BMN]G|chkSub|cmdCopy)"},
    // counts, locked by Compute and imported once more
    {"frmT1.txtNSeg", "frmT1.cmdCopy"},
    {"frmY.txtNYd", "frmY.cmdYdata"},
    {"frmM1.txt(NB|VL)", "frmM1.cmdData"},
    {"frmM2.txt(NLC|Kbeats|NG)", "frmM2.cmdData"},
    {"frmS2.txtTB[1-4]", "frmS2.cmdData"},
    {R"(frmS2.txtND\(\d+\))", "frmS2.cmdData"},
    // the division's totals
    {"frmSummary.txt(Tkm|TR|M|S|TMan|Key|LR|CS|SS|SDC|Ex)\\(15\\)", "frmSummary.cmdTotal"},
};

bool fits(const char* pattern, const QString& name)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(name).hasMatch();
}

}  // namespace

Invariants::Invariants(flow::Chain& chain, const RandomDialogs& answers) : m_chain(chain), m_dialogs(answers)
{
}

void Invariants::fail(const QString& what)
{
    m_wrong.push_back(what.toStdString());
}

bool Invariants::answered(RandomDialogs::Kind kind, const QString& text, bool yes) const
{
    return std::any_of(m_dialogs.given.begin(), m_dialogs.given.end(), [&](const RandomDialogs::Given& box) {
        return box.kind == kind && box.text == text && box.yes == yes;
    });
}

// A screen seen for the first time.
void Invariants::meet(Place place, flow::Screen& screen)
{
    const auto take = [&](QWidget* widget) {
        m_boxes.push_back({.widget = widget,
                           .place = place,
                           .name = screen.objectName() + "." + widget->objectName(),
                           .text = {},
                           .open = false});
    };
    for (auto* line : screen.findChildren<QLineEdit*>())
        if (line->objectName().startsWith("txt", Qt::CaseInsensitive))
            take(line);
    for (auto* combo : screen.findChildren<QComboBox*>())
        take(combo);
    for (auto* button : screen.findChildren<QAbstractButton*>()) {
        const QString name = screen.objectName() + "." + button->objectName();
        QObject::connect(button, &QAbstractButton::clicked, button, [this, name] {
            m_pressed.insert(name);
            ++m_pressedEver[name];
        });
    }
}

void Invariants::before()
{
    const Screens now = loadedOf(m_chain);
    std::erase_if(m_boxes, [](const Box& box) { return box.widget.isNull(); });
    for (std::size_t i = 0; i < Places; ++i) {
        if (now[i] && m_alive[i] != now[i])
            meet(static_cast<Place>(i), *now[i]);
        m_alive[i] = now[i];
        m_visible[i] = now[i] && now[i]->isVisible();
        const auto* data = dynamic_cast<const flow::DataScreen*>(now[i]);
        m_printed[i] = data ? data->Printed : 0;
    }
    for (Box& box : m_boxes) {
        box.text = textOf(*box.widget);
        box.open = isOpen(*box.widget);
    }
    m_loaded = now;
    m_published = publishedNow();
    m_pressed.clear();
    m_nothingEntered = std::none_of(now.begin() + T1, now.end(), [](const auto* screen) { return screen; });
    for (const Box& box : m_boxes)
        if (box.place == Start && fits("frmStart.txtT1\\([01235]\\)", box.name) && !box.text.trimmed().isEmpty())
            m_nothingEntered = false;
}

std::vector<std::string> Invariants::after(const QWidget* workedOn)
{
    m_wrong.clear();
    const Screens now = loadedOf(m_chain);
    // After the end a handler under way may make a screen once more, which goes with it.
    const bool agreed =
        answered(RandomDialogs::Kind::YesNo, "End the program? The figures on the screens will be lost.", true);
    const auto isToBeSeen = [](const flow::Screen* screen) { return screen && screen->isVisible(); };
    m_ended = agreed || std::none_of(now.begin(), now.end(), isToBeSeen);
    checkLoaded(now);
    checkWindows(now);
    checkBoxes(workedOn);
    checkPublished();
    checkCounts(now);
    checkPrinted(now);
    checkAsked();
    if (!m_wrong.empty())
        for (const QString& button : m_pressed)
            m_wrong.push_back("  pressed: " + button.toStdString());
    return m_wrong;
}

// A screen goes only with the end of the program, or with its Sr SE.
void Invariants::checkLoaded(const Screens& now)
{
    const bool allowed =
        m_nothingEntered ||
        answered(RandomDialogs::Kind::YesNo, "End the program? The figures on the screens will be lost.", true) ||
        (pressed("frmSummary.cmdExit") &&
         (m_printed[Summary] == 1 ||
          answered(RandomDialogs::Kind::YesNo, "Do you want to take a print of the form ?", false)));
    if (m_ended) {
        if (!allowed)
            fail("no screen is to be seen, and nobody agreed to the end");
        return;
    }
    const bool nextSrSe = answered(RandomDialogs::Kind::Message, "Continue for Next Sr SSE on the Division", false);
    for (std::size_t i = 0; i < Places; ++i) {
        if (!m_loaded[i])
            continue;
        const bool goes = nextSrSe && i >= T1 && i <= S2;
        if (goes && now[i] && m_alive[i] == now[i])  // one made anew since is another matter
            fail(now[i]->objectName() + " stayed for the next Sr SE");
        if (!goes && (now[i] != m_loaded[i] || m_alive[i].isNull()))
            fail(QString("screen %1 of the chain is lost").arg(i));
    }
}

void Invariants::checkWindows(const Screens& now)
{
    for (std::size_t i = 0; i < Places; ++i) {
        if (!now[i] || !now[i]->isVisible())
            continue;
        const QRect desktop = now[i]->screen()->availableGeometry();
        const bool isNew = !m_loaded[i];
        if (isNew && !desktop.contains(now[i]->geometry()))
            fail(now[i]->objectName() + QString(" opens beyond the desktop: %1,%2 %3x%4")
                                            .arg(now[i]->x())
                                            .arg(now[i]->y())
                                            .arg(now[i]->width())
                                            .arg(now[i]->height()));
        if (now[i]->size() != ForgottenSize && (now[i]->width() < 50 || now[i]->height() < 50))
            fail(QString("%1 is too small to be found: %2x%3")
                     .arg(now[i]->objectName())
                     .arg(now[i]->width())
                     .arg(now[i]->height()));
    }
}

void Invariants::checkBoxes(const QWidget* workedOn)
{
    for (const Box& box : m_boxes) {
        if (box.widget.isNull() || !m_alive[box.place])
            continue;
        const QString now = textOf(*box.widget);
        if (now == box.text || box.name.endsWith(".txtRly(2)"))
            continue;
        if (box.place == Summary)
            checkSummary(box, now, workedOn);
        if (!box.open)
            checkLocked(box, now);
    }
}

// What cannot be typed into is changed by its own button alone.
void Invariants::checkLocked(const Box& box, const QString& now)
{
    const bool ofHiddenRow = !qobject_cast<const QLineEdit*>(box.widget.data()) ||
                             !qobject_cast<const QLineEdit*>(box.widget.data())->isReadOnly();
    for (const Rule& rule : Rules) {
        if (!fits(rule.box, box.name))
            continue;
        if (std::none_of(m_pressed.begin(), m_pressed.end(),
                         [&](const QString& button) { return fits(rule.button, button); }))
            fail(box.name + " was closed and changed from " + quoted(box.text) + " to " + quoted(now));
        return;
    }
    // Rows that are hidden hold their texts until an import fills or a count numbers them.
    const bool imports = std::any_of(m_pressed.begin(), m_pressed.end(), [&](const QString& button) {
        return fits("frm(T1|T2|Y|M1|M2|S1|S2).(cmdCopy|cmdYdata|cmdData)|frmSummary.(cmdTransfer|cmdCompute)", button);
    });
    const bool numbered = fits(R"(frmM1.(txtTB|txtNVL)\(\d+\))", box.name) &&
                          box.name.contains("(" + QString::number(now.toInt() - 1) + ")");
    if (!numbered && !(ofHiddenRow && imports))
        fail(box.name + " was closed and changed from " + quoted(box.text) + " to " + quoted(now));
}

// The division's rows change by Transfer, Compute, Grand Total and by typing into them, each in its own boxes.
void Invariants::checkSummary(const Box& box, const QString& now, const QWidget* workedOn)
{
    const auto* summary = dynamic_cast<const frmSummary*>(m_loaded[Summary]);
    const QString row = QString("\\(%1\\)").arg(summary->SrSEIndex - 1);
    const auto inRow = [&](const char* columns) {
        return fits(("frmSummary.(" + QString(columns) + ")" + row).toUtf8(), box.name);
    };
    const bool transferred =
        pressed("frmSummary.cmdTransfer") && inRow("txtSSE|txtSN|txtTkm|txtTR|txtM|txtS|txtKey|txtLR|txtSS|txtSDC");
    const bool computed = pressed("frmSummary.cmdCompute") && inRow("txtTMan|txtCS|txtEx");
    const bool totalled = pressed("frmSummary.cmdTotal") && fits("frmSummary.txt[A-Za-z]+\\(15\\)", box.name);
    const bool typed = box.open && workedOn == summary;
    if (!transferred && !computed && !totalled && !typed)
        fail(box.name + " of the summary changed from " + quoted(box.text) + " to " + quoted(now));
}

std::vector<Invariants::Published> Invariants::publishedNow()
{
    std::vector<Published> all;
    const Screens screens = loadedOf(m_chain);
    const auto add = [&]<class Form, class Number>(Place place, const char* name, Number Form::* value) {
        if (const auto* form = dynamic_cast<const Form*>(screens[place]))
            all.push_back({place, name, form->*value});
    };
    add(T1, "LwrTotal", &frmT1::LwrTotal);
    add(T4, "TotMan", &frmT4::TotMan);
    add(Y, "YdMan", &frmY::YdMan);
    add(M1, "TotalMandays", &frmM1::TotalMandays);
    add(M2, "TotalMandays", &frmM2::TotalMandays);
    add(S2, "TotalMandays", &frmS2::TotalMandays);
    if (m_chain.isLoaded<frmSummary>()) {
        const auto& summary = m_chain.get<frmSummary>();
        for (std::size_t row = 0; row < frmSummary::Rows; ++row)
            all.push_back({Summary, QString("RowCS(%1)").arg(row), summary.rows[row].RowCS});
        all.push_back({Summary, "TotTMan", summary.totals.TotTMan});
        all.push_back({Summary, "TotCS", summary.totals.TotCS});
    }
    return all;
}

// What later screens read is a number, and it stands until its screen computes again.
void Invariants::checkPublished()
{
    const Screens screens = loadedOf(m_chain);
    for (const Published& now : publishedNow()) {
        const QString screen = screens[now.place]->objectName();
        if (!std::isfinite(now.value))
            fail(screen + "." + now.name + " is no number");
        const auto was = std::find_if(m_published.begin(), m_published.end(), [&](const Published& one) {
            return one.place == now.place && one.name == now.name;
        });
        const bool computed =
            pressed(screen + ".cmdCompute") || pressed(screen + ".cmdCOMPUTE") || pressed(screen + ".cmdTotal");
        if (was != m_published.end() && m_alive[now.place] == screens[now.place] && was->value != now.value &&
            !computed)
            fail(screen + "." + now.name + " changed without a Compute");
    }
}

// Counts stay within their limits, and so do the rows that they show.
void Invariants::checkCounts(const Screens& now)
{
    struct Count {
        Place place;
        const char* box;
        int most;
        const char* rows;
    };
    static const Count counts[] = {
        {Start, "txtT1(3)", MaxSrSes, nullptr},
        {T1, "txtNSeg", 16, "txtKmf"},
        {Y, "txtNYd", 12, "txtStn"},
        {M1, "txtNB", 12, "txtND"},
        {M1, "txtVL", 12, "txtDV"},
        {S2, "txtTB1", 8, nullptr},
        {S2, "txtTB2", 9, nullptr},
        {S2, "txtTB4", 6, nullptr},
    };
    for (const Count& count : counts) {
        if (!now[count.place])
            continue;
        const auto* box = now[count.place]->findChild<QLineEdit*>(count.box);
        const int counted = leadingCount(box->text());
        if (counted > count.most)
            fail(now[count.place]->objectName() + "." + count.box + " says " + quoted(box->text()));
        if (count.place == Start && !box->text().isEmpty() && counted < 1)
            fail("the number of Sr SEs says " + quoted(box->text()));
        if (!count.rows)
            continue;
        int shown = 0;
        for (int i = 0; i < count.most; ++i)
            if (!now[count.place]->findChild<QWidget*>(QString("%1(%2)").arg(count.rows).arg(i))->isHidden())
                ++shown;
        if (shown > count.most || (shown > 0 && shown != counted && box->text().contains(QRegularExpression("^\\d*$"))))
            fail(QString("%1 shows %2 rows of %3").arg(now[count.place]->objectName()).arg(shown).arg(counted));
    }
    if (const auto* t1 = dynamic_cast<const frmT1*>(now[T1]); t1 && (t1->SegCount < 0 || t1->SegCount > 16))
        fail(QString("frmT1 counts %1 segments").arg(t1->SegCount));
    if (const auto* summary = dynamic_cast<const frmSummary*>(now[Summary]))
        if (summary->NumSrSE > MaxSrSes)
            fail(QString("the summary counts %1 Sr SEs").arg(summary->NumSrSE));
}

// Printed is set by a print that ran to its end, and never cleared.
void Invariants::checkPrinted(const Screens& now)
{
    for (std::size_t i = 0; i < Places; ++i) {
        const auto* form = dynamic_cast<const flow::DataScreen*>(now[i]);
        if (!form)
            continue;
        int expected = m_alive[i] == form ? m_printed[i] : 0;
        for (const RandomDialogs::Given& box : m_dialogs.given)
            if (box.kind == RandomDialogs::Kind::Print && box.screen == form &&
                (box.printOut == RandomDialogs::PrintOut::None || box.printOut == RandomDialogs::PrintOut::Good))
                expected = 1;
        if (form->Printed != expected)
            fail(QString("%1.Printed is %2, not %3").arg(form->objectName()).arg(form->Printed).arg(expected));
    }
    for (const RandomDialogs::Given& box : m_dialogs.given)
        if (box.kind == RandomDialogs::Kind::Print && box.printOut == RandomDialogs::PrintOut::Good &&
            !QFile::exists(box.path))
            fail("nothing was printed to " + box.path);
}

// A box belongs to a screen, and it says something.
void Invariants::checkAsked()
{
    for (const RandomDialogs::Given& box : m_dialogs.given) {
        if (!box.screen && !m_ended)  // a mnemonic that comes late may find the program at its end
            fail("a box of no screen: " + box.title);
        if (box.kind != RandomDialogs::Kind::Print && (box.title.trimmed().isEmpty() || box.text.trimmed().isEmpty()))
            fail("a box without words: " + box.title + box.text);
    }
}

}  // namespace monkey
