#pragma once

namespace division {

/// Without a display: keeps from the standard error what Qt's offscreen platform remarks on every window that it can
/// neither raise nor keep from shrinking. All other messages stay.
void silenceOffscreenRemarks();

}  // namespace division
