#pragma once
#include <QSize>

class QWidget;

namespace flow {

/// How large a screen opens [px]: a 1366x768 display, less the desktop's own bars.
inline constexpr QSize OpeningSize(1340, 690);

/// Gives a screen that has never been shown its size and place: over `before`, the screen the user comes from, wherever
/// that has been moved to; in the middle of the desktop without one. All of it lies on the desktop.
void place(QWidget& screen, const QWidget* before);

}  // namespace flow
