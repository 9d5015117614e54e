#pragma once
#include <QComboBox>

namespace controls {

/// A list that also takes a text of its own: an imported text that is not in the list is kept letter for letter.
/// Locked means disabled and filled pale. The wheel scrolls the rows, never the choice.
class ComboBox : public QComboBox {
public:
    explicit ComboBox(const QString& name);

    void setLocked(bool locked);
    bool isLocked() const { return !isEnabled(); }

    QString text() const { return currentText(); }
    void setText(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace controls
