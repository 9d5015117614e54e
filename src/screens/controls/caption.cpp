#include "screens/controls/caption.h"

#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <algorithm>

namespace controls {

Caption::Caption(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    static const QRegularExpression wrap(" {3,}");
    for (const QString& line : text.trimmed().replace(wrap, "\n").split('\n'))
        m_lines.append({line.simplified()});
    setAccessibleName(spoken());
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void Caption::setLines(const QList<QStringList>& lines)
{
    m_lines = lines;
    updateGeometry();
}

QString Caption::spokenOver(int column, int columns) const
{
    QStringList words;
    for (const QStringList& line : m_lines)
        words += line[column * line.size() / columns];
    return words.join(' ').simplified();
}

QSize Caption::sizeHint() const
{
    int width = 0;
    for (const QStringList& line : m_lines) {
        int widest = 0;
        for (const QString& cell : line)
            widest = std::max(widest, fontMetrics().horizontalAdvance(cell) + 2);
        width = std::max(width, widest * static_cast<int>(line.size()));
    }
    return {width, heightForWidth(width)};
}

int Caption::longestWord() const
{
    int longest = 0;
    for (const QStringList& line : m_lines)
        for (const QString& cell : line)
            for (const QString& word : cell.split(' '))
                longest = std::max(longest, fontMetrics().horizontalAdvance(word) * static_cast<int>(line.size()));
    return longest + 2;
}

QSize Caption::minimumSizeHint() const
{
    return {longestWord(), static_cast<int>(m_lines.size()) * fontMetrics().height()};
}

int Caption::heightForWidth(int width) const
{
    int height = 0;
    for (const QStringList& line : m_lines) {
        int tallest = 0;
        for (const QString& cell : line) {
            const QRect room(0, 0, width / static_cast<int>(line.size()), 1 << 20);
            tallest = std::max(tallest, fontMetrics().boundingRect(room, Qt::TextWordWrap, cell).height());
        }
        height += tallest;
    }
    return height;
}

void Caption::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int total = std::min(heightForWidth(width()), height());
    int top = 0;
    if (alignment() & Qt::AlignVCenter)
        top = (height() - total) / 2;
    else if (alignment() & Qt::AlignBottom)
        top = height() - total;

    const auto across = static_cast<int>(alignment() & Qt::AlignHorizontal_Mask);
    for (const QStringList& line : m_lines) {
        const int cells = static_cast<int>(line.size());
        int tallest = 0;
        for (int i = 0; i < cells; ++i) {
            const QRect room(width() * i / cells, top, width() / cells, height());
            const QRect used = fontMetrics().boundingRect(room, Qt::TextWordWrap, line[i]);
            tallest = std::max(tallest, used.height());
            style()->drawItemText(&painter, room, across | Qt::AlignTop | Qt::TextWordWrap, palette(), isEnabled(),
                                  line[i], foregroundRole());
        }
        top += tallest;
    }
}

}  // namespace controls
