#pragma once

/// The tool tip of the buttons that print or leave a screen, to the letter.
inline constexpr const char* LockTip =
    "Please make sure that all data is corrctly entered. The data would get lockked after clicking this button.";
