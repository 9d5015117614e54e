#include "screens/flow/placement.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace flow {

namespace {

constexpr QSize Frame(8, 34);  // a window manager's borders and title bar, at a guess

}  // namespace

void place(QWidget& screen, const QWidget* before)
{
    const QRect room = (before ? before : &screen)->screen()->availableGeometry();
    const QSize size = OpeningSize.boundedTo(room.size() - Frame);
    screen.resize(size);
    const QPoint centred =
        room.center() - QPoint((size.width() + Frame.width()) / 2, (size.height() + Frame.height()) / 2);
    const QPoint wanted = before ? before->pos() : centred;
    const QSize slack = room.size() - Frame - size;
    screen.move(std::clamp(wanted.x(), room.left(), room.left() + std::max(0, slack.width())),
                std::clamp(wanted.y(), room.top(), room.top() + std::max(0, slack.height())));
}

}  // namespace flow
