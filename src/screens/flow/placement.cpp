#include "screens/flow/placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace flow {

namespace {

constexpr QSize Frame(8, 34);  // a window manager's borders and title bar, at a guess

}  // namespace

void place(QWidget& screen, const QWidget* before)
{
    const bool first = !screen.testAttribute(Qt::WA_WState_Created);
    if (!first && !before)
        return;
    const QRect room = (before ? before : &screen)->screen()->availableGeometry();
    const QSize left = before ? before->normalGeometry().size() : QSize();
    const QSize size = (left.isEmpty() ? OpeningSize : left).boundedTo(room.size() - Frame);
    screen.setWindowState(before ? before->windowState() & Qt::WindowMaximized : Qt::WindowNoState);
    if (!screen.isMaximized() || first)
        screen.resize(size);
    if (!first)
        return;
    const QPoint centred =
        room.center() - QPoint((size.width() + Frame.width()) / 2, (size.height() + Frame.height()) / 2);
    const QPoint wanted = before ? before->pos() : centred;
    const QSize slack = room.size() - Frame - size;
    screen.move(std::clamp(wanted.x(), room.left(), room.left() + std::max(0, slack.width())),
                std::clamp(wanted.y(), room.top(), room.top() + std::max(0, slack.height())));
}

void bringToFront(QWidget& screen)
{
    // Under Wayland no window can raise itself or take the focus; one that is shown anew comes to the front.
    if (screen.isVisible() && QGuiApplication::platformName().startsWith("wayland"))
        screen.hide();
    screen.setWindowState(screen.windowState() & ~Qt::WindowMinimized);
    screen.show();
    screen.raise();
    screen.activateWindow();
}

}  // namespace flow
