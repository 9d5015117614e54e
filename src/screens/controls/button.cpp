#include "screens/controls/button.h"

#include <QKeyEvent>

namespace controls {

Button::Button(const QString& name, const QString& caption)
{
    setObjectName(name);
    setText(caption);
    setAccessibleName(caption.simplified().remove('&'));
}

void Button::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QPushButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())  // each button leads to the next: Enter held down would press them all
        click();
}

}  // namespace controls
