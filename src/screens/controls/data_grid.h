#pragma once
#include <QTableView>

#include "store/table.h"

namespace controls {

/// A table of the data file to look at: row 0 is the heading row, column 0 the margin. Cells are drawn as they come
/// into view, so that 20,000 records cost nothing. Ctrl+C copies the selected cells in a spreadsheet's form.
class DataGrid : public QTableView {
public:
    /// `records` and `columns` of the table are those that the screen takes: so much of it is printed.
    DataGrid(const QString& name, int records, int columns);

    void setTable(store::Table table);

    /// A cell's text. Throws RunTimeError (subscript) that names what is missing.
    QString TextMatrix(int row, int column) const;

    /// Size at which all cells are seen, or as many records and columns as the screen takes [px].
    QSize wholeSize() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Model;

    int heightOf(int records) const;
    void fitHeight();
    void copySelection() const;

    int m_records;
    int m_columns;
    store::Table m_table;
    Model* m_model;
};

}  // namespace controls
