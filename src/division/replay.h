#pragma once
#include <functional>

#include "division/kept_file.h"

namespace flow {
class Chain;
}

namespace division {

class ReplayDialogs;

/// A state in which a screen is worth looking at.
enum class State {
    Empty,     ///< just opened
    Filled,    ///< before a Compute; not on a screen where nothing comes before it
    Computed,  ///< before Next
};

struct Moment {
    int srSe;  ///< index; 0 when all have been worked, and on the summary stand the totals
    flow::Screen& screen;
    State state;
};

/// Works the division through the screens of a new chain, whose dialogs these are, without printing. A screen that the
/// division says nothing of is imported and computed. `look` is called at each moment, and may end the replay by an
/// exception of its own. Errors that the screens report stand in the dialogs; they end nothing by themselves.
/// Throws std::runtime_error with the Sr SE, the screen and the reason where it cannot go on; what has been worked
/// until then stands.
void replay(const KeptDivision& division, flow::Chain& chain, ReplayDialogs& dialogs,
            const std::function<void(const Moment&)>& look = {});

}  // namespace division
