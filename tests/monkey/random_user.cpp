#include "monkey/random_user.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <csignal>

#include "screens/flow/placement.h"
#include "start/frmStart.h"
#include "support/clicks.h"

namespace monkey {

namespace {

QString nameOf(const QWidget& widget)
{
    return widget.window()->objectName() + "." + widget.objectName();
}

QString shortened(const QString& text)
{
    return text.size() <= 40 ? text : text.first(40) + QString("... (%1)").arg(text.size());
}

}  // namespace

RandomUser::RandomUser(Chance& chance, flow::Chain& chain, RandomDialogs& answers)
    : m_chance(chance), m_chain(chain), m_dialogs(answers)
{
}

RandomUser::~RandomUser() = default;

void RandomUser::act()
{
    m_mnemonic = false;
    chooseAndAct();
    if (m_mnemonic)
        QTest::qWait(120);  // it holds its button down for a moment before it presses it
}

void RandomUser::chooseAndAct()
{
    std::vector<QWidget*> visible;
    for (flow::Screen* screen : loadedOf(m_chain))
        if (screen && screen->isVisible()) {
            if (screen->size() == ForgottenSize)
                screen->resize(flow::OpeningSize);
            visible.push_back(screen);
        }
    if (visible.empty()) {
        m_told = "nothing to be seen";
        return;
    }
    m_form = m_chance.oneIn(3) ? m_chance.of(visible) : visible.back();
    m_form->activateWindow();
    QCoreApplication::processEvents();

    // A menu that an act opens waits in a loop of its own.
    const int choice = m_chance.below(20);
    QTimer menu;
    QObject::connect(&menu, &QTimer::timeout, [&] { workMenu(choice); });
    menu.start(0);

    switch (m_chance.below(100)) {
    case 0:
        return m_chance.oneIn(4) ? askToEnd() : restyle();
    case 1:
    case 2:
        return closeAWindow();
    case 3:
    case 4:
    case 5:
        return moveAWindow();
    case 6:
        m_dialogs.tamperWithFile();
        m_told = "data file changed";
        return;
    case 7:
    case 8:
        return drop();
    default:
        break;
    }
    switch (m_chance.below(12)) {
    case 0:
    case 1:
        return pressAButton();
    case 2:
    case 3:
        return type();
    case 4:
    case 5:
        return paste();
    case 6:
    case 7:
        return keys();
    case 8:
        return clickAnywhere();
    default:
        return goOn();
    }
}

// As a user who knows the way.
void RandomUser::goOn()
{
    if (auto* start = dynamic_cast<frmStart*>(m_form)) {
        if (!start->txtT1(3).isLocked() && m_chance.oneIn(2)) {
            start->txtT1(3).setFocus();
            key(Qt::Key_A, Qt::ControlModifier);
            return write(QString::number(m_chance.from(1, m_chance.oneIn(4) ? 15 : 3)));
        }
        if (start->txtT1(1).text().trimmed().isEmpty() || m_chance.oneIn(10)) {
            pressFirst({"cmdFile"});
            return;
        }
        pressFirst({"cmdProceed"});
        return;
    }
    if (m_chance.oneIn(4) && pressFirst({m_chance.oneIn(2) ? "optBG" : "chkSub", "cmdPrint"}))
        return;
    if (m_chance.oneIn(2) && pressFirst({"cmdCopy", "cmdYdata", "cmdData", "cmdTransfer"}))
        return;
    if (m_chance.oneIn(4) && pressFirst({"cmdExit"}))
        return;
    pressFirst({"cmdNext", "cmdCompute", "cmdCOMPUTE", "cmdTotal", "cmdTransfer", "optBG"});
}

bool RandomUser::pressFirst(std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        auto* button = m_form->findChild<QAbstractButton*>(name);
        if (button && button->isVisible() && button->isEnabled()) {
            press(*button);
            return true;
        }
    }
    m_told = "goes nowhere on " + m_form->objectName();
    return false;
}

void RandomUser::press(QWidget& button)
{
    m_told = "presses " + nameOf(button);
    QTest::mouseClick(m_form->windowHandle(), Qt::LeftButton, {}, button.mapTo(m_form, placeToClick(button)));
}

void RandomUser::pressAButton()
{
    QList<QAbstractButton*> buttons;
    for (auto* button : m_form->findChildren<QAbstractButton*>())
        if (button->isVisible())
            buttons += button;
    press(*m_chance.of(buttons));
}

