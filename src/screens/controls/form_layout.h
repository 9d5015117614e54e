#pragma once
#include <QBoxLayout>
#include <QGroupBox>
#include <QList>
#include <QScrollArea>

#include "screens/controls/button.h"
#include "screens/controls/caption.h"
#include "screens/controls/row_sheet.h"
#include "screens/controls/text_box.h"

namespace controls {

class DataGrid;
class Section;

/// The one layout of all screens, from top to bottom: the title, lines of header boxes, what scrolls (rows or
/// sections), what stands under it (the data file's table), the buttons. What is added first comes first in the tab
/// order and to screen readers. In a window too small for a few rows under their header all but the buttons scrolls.
class FormLayout {
public:
    /// A part of the form, from edge to edge.
    struct Part {
        QWidget* widget;
        QScrollArea* area = nullptr;  ///< in which the widget scrolls
        RowSheet* rows = nullptr;     ///< the widget itself, if it is rows under headings
        DataGrid* grid = nullptr;     ///< the data file's table on it, hidden while there is none
    };

    FormLayout(QWidget& form, const QString& title);

    /// A new line of header boxes.
    QHBoxLayout& headerLine();

    /// Rows under headings that stay in view. The sheet must be finished.
    void addRows(RowSheet* rows);
    /// A column of sections that scrolls as a whole.
    QVBoxLayout& sections();
    /// The same in columns side by side, as wide as their sections ask for.
    void sections(std::initializer_list<std::initializer_list<Section*>> columns);

    /// Something of full width under the rows; `grid` if that shows the data file's table.
    void addBelow(QWidget* widget, DataGrid* grid = nullptr);
    QHBoxLayout& lineBelow();

    void buttons(std::initializer_list<Button*> buttons);

    /// The parts of the form from top to bottom. What scrolls is a part as a whole.
    const QList<Part>& parts() const { return m_parts; }

private:
    QScrollArea* scroll(QWidget* content, RowSheet* rows = nullptr);

    QVBoxLayout* m_form;  // m_down and the buttons
    QVBoxLayout* m_down;
    QVBoxLayout* m_header;
    QList<Part> m_parts;
};

/// Puts a box after its label and names it after that; `characters` wide, 0 for as wide as there is room.
Caption& addField(QBoxLayout& line, const QString& caption, TextBox& box, int characters);
/// A further box under the label before it.
void addBox(QBoxLayout& line, TextBox& box, int characters, const QString& spoken);
/// Buttons side by side in a frame with its heading.
QGroupBox& addGroup(QBoxLayout& line, const QString& name, const QString& heading,
                    std::initializer_list<QAbstractButton*> buttons);
/// Width of a box that holds `characters` digits [px].
int widthOf(const QWidget& box, int characters);

}  // namespace controls
