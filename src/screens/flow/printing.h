#pragma once
#include "screens/controls/form_layout.h"

class QPrinter;
class QWidget;

namespace flow {

/// Prints the form once for each copy, one sheet each: all its parts one under another, whole, the same whatever the
/// size of its window, scaled to fit; landscape where wider than tall, black on white whatever the theme.
/// Throws std::runtime_error if the printer or its file gives out. With no copies, nothing is printed.
void printForm(QWidget& form, const QList<controls::FormLayout::Part>& parts, QPrinter& printer, int copies);

}  // namespace flow
