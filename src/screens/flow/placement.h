#pragma once
#include <QSize>

class QWidget;

namespace flow {

/// How large a screen opens [px]: a 1366x768 display, less the desktop's own bars.
inline constexpr QSize OpeningSize(1340, 690);

/// Gives a screen that is about to be shown its size and place. From `before`, the screen that the user comes from, it
/// takes the size and whether it is maximised, and the first time the place as well. Without one it opens in the middle
/// of the desktop, and shown again stands where it was. A screen opens with all of it on the desktop.
void place(QWidget& screen, const QWidget* before);

/// Shows the screen in front of all others, with the focus, whether it was hidden, minimised or behind them.
void bringToFront(QWidget& screen);

}  // namespace flow
