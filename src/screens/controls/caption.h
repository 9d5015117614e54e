#pragma once
#include <QLabel>
#include <QStringList>

namespace controls {

/// A label that keeps its text verbatim but draws runs of three or more blanks (manual wrapping) as line breaks, and
/// shorter runs as one blank. What is still too wide wraps at its words; nothing is cut off.
class Caption : public QLabel {
public:
    explicit Caption(const QString& text, QWidget* parent = nullptr);

    /// A heading over several columns: what each line shows, its cells spread evenly over the width.
    /// Given where the blanks of the text stand for such columns.
    void setLines(const QList<QStringList>& lines);

    /// The text in one line, without superfluous blanks: for accessible names.
    QString spoken() const { return text().simplified(); }
    /// What the lines say over one of `columns` columns: their cells of it, and what stands over all.
    QString spokenOver(int column, int columns) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// One that is never narrower than it asks for does not wrap.
    bool hasHeightForWidth() const override { return sizePolicy().horizontalPolicy() != QSizePolicy::Minimum; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int longestWord() const;

    QList<QStringList> m_lines;
};

}  // namespace controls
