#include "screens/flow/held_keys.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QWidget>

namespace flow {

namespace {

// Between letting a key go and pressing it again; fast typists take more than 50 ms, keyboards bounce for less than 20.
constexpr quint64 FastestFinger = 25;  // [ms]

// Keys that do something else when held stay: arrows and Tab move, and in a box to type in letters repeat and Enter
// goes on like Tab.
bool mayPressAButton(const QKeyEvent& press, const QWidget* receiver)
{
    if (press.modifiers() & Qt::AltModifier)
        return true;  // a mnemonic
    const bool typing = receiver && receiver->testAttribute(Qt::WA_InputMethodEnabled);
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:  // a dialog's own buttons
        return !typing || qobject_cast<QDialog*>(receiver->window());
    case Qt::Key_Tab:
        return false;
    default:
        return !typing && !press.text().isEmpty();  // Space; in a message box also a mnemonic's letter alone
    }
}

}  // namespace

HeldKeys::HeldKeys()
{
    qApp->installEventFilter(this);
}

bool HeldKeys::isRepeat(const QKeyEvent& press) const
{
    return press.isAutoRepeat() ||
           (m_at != 0 && press.nativeScanCode() == m_key && press.timestamp() - m_at < FastestFinger);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyRelease: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        m_key = key.nativeScanCode();
        m_at = key.timestamp();
        break;
    }
    case QEvent::ShortcutOverride:  // comes before the press itself and finds the button of a mnemonic
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (!isRepeat(key) || !mayPressAButton(key, QApplication::focusWidget()))
            break;
        event->accept();
        return true;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace flow
