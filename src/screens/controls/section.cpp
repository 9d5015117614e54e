#include "screens/controls/section.h"

#include "screens/controls/form_layout.h"

namespace controls {

namespace {
constexpr int Spacing = 6;
constexpr int Gap = 2;       // between boxes in lines
constexpr int FirstBox = 2;  // column of the grid
}  // namespace

Section::Section(const QString& heading) : m_down(new QVBoxLayout(this)), m_heading(new Caption(heading))
{
    m_down->setContentsMargins(0, 0, 0, 0);
    m_down->setSpacing(Spacing / 2);
    QFont bold = m_heading->font();
    bold.setBold(true);
    m_heading->setFont(bold);
    m_down->addWidget(m_heading);
}

QHBoxLayout& Section::line()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(Spacing);
    m_down->addLayout(line);
    return *line;
}

void Section::add(QWidget* rows)
{
    m_down->addWidget(rows);
}

Caption& Section::addResult(QHBoxLayout& line, const QString& caption, TextBox& box, int characters)
{
    box.setNumeric();
    box.setLocked(true);
    line.addStretch();
    Caption& label = addField(line, caption, box, characters);
    nameAfterActivity(box);
    return label;
}

void Section::nameAfterActivity(TextBox& box) const
{
    box.setAccessibleName(box.accessibleName() + ", " + m_heading->spoken());
}

void Section::setOpen(bool open)
{
    for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (child != m_heading)
            child->setEnabled(open);
}

BoxLines::BoxLines(const QString& noun) : m_noun(noun), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(Gap);
    m_grid->setVerticalSpacing(Gap);
    m_grid->setColumnMinimumWidth(1, Spacing - Gap);  // the boxes stand off their caption as those of fields do
}

Caption& BoxLines::line(const QString& caption, ControlArray<TextBox>& boxes, int first, int last, int characters)
{
    const int row = m_grid->rowCount();
    auto* label = new Caption(caption);
    label->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    m_grid->addWidget(label, row, 0);
    for (int i = first; i <= last; ++i) {
        TextBox& box = boxes(i);
        box.setFixedWidth(widthOf(box, characters));
        box.setAccessibleName(QString("%1, %2 %3").arg(label->spoken(), m_noun).arg(i - first + 1));
        m_grid->addWidget(&box, row, FirstBox + i - first);
    }
    m_grid->setColumnStretch(FirstBox + last - first + 1, 1);  // the boxes stand together at the left
    return *label;
}

}  // namespace controls
