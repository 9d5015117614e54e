#pragma once
#include <QWidget>
#include <vector>

#include "screens/controls/caption.h"
#include "screens/controls/combo_box.h"
#include "screens/controls/control_array.h"
#include "screens/controls/text_box.h"

namespace controls {

/// Rows of boxes under headings: row i is made of elements i of its columns' arrays. A column is declared once, with
/// all that its boxes are. Rows start hidden; hidden rows take no room, extra width goes to the columns alike, and the
/// headings stay in view while the rows scroll.
class RowSheet : public QWidget {
public:
    /// `noun` names a row to screen readers ("Km From, segment 3"); elements 0 to rows - 1 are laid out.
    RowSheet(const QString& noun, int rows);

    /// One row more, of elements `rows`, under the last row shown: locked, and hidden until showTotal. To be called
    /// before the columns. `caption` stands in the columns before the first that has a total.
    void withTotalRow(const QString& caption = {});

    /// A heading over the next `span` columns; under an earlier one that spans their first, if there is one. `lines`
    /// are those of Caption::setLines.
    RowSheet& heading(const QString& text, int span = 1, const QList<QStringList>& lines = {});

    // The next column, its boxes `characters` wide. `part` tells apart columns under one heading ("turnouts").
    RowSheet& entry(ControlArray<TextBox>& figures, int characters, const QString& part = {});
    RowSheet& textEntry(ControlArray<TextBox>& texts, int characters);
    /// `preset` stands in the boxes until the user or an import chooses one of `choices`, or another text.
    RowSheet& choice(ControlArray<ComboBox>& boxes, int characters, const QStringList& choices, const QString& preset);
    /// Computed, or taken from an earlier screen: locked.
    RowSheet& result(ControlArray<TextBox>& figures, int characters, const QString& part = {});
    RowSheet& textResult(ControlArray<TextBox>& texts, int characters);

    /// To be called once, after the last column: takes the boxes in, in reading order.
    void finish();

    /// Shows the first `count` rows and hides the others, which keep what they hold.
    void showRows(int count);
    int shownRows() const { return m_shownRows; }

    void showTotal();
    std::vector<QWidget*> totalBoxes() const;

    /// The total row's position, counted in rows from the first; it then no longer follows the rows shown.
    void setTotalPosition(double position);

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

    template <class Box, class Prepare>
    RowSheet& addColumn(ControlArray<Box>& boxes, int characters, const QString& part, Prepare prepare);
    QString accessibleNameOf(std::size_t column, int row) const;
    int narrowest(const Column& column) const;
    int rowHeight() const;
    double totalPosition() const;
    std::vector<int> columnEdges() const;
    void layOutHeadings(const std::vector<int>& edges);
    void layOutTotalCaption(const std::vector<int>& edges, int top);
    void layOut();

    QString m_noun;
    int m_rows;
    int m_shownRows = 0;
    bool m_totalRow = false;
    bool m_totalShown = false;
    Caption* m_totalCaption = nullptr;
    double m_totalPosition = -1.0;
    QWidget* m_band;  // the headings, opaque, above the rows that scroll under them
    int m_headingHeight = 0;
    std::vector<Column> m_columns;
    std::vector<Heading> m_headings;
};

}  // namespace controls
