#include "screens/flow/screen.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPrinter>
#include <QScrollBar>
#include <exception>

#include "figures/conversions.h"
#include "screens/controls/entry.h"
#include "screens/flow/chain.h"
#include "screens/flow/printing.h"

namespace flow {

const char* const LockTip =
    "Please make sure that all data is corrctly entered. The data would get lockked after clicking this button.";

namespace {
constexpr int DateCharacters = 11;
}

Screen::Screen(Chain& owner, const QString& name, const QString& caption, std::initializer_list<int> railwayBoxes)
    : txtRly("txtRly", railwayBoxes), chain(owner), form(*this, caption)
{
    setObjectName(name);
    setWindowTitle(caption);
    txtRly(2).setLocked(true);
    onPress(cmdPrint, &Screen::cmdPrint_Click);
}

void Screen::Timer1_Timer(const QString& date)
{
    if (txtRly(2).text() != date)
        txtRly(2).setText(date);
}

bool Screen::dialogIsOpen()
{
    return QApplication::activeModalWidget();
}

SheetFacts Screen::sheetFacts() const
{
    const SrSe& at = chain.srSe();
    const QString srSe = at.index + " " + at.name;
    return {.name = sheetName(srSe, windowTitle()),
            .railway = at.railway,
            .division = at.division,
            .srSe = srSe,
            .dataFile = at.dataFile,
            .printedAt = {}};
}

void Screen::cmdPrint_Click()
{
    try {
        QPrinter printer;
        SheetFacts facts = sheetFacts();
        printer.setDocName(facts.name);
        const auto choice = chain.dialogs().print(*this, printer);
        if (!choice)
            return;
        // The page range is read as the dialog gives it, and not used: the form is one sheet.
        figures::toInt16(choice->firstPage, "the first page");
        figures::toInt16(choice->lastPage, "the last page");
        const int copies = figures::toInt16(choice->copies, "the number of copies");
        facts.printedAt = choice->at;
        printForm(*this, form.parts(), facts, printer, copies);
        onPrinted();
    } catch (const std::exception&) {
        // A print-out that failed shows itself by not lying in the tray; the figures stand, and Print can be repeated.
    }
}

void Screen::report(const figures::RunTimeError& error)
{
    chain.dialogs().showCritical(*this, windowTitle(), error.what());
    if (QWidget* box = error.row() == figures::RunTimeError::NoRow ? nullptr : boxOf(error))
        revealBox(*box);
}

void Screen::revealBox(QWidget& box)
{
    box.setFocus(Qt::OtherFocusReason);
    controls::bringIntoView(box);
}

void Screen::setDefaultButton(const QPushButton* button)
{
    for (auto* one : findChildren<QPushButton*>())
        one->setDefault(one == button);
}

void Screen::focusDefault(QPushButton& button)
{
    button.setFocus();
    setDefaultButton(&button);
}

void Screen::addDate(QBoxLayout& line)
{
    line.addStretch();
    controls::addField(line, "     Date (mm-dd-yyyy)", txtRly(2), DateCharacters).setObjectName("LblRly");
}

// By Tab one also comes from the buttons to what has scrolled away; Qt's areas look after their own alone.
bool Screen::focusNextPrevChild(bool next)
{
    const bool moved = QWidget::focusNextPrevChild(next);
    if (moved && focusWidget())
        controls::bringIntoView(*focusWidget());
    return moved;
}

// From a button one reads on by keys: where all is computed, nothing that has scrolled away can take the focus.
void Screen::keyPressEvent(QKeyEvent* event)
{
    const auto scroll = [this](QScrollBar* (QScrollArea::*bar)() const, QAbstractSlider::SliderAction action) {
        for (auto* area : findChildren<QScrollArea*>())
            (area->*bar)()->triggerAction(action);
    };
    if (event->modifiers() & ~Qt::KeypadModifier)
        return QWidget::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_PageUp:
        return scroll(&QScrollArea::verticalScrollBar, QAbstractSlider::SliderPageStepSub);
    case Qt::Key_PageDown:
        return scroll(&QScrollArea::verticalScrollBar, QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_Home:
        return scroll(&QScrollArea::horizontalScrollBar, QAbstractSlider::SliderToMinimum);
    case Qt::Key_End:
        return scroll(&QScrollArea::horizontalScrollBar, QAbstractSlider::SliderToMaximum);
    default:
        QWidget::keyPressEvent(event);
    }
}

void Screen::closeEvent(QCloseEvent* event)
{
    event->setAccepted(chain.mayHide(*this));
}

}  // namespace flow
