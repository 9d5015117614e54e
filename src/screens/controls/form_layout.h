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

class Section;

/// One face for all screens, from top to bottom: the title, lines of header boxes, what scrolls (rows or sections),
/// what stands under it (the data file's table), the buttons. What is added first is read and tabbed to first.
/// In a window too small for a few rows under their header all but the buttons scrolls.
class FormLayout {
public:
    FormLayout(QWidget& form, const QString& title);

    /// A new line of header boxes.
    QHBoxLayout& headerLine();

    /// Rows under headings that stay in view. The sheet must be finished.
    void addRows(RowSheet* rows);
    /// A column of sections that scrolls as a whole.
    QVBoxLayout& sections();
    /// The same in columns side by side, as wide as their sections ask for.
    void sections(std::initializer_list<std::initializer_list<Section*>> columns);

    /// Something of full width under the rows.
    void addBelow(QWidget* widget);
    QHBoxLayout& lineBelow();

    void buttons(std::initializer_list<Button*> buttons);

    /// The form cut into its parts, in their order down the sheet; what scrolls is given whole.
    const QList<QWidget*>& parts() const { return m_parts; }

private:
    QWidget* addPart(QWidget* part);
    void scroll(QWidget* content);

    QVBoxLayout* m_form;  // m_down and the buttons
    QVBoxLayout* m_down;
    QVBoxLayout* m_header;
    QList<QWidget*> m_parts;
};

/// Puts a box behind its label and names it after it; `characters` wide, 0 for as wide as there is room.
Caption& addField(QBoxLayout& line, const QString& caption, TextBox& box, int characters);
/// A further box under the label before it.
void addBox(QBoxLayout& line, TextBox& box, int characters, const QString& spoken);
/// Buttons side by side in a frame with its heading.
QGroupBox& addGroup(QBoxLayout& line, const QString& name, const QString& heading,
                    std::initializer_list<QAbstractButton*> buttons);
/// Width of a box that holds `characters` digits [px].
int widthOf(const QWidget& box, int characters);

}  // namespace controls
