#include "screens/controls/data_grid.h"

#include <QAbstractTableModel>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>

#include "screens/controls/tool_tip.h"

namespace controls {

namespace {

constexpr int FewestRecordsSeen = 3;
constexpr int WidestColumn = 220;  // [px]; a memo may be longer
constexpr int RecordsOnAnyDesktop = 10'000;

QString toQt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

class DataGrid::Model : public QAbstractTableModel {
public:
    explicit Model(DataGrid& grid) : QAbstractTableModel(&grid), m_table(grid.m_table) {}

    void changed()
    {
        beginResetModel();
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : std::max(0, m_table.rows() - 1);
    }

    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : std::max(0, m_table.columns() - 1);
    }

    QVariant data(const QModelIndex& cell, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
            return {};
        const QString text = toQt(m_table.text(cell.row() + 1, cell.column() + 1));
        return role == Qt::ToolTipRole ? plainTip(text) : text;
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        return orientation == Qt::Horizontal ? toQt(m_table.text(0, section + 1)) : QString::number(section + 1);
    }

private:
    const store::Table& m_table;
};

DataGrid::DataGrid(const QString& name, int records, int columns)
    : m_records(records), m_columns(columns), m_model(new Model(*this))
{
    setObjectName(name);
    setModel(m_model);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    const int line = fontMetrics().height() + 4;
    verticalHeader()->setDefaultSectionSize(line);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setResizeContentsPrecision(m_records);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizePolicy(policy);
}

void DataGrid::setTable(store::Table table)
{
    m_table = std::move(table);
    m_model->changed();
    resizeColumnsToContents();
    for (int i = 0; i < m_model->columnCount(); ++i)
        setColumnWidth(i, std::min(columnWidth(i), WidestColumn));
    fitHeight();
}

void DataGrid::fitHeight()
{
    setMaximumHeight(heightOf(std::min(m_model->rowCount(), RecordsOnAnyDesktop)));
    updateGeometry();
}

void DataGrid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        fitHeight();
}

QString DataGrid::TextMatrix(int row, int column) const
{
    return toQt(m_table.text(row, column));
}

int DataGrid::heightOf(int records) const
{
    const int line = verticalHeader()->defaultSectionSize();
    const bool wide = verticalHeader()->sizeHint().width() + horizontalHeader()->length() + 2 * frameWidth() > width();
    return horizontalHeader()->sizeHint().height() + records * line + 2 * frameWidth() + 1 +
           (wide ? horizontalScrollBar()->sizeHint().height() : 0);
}

QSize DataGrid::wholeSize() const
{
    int width = verticalHeader()->sizeHint().width() + 2 * frameWidth();
    for (int i = 0; i < std::min(m_model->columnCount(), m_columns); ++i)
        width += columnWidth(i);
    return {width, heightOf(std::min(m_model->rowCount(), m_records))};
}

QSize DataGrid::sizeHint() const
{
    // No more than it must have: the rows of boxes come first, and the table grows into what they leave.
    return {QTableView::sizeHint().width(), minimumSizeHint().height()};
}

QSize DataGrid::minimumSizeHint() const
{
    return {QTableView::minimumSizeHint().width(), heightOf(std::min(m_model->rowCount(), FewestRecordsSeen))};
}

void DataGrid::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else
        QTableView::keyPressEvent(event);
}

void DataGrid::copySelection() const
{
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty())
        return;
    QRect around;
    for (const QItemSelectionRange& range : selection)
        around |= QRect(range.left(), range.top(), range.width(), range.height());
    QString block;
    for (int row = around.top(); row <= around.bottom(); ++row) {
        for (int column = around.left(); column <= around.right(); ++column) {
            if (column > around.left())
                block += '\t';
            const QModelIndex cell = m_model->index(row, column);
            if (selectionModel()->isSelected(cell))
                block += cell.data().toString();
        }
        block += '\n';
    }
    QGuiApplication::clipboard()->setText(block);
}

}  // namespace controls
