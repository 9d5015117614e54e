#pragma once
#include <array>

namespace division {

/// One screen on the way of each Sr SE, and the buttons that are pressed on it in turn. All by their object names; ""
/// if the screen has no such button.
struct Step {
    const char* form;
    const char* import;  ///< takes figures over: from the data file, or on the summary from the screens before it
    const char* compute;
    const char* next;  ///< opens the screen behind it
};

/// The ten screens in their order.
// clang-format off
inline constexpr std::array Steps = {
    Step{"frmStart",   "",            "",           "cmdProceed"},
    Step{"frmT1",      "cmdCopy",     "cmdCompute", "cmdNext"},
    Step{"frmT2",      "cmdCopy",     "cmdCompute", "cmdNext"},
    Step{"frmT4",      "",            "cmdCompute", "cmdNext"},
    Step{"frmY",       "cmdYdata",    "cmdCOMPUTE", "cmdNext"},
    Step{"frmM1",      "cmdData",     "cmdCompute", "cmdNext"},
    Step{"frmM2",      "cmdData",     "cmdCompute", "cmdNext"},
    Step{"frmS1",      "cmdData",     "cmdCompute", "cmdNext"},
    Step{"frmS2",      "cmdData",     "cmdCompute", "cmdNext"},
    Step{"frmSummary", "cmdTransfer", "cmdCompute", ""},
};
// clang-format on

}  // namespace division
