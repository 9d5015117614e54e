#include "screens/controls/row_sheet.h"

#include <QEvent>
#include <algorithm>

namespace controls {

namespace {
constexpr int Gap = 2;         // between columns and between rows
constexpr int HeadingGap = 4;  // between the headings and the first row
constexpr int WidestStretch = 2;
}  // namespace

RowSheet::RowSheet(const QString& noun, int rows) : m_noun(noun), m_rows(rows), m_band(new QWidget(this))
{
    m_band->setAutoFillBackground(true);
}

void RowSheet::withTotalRow(const QString& caption)
{
    m_totalRow = true;
    if (caption.isEmpty())
        return;
    m_totalCaption = new Caption(caption, this);
    m_totalCaption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_totalCaption->hide();
}

RowSheet& RowSheet::heading(const QString& text, int span, const QList<QStringList>& lines)
{
    auto* label = new Caption(text, m_band);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    if (!lines.isEmpty())
        label->setLines(lines);
    m_headings.push_back({label, static_cast<int>(m_columns.size()), span});
    return *this;
}

template <class Box, class Prepare>
RowSheet& RowSheet::addColumn(ControlArray<Box>& boxes, int characters, const QString& part, Prepare prepare)
{
    Column column{{}, characters, part};
    for (int i = 0; i < m_rows + (m_totalRow ? 1 : 0); ++i) {
        Box* box = boxes.has(i) ? &boxes(i) : nullptr;
        if (box)
            prepare(*box);
        if (box && i == m_rows)
            box->setLocked(true);
        column.boxes.push_back(box);
    }
    m_columns.push_back(std::move(column));
    return *this;
}

RowSheet& RowSheet::entry(ControlArray<TextBox>& figures, int characters, const QString& part)
{
    return addColumn(figures, characters, part, [](TextBox& box) { box.setNumeric(); });
}

RowSheet& RowSheet::textEntry(ControlArray<TextBox>& texts, int characters)
{
    return addColumn(texts, characters, {}, [](TextBox&) {});
}

RowSheet& RowSheet::choice(ControlArray<ComboBox>& boxes, int characters, const QStringList& choices,
                           const QString& preset)
{
    return addColumn(boxes, characters, {}, [&](ComboBox& box) {
        box.addItems(choices);
        box.setText(preset);
    });
}

RowSheet& RowSheet::result(ControlArray<TextBox>& figures, int characters, const QString& part)
{
    return addColumn(figures, characters, part, [](TextBox& box) {
        box.setNumeric();
        box.setLocked(true);
    });
}

RowSheet& RowSheet::textResult(ControlArray<TextBox>& texts, int characters)
{
    return addColumn(texts, characters, {}, [](TextBox& box) { box.setLocked(true); });
}

QString RowSheet::accessibleNameOf(std::size_t column, int row) const
{
    QString name;
    for (const Heading& heading : m_headings)
        if (heading.first <= static_cast<int>(column) && static_cast<int>(column) < heading.first + heading.span)
            name = heading.label->spokenOver(static_cast<int>(column) - heading.first, heading.span);
    if (!m_columns[column].part.isEmpty())
        name += (name.isEmpty() ? "" : ", ") + m_columns[column].part;
    return name + ", " + (row == m_rows ? QString("total") : QString("%1 %2").arg(m_noun).arg(row + 1));
}

void RowSheet::finish()
{
    // A box joins the tab order and the screen reader's order where it gets its parent: row by row.
    for (int row = 0; row < m_rows + (m_totalRow ? 1 : 0); ++row) {
        for (std::size_t column = 0; column < m_columns.size(); ++column) {
            QWidget* box = m_columns[column].boxes[static_cast<std::size_t>(row)];
            if (!box)
                continue;
            box->setParent(this);
            box->setVisible(row == m_rows ? m_totalShown : row < m_shownRows);
            box->setAccessibleName(accessibleNameOf(column, row));
        }
    }
    m_band->raise();
    layOut();
}

void RowSheet::showRows(int count)
{
    m_shownRows = std::clamp(count, 0, m_rows);
    for (int row = 0; row < m_rows; ++row)
        for (const Column& column : m_columns)
            if (QWidget* box = column.boxes[static_cast<std::size_t>(row)])
                box->setVisible(row < m_shownRows);
}

void RowSheet::showTotal()
{
    m_totalShown = true;
    for (QWidget* box : totalBoxes())
        box->setVisible(true);
}

std::vector<QWidget*> RowSheet::totalBoxes() const
{
    std::vector<QWidget*> boxes;
    for (const Column& column : m_columns)
        if (m_totalRow && column.boxes.back())
            boxes.push_back(column.boxes.back());
    return boxes;
}

void RowSheet::setTotalPosition(double position)
{
    m_totalPosition = position;
    layOut();
}

void RowSheet::pinHeadings(int scrolled)
{
    m_band->move(0, scrolled);
}

int RowSheet::rowHeight() const
{
    return std::max(24, fontMetrics().height() + 9);
}

int RowSheet::narrowest(const Column& column) const
{
    return column.characters * fontMetrics().horizontalAdvance('0') + 14;
}

double RowSheet::totalPosition() const
{
    return m_totalPosition >= 0 ? m_totalPosition : m_shownRows;
}

std::vector<int> RowSheet::columnEdges() const
{
    int needed = 0;
    for (const Column& column : m_columns)
        needed += narrowest(column);
    const int gaps = Gap * static_cast<int>(m_columns.size());
    const int room = std::clamp(width() - gaps, needed, WidestStretch * needed);
    std::vector<int> edges{0};
    int taken = 0;
    for (const Column& column : m_columns) {
        taken += narrowest(column);
        edges.push_back(room * taken / needed + Gap * static_cast<int>(edges.size()));
    }
    return edges;
}

void RowSheet::layOutHeadings(const std::vector<int>& edges)
{
    std::vector<QRect> rooms;
    std::vector<bool> lowest;  // nothing stands under it: it stands right over its rows
    int bottom = 0;
    for (const Heading& heading : m_headings) {
        const int from = edges[static_cast<std::size_t>(heading.first)];
        const int to = edges[static_cast<std::size_t>(heading.first + heading.span)];
        QRect room(from, 0, to - from - Gap, heading.label->heightForWidth(to - from - Gap));
        for (std::size_t above = 0; above < rooms.size(); ++above) {
            const Heading& over = m_headings[above];
            if (heading.first < over.first || heading.first >= over.first + over.span)
                continue;
            room.moveTop(std::max(room.top(), rooms[above].bottom() + 1));
            lowest[above] = false;
        }
        bottom = std::max(bottom, room.bottom() + 1);
        rooms.push_back(room);
        lowest.push_back(true);
    }
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        if (lowest[i])
            rooms[i].setBottom(bottom - 1);
        m_headings[i].label->setGeometry(rooms[i]);
    }
    m_headingHeight = bottom + HeadingGap;
    m_band->setGeometry(0, m_band->y(), std::max(width(), edges.back()), m_headingHeight);
}

