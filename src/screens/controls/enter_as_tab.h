#pragma once
#include <QCoreApplication>
#include <QKeyEvent>
#include <QString>

namespace controls {

/// An option button or check box of Qt under the object name by which tests and automation tools find it. Space
/// chooses; Enter goes on like Tab, as in every box.
template <class Widget>
class EnterAsTab : public Widget {
public:
    explicit EnterAsTab(const QString& name, const QString& caption)
    {
        Widget::setObjectName(name);
        Widget::setText(caption);
        Widget::setAccessibleName(caption.simplified());
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
            Widget::keyPressEvent(event);
            return;
        }
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &tab);
    }
};

}  // namespace controls
