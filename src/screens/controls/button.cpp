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
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

}  // namespace controls