void RandomUser::clickAnywhere()
{
    const QPoint place(m_chance.below(m_form->width()), m_chance.below(m_form->height()));
    const QWidget* under = m_form->childAt(place);
    m_told = QString("clicks at %1,%2 (%3)").arg(place.x()).arg(place.y()).arg(under ? nameOf(*under) : "nothing");
    QWindow* const target = m_form->windowHandle();
    switch (m_chance.below(6)) {
    case 0: {
        m_told += ", right";
        QTest::mouseClick(target, Qt::RightButton, {}, place);
        if (QWidget* widget = m_form->childAt(place)) {
            const QPoint at = widget->mapFrom(m_form, place);
            QContextMenuEvent menu(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
            QCoreApplication::sendEvent(widget, &menu);
        }
        return;
    }
    case 1:
        m_told += ", middle";
        QGuiApplication::clipboard()->setText(nonsense(m_chance), QClipboard::Selection);
        return QTest::mouseClick(target, Qt::MiddleButton, {}, place);
    case 2:
        m_told += ", twice";
        return QTest::mouseDClick(target, Qt::LeftButton, {}, place);
    case 3: {
        m_told += ", wheel";
        QWidget* const widget = m_form->childAt(place) ? m_form->childAt(place) : m_form;
        const QPoint at = widget->mapFrom(m_form, place);
        QWheelEvent wheel(at, widget->mapToGlobal(at), {}, QPoint(0, m_chance.from(-5, 5) * 120), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &wheel);
        return;
    }
    default:
        return QTest::mouseClick(target, Qt::LeftButton, {}, place);
    }
}

// A box that can be seen, locked ones too.
QWidget* RandomUser::aBox()
{
    QList<QWidget*> boxes;
    for (auto* box : m_form->findChildren<QLineEdit*>())
        if (box->isVisible() && (!box->isReadOnly() || m_chance.oneIn(8)))
            boxes += box;
    if (boxes.isEmpty())
        return m_form;
    QWidget* const box = m_chance.of(boxes);
    box->setFocus(m_chance.oneIn(2) ? Qt::TabFocusReason : Qt::MouseFocusReason);
    return box;
}

void RandomUser::type()
{
    const QWidget* const box = aBox();
    const QString text = m_chance.oneIn(3) ? nonsense(m_chance).left(12) : figure(m_chance);
    if (m_chance.oneIn(2))
        key(Qt::Key_A, Qt::ControlModifier);
    if (QWidget* const focus = m_form->focusWidget(); focus && m_chance.oneIn(6)) {
        QInputMethodEvent composed(text.left(2), {});
        QCoreApplication::sendEvent(focus, &composed);
        QInputMethodEvent committed("", {});
        committed.setCommitString(text);
        QCoreApplication::sendEvent(focus, &committed);
    } else {
        write(text);
    }
    if (m_chance.oneIn(3))
        key(Qt::Key_Return);
    m_told = QString("types \"%1\" into %2").arg(shortened(text), nameOf(*box));
}

void RandomUser::paste()
{
    const QWidget* const box = aBox();
    const QString text = m_chance.oneIn(2) ? nonsense(m_chance) : block(m_chance);
    QGuiApplication::clipboard()->setText(text);
    m_told = QString("pastes \"%1\" into %2").arg(shortened(text), nameOf(*box));
    if (m_chance.oneIn(3))
        key(Qt::Key_A, Qt::ControlModifier);
    if (m_chance.oneIn(4))
        key(Qt::Key_Insert, Qt::ShiftModifier);
    else
        key(Qt::Key_V, Qt::ControlModifier);
}

void RandomUser::keys()
{
    struct Stroke {
        int key;
        Qt::KeyboardModifiers modifiers = {};
    };
    static const std::vector<Stroke> strokes = {
        {Qt::Key_Tab},
        {Qt::Key_Backtab, Qt::ShiftModifier},
        {Qt::Key_Return},
        {Qt::Key_Enter, Qt::KeypadModifier},
        {Qt::Key_Escape},
        {Qt::Key_Space},
        {Qt::Key_Up},
        {Qt::Key_Down},
        {Qt::Key_Left, Qt::ShiftModifier},
        {Qt::Key_Right},
        {Qt::Key_Home},
        {Qt::Key_End, Qt::ShiftModifier},
        {Qt::Key_PageUp},
        {Qt::Key_PageDown},
        {Qt::Key_Delete},
        {Qt::Key_Backspace},
        {Qt::Key_F1},
        {Qt::Key_F4},
        {Qt::Key_F10, Qt::ShiftModifier},
        {Qt::Key_Menu},
        {Qt::Key_Down, Qt::AltModifier},
        {Qt::Key_Z, Qt::ControlModifier},
        {Qt::Key_Y, Qt::ControlModifier},
        {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
        {Qt::Key_X, Qt::ControlModifier},
        {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_K, Qt::ControlModifier},
        {Qt::Key_A, Qt::ControlModifier},
        {Qt::Key_C, Qt::AltModifier},
        {Qt::Key_D, Qt::AltModifier},
        {Qt::Key_E, Qt::AltModifier},
        {Qt::Key_G, Qt::AltModifier},
        {Qt::Key_N, Qt::AltModifier},
        {Qt::Key_P, Qt::AltModifier},
        {Qt::Key_T, Qt::AltModifier},
    };
    aBox();
    m_told = "keys";
    for (int i = m_chance.from(1, 8); i > 0; --i) {
        const Stroke& stroke = m_chance.of(strokes);
        m_told += " " + QKeySequence(static_cast<int>(stroke.modifiers.toInt()) | stroke.key).toString();
        key(stroke.key, stroke.modifiers, stroke.key == Qt::Key_Space ? QString(" ") : QString());
    }
}

void RandomUser::drop()
{
    QWidget* const box = aBox();
    const QString text = m_chance.oneIn(2) ? nonsense(m_chance) : figure(m_chance);
    m_told = QString("drops \"%1\" on %2").arg(shortened(text), nameOf(*box));
    QMimeData data;
    data.setText(text);
    const QPoint place = box->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(box, &enter);
    if (!enter.isAccepted() || !box->acceptDrops())
        return;
    QDropEvent dropped(QPointF(place), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(box, &dropped);
}

void RandomUser::closeAWindow()
{
    m_told = "closes " + m_form->objectName();
    m_form->windowHandle()->close();
}

void RandomUser::moveAWindow()
{
    const QPoint place(m_chance.from(-3'000, 3'000), m_chance.from(-3'000, 3'000));
    const QSize size(m_chance.from(1, 2'000), m_chance.from(1, 1'400));
    const auto tell = [&](const QString& what) { m_told = m_form->objectName() + " " + what; };
    switch (m_chance.below(m_form->isMinimized() ? 3 : 6)) {
    case 0:
        tell("is minimised");
        return m_form->showMinimized();
    case 1:
        tell("is maximised");
        return m_form->showMaximized();
    case 2:
        tell("is restored");
        return m_form->showNormal();
    case 3:
        tell(QString("is moved to %1,%2").arg(place.x()).arg(place.y()));
        return m_form->move(place);
    default:
        tell(QString("is made %1x%2").arg(size.width()).arg(size.height()));
        return m_form->resize(size);
    }
}

// The desktop's theme changes while the program runs.
void RandomUser::restyle()
{
    m_told = "another theme";
    QApplication::setPalette(m_chance.oneIn(2) ? QPalette(QColor(40, 40, 40)) : QPalette(QColor(240, 240, 240)));
    if (m_chance.oneIn(2)) {
        QFont font = QApplication::font();
        font.setPointSize(m_chance.from(7, 12));
        QApplication::setFont(font);
    }
}

void RandomUser::askToEnd()
{
    m_told = "a signal";
    const std::array requests = {SIGTERM, SIGINT, SIGHUP};
    std::raise(m_chance.of(requests));
}

void RandomUser::key(int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    m_mnemonic = m_mnemonic || (modifiers & Qt::AltModifier);
    if (window())
        QTest::sendKeyEvent(QTest::Click, window(), static_cast<Qt::Key>(key), text, modifiers);
}

void RandomUser::write(const QString& text)
{
    for (const QChar character : text)
        key(character < QChar(128) ? character.unicode() : static_cast<int>(Qt::Key_unknown), {}, character);
}

QWindow* RandomUser::window() const
{
    const QWidget* const popup = QApplication::activePopupWidget();
    return popup && popup->windowHandle() ? popup->windowHandle() : m_form->windowHandle();
}

void RandomUser::workMenu(int choice) const
{
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        return;
    const QList<QAction*> actions = menu->actions();
    if (choice < actions.size() && actions[choice]->isEnabled())
        actions[choice]->trigger();
    menu->close();
}

}  // namespace monkey
