#pragma once
#include <QLineEdit>
#include <optional>

namespace controls {

/// A line of text that may be locked: read-only and filled pale, so that computed figures and facts taken from
/// an earlier screen look it. setText and typing alike emit textChanged, only when the text really changes. A text
/// longer than the box shows its beginning unless the user is in it: the end of a figure would pass for another figure.
class TextBox : public QLineEdit {
public:
    explicit TextBox(const QString& name);

    void setLocked(bool locked);
    bool isLocked() const { return isReadOnly(); }

    /// Pure red text marks a figure that has to be revised.
    void setRed(bool red) { setInk(red ? Ink::PureRed : Ink::Theme); }
    /// The same in a red with a contrast of at least 4.5 to its fill, be it light, pale or dark.
    void setReadableRed(bool red) { setInk(red ? Ink::ReadableRed : Ink::Theme); }
    bool isRed() const { return m_ink != Ink::Theme; }

    /// The box is read as a number: right-aligned, and marked while its text is none.
    void setNumeric();
    /// A count: numeric, and marked while it is more than `limit`, which is then what counts.
    void setLimit(int limit);

    /// What is odd about the text in a sentence for the user ("\"12km\" is not a number: it counts as 12."), or "".
    /// Only a remark: nothing is refused.
    QString remark() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Ink { Theme, PureRed, ReadableRed };

    void setInk(Ink ink);
    QColor readableRed() const;
    void paintFill();
    void updateRemark();

    Ink m_ink = Ink::Theme;
    bool m_numeric = false;
    std::optional<int> m_limit;
    bool m_remarked = false;
    QString m_ownToolTip;
};

/// The pale fill and dark text of whatever is locked; the rest of the palette is the theme's.
QPalette lockedFill();

/// The figure in the box, by the lenient reading.
double valueOf(const TextBox& box);
/// The whole number of rows that a count box asks for, 0 to `limit`. A larger count is rewritten to the limit, which
/// fires the box's change once more.
int countOf(TextBox& box, int limit);
/// Replaces the text while the user is typing; the cursor keeps its place.
void rewrite(TextBox& box, const QString& text);
void setText(TextBox& box, const std::string& text);

}  // namespace controls
