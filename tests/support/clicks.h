#pragma once
#include <QWidget>

/// Where a click surely meets the button: option buttons and check boxes take it on their mark, at the left.
inline QPoint placeToClick(const QWidget& button)
{
    const bool marked = button.inherits("QRadioButton") || button.inherits("QCheckBox");
    return {marked ? 9 : button.rect().center().x(), button.rect().center().y()};
}
