#pragma once
#include <QString>
#include <optional>
#include <stdexcept>

namespace flow {
class Screen;
}

namespace division {

/// What a user does to one control of a screen.
struct Act {
    QString control;                   ///< its object name: "optBG", "txtGmt(0)"
    std::optional<QString> text = {};  ///< replaces the box's text; without, the control is pressed or chosen
    bool operator==(const Act&) const = default;
};

/// The screen does not take the act as it stands. The message names the screen and the control: "txtTkm(0) of frmT1 is
/// locked".
struct Refused : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Does what a user does: a text is put into its box as if typed over what stands there, an option button is chosen, a
/// check box toggled, a button pressed, and the screen's handlers run. The screen must have been shown. Throws Refused,
/// with nothing done, where a user could not do this: a control that does not exist, is hidden, locked, closed or of
/// another kind, or any control while a dialog is open.
void perform(flow::Screen& screen, const Act& act);

}  // namespace division
