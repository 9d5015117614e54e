#pragma once
#include <QSize>

namespace flow {

/// How large a screen opens [px]: a 1366x768 display, less the desktop's own bars.
inline constexpr QSize OpeningSize(1340, 690);

}  // namespace flow
