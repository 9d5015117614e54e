#pragma once
#include <QBoxLayout>

#include "screens/controls/control_array.h"
#include "screens/controls/text_box.h"

class frmT1;

namespace track {

/// The head of a screen of activities: whose figures they are, taken from the track screen and locked, and the gauge.
/// `txtT1`: 0 section, 1 Sr SE, 2 jurisdiction.
void addHeader(QBoxLayout& line, const frmT1& t1, controls::ControlArray<controls::TextBox>& txtT1);

}  // namespace track
