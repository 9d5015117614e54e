#include "division/act.h"

#include <QAbstractButton>
#include <QApplication>

#include "screens/controls/combo_box.h"
#include "screens/controls/text_box.h"
#include "screens/flow/screen.h"

namespace division {

namespace {

QWidget& controlOf(const flow::Screen& screen, const QString& name)
{
    // An empty name would find any control.
    if (auto* control = name.isEmpty() ? nullptr : screen.findChild<QWidget*>(name))
        return *control;
    throw Refused(QString("%1 has no \"%2\"").arg(screen.objectName(), name).toStdString());
}

// Unlike setText(), which is the program's own way, this is a user's edit: what typing opens is opened.
void typeOver(QLineEdit& line, const QString& text)
{
    line.selectAll();
    line.insert(text);
    line.setCursorPosition(0);
}

}  // namespace

void perform(flow::Screen& screen, const Act& act)
{
    QWidget& control = controlOf(screen, act.control);
    auto* const box = dynamic_cast<controls::TextBox*>(&control);
    auto* const list = dynamic_cast<controls::ComboBox*>(&control);
    auto* const button = qobject_cast<QAbstractButton*>(&control);

    const auto refuseIf = [&](bool impossible, const char* reason) {
        if (impossible)
            throw Refused(QString("%1 of %2 %3").arg(act.control, screen.objectName(), reason).toStdString());
    };
    refuseIf(!box && !list && !button, "is neither a box nor a button");
    refuseIf(button && act.text, "takes no text");
    refuseIf(!button && !act.text, "needs a text");
    refuseIf(!control.isVisibleTo(&screen), "is hidden");
    refuseIf(button && !button->isEnabled(), "is closed");
    refuseIf(!button && (!control.isEnabled() || (box && box->isLocked())), "is locked");
    refuseIf(QApplication::activeModalWidget(), "waits for a dialog");  // the screens would ignore a press

    if (button) {
        button->setFocus(Qt::MouseFocusReason);
        button->click();
        return;
    }
    control.setFocus();
    typeOver(box ? *box : *list->lineEdit(), *act.text);
    if (list)
        list->setText(*act.text);  // chosen, if it is in the list: as when the user leaves the box
}

}  // namespace division