void RowSheet::layOutTotalCaption(const std::vector<int>& edges, int top)
{
    std::size_t columns = 0;
    while (columns < m_columns.size() && !m_columns[columns].boxes.back())
        ++columns;
    m_totalCaption->setGeometry(edges[0], top, edges[columns] - edges[0] - 3 * Gap, rowHeight() - 1);
    m_totalCaption->setVisible(m_totalShown);
}

void RowSheet::layOut()
{
    if (m_columns.empty())
        return;
    const std::vector<int> edges = columnEdges();
    layOutHeadings(edges);
    for (std::size_t c = 0; c < m_columns.size(); ++c) {
        for (int row = 0; row < static_cast<int>(m_columns[c].boxes.size()); ++row) {
            QWidget* box = m_columns[c].boxes[static_cast<std::size_t>(row)];
            if (!box || box->isHidden())
                continue;
            const double position = row == m_rows ? totalPosition() : row;
            box->setGeometry(edges[c], m_headingHeight + static_cast<int>(position * rowHeight()),
                             edges[c + 1] - edges[c] - Gap, rowHeight() - 1);
        }
    }
    if (m_totalCaption)
        layOutTotalCaption(edges, m_headingHeight + static_cast<int>(totalPosition() * rowHeight()));
    setMinimumHeight(sizeHint().height());
    updateGeometry();
}

QSize RowSheet::minimumSizeHint() const
{
    int needed = 0;
    for (const Column& column : m_columns)
        needed += narrowest(column) + Gap;
    return {needed, sizeHint().height()};
}

QSize RowSheet::sizeHint() const
{
    int needed = 0;
    for (const Column& column : m_columns)
        needed += narrowest(column) + Gap;
    double rows = m_shownRows;
    if (m_totalShown)
        rows = std::max(rows, totalPosition()) + 1;
    return {needed, m_headingHeight + static_cast<int>(rows * rowHeight()) + 1};
}

bool RowSheet::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:  // a box was shown or hidden
    case QEvent::FontChange:
    case QEvent::Show:
        layOut();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void RowSheet::resizeEvent(QResizeEvent*)
{
    layOut();
}

}  // namespace controls
