#pragma once
#include <QWidget>
#include <vector>

#include "screens/controls/caption.h"
#include "screens/controls/combo_box.h"
#include "screens/controls/control_array.h"
#include "screens/controls/text_box.h"

namespace controls {

/// Rows of boxes under headings: row i is made of elements i of its columns' arrays. Hidden rows take no room, extra
/// width goes to the columns alike, and the headings stay in view while the rows scroll.
class RowSheet : public QWidget {
public:
    /// `noun` names a row to people who listen ("Km From, segment 3"); elements 0 to rows - 1 are laid out.
    RowSheet(const QString& noun, int rows);

    /// A heading over the next `span` columns; under an earlier one that spans their first, if there is one.
    Caption& heading(const QString& text, int span = 1);

    /// The next column, `characters` wide. `part` tells apart columns under one heading ("turnouts").
    template <class Box>
    void column(const ControlArray<Box>& boxes, int characters, const QString& part = {})
    {
        Column& added = addColumn(characters, part);
        for (int i = 0; i < m_rows + (m_totalRow ? 1 : 0); ++i)
            added.boxes.push_back(boxes.has(i) ? &boxes(i) : nullptr);
    }

    /// One row more, of elements `rows`, under the last row shown. To be called before the columns.
    /// `caption` stands in the columns before the first that has a total.
    void withTotalRow(const QString& caption = {});

    /// The total row's place, counted in rows from the first; it then no longer follows the rows shown.
    void setTotalPlace(double place);

    /// To be called once, behind the last column: takes the boxes in, in reading order.
    void finish();

    /// Keeps the headings in view after the sheet was scrolled down by `scrolled` pixels.
    void pinHeadings(int scrolled);
    int pinnedAt() const { return m_band->y(); }
    int headingHeight() const { return m_headingHeight; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Column {
        std::vector<QWidget*> boxes;
        int characters;
        QString part;
    };
    struct Heading {
        Caption* label;
        int first;
        int span;
    };

    Column& addColumn(int characters, const QString& part);
    QString spokenName(std::size_t column, int row) const;
    int narrowest(const Column& column) const;
    int rowHeight() const;
    double placesInUse() const;
    bool totalShown() const;
    std::vector<int> columnEdges() const;
    void layOutHeadings(const std::vector<int>& edges);
    void layOutTotalCaption(const std::vector<int>& edges, int top);
    void layOut();

    QString m_noun;
    int m_rows;
    bool m_totalRow = false;
    Caption* m_totalCaption = nullptr;
    double m_totalPlace = -1.0;
    QWidget* m_band;  // the headings, opaque, above the rows that scroll under them
    int m_headingHeight = 0;
    std::vector<Column> m_columns;
    std::vector<Heading> m_headings;
};

}  // namespace controls
