#pragma once
#include <QPushButton>

namespace controls {

/// A push button that Enter presses as Space does: the whole division can be worked without a mouse.
class Button : public QPushButton {
public:
    Button(const QString& name, const QString& caption);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace controls
