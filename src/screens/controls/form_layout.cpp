#include "screens/controls/form_layout.h"

#include <QEvent>
#include <QResizeEvent>
#include <QScrollBar>

#include "screens/controls/section.h"

namespace controls {

namespace {

constexpr int Margin = 10;
constexpr int Spacing = 6;
constexpr int SectionSpacing = 10;
constexpr int ColumnSpacing = 24;
constexpr int LongestFigure = 12;  // [characters]
constexpr int NarrowestName = 9;   // [characters]: where the desktop is scaled, long boxes give way first

// As high as what it shows while there is room, so that the table below stands right under the rows.
class Scroller : public QScrollArea {
public:
    Scroller() { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum); }

    QSize sizeHint() const override
    {
        const QSize content = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
        const int narrowest = widget()->minimumSizeHint().width();
        const int bar = narrowest > width() ? horizontalScrollBar()->sizeHint().height() : 0;
        // Captions wrap: a narrow content is higher than its hint. Room for it beside a vertical bar, which could
        // otherwise not go away again once it was there.
        const int verticalBar = verticalScrollBar()->sizeHint().width();
        const QLayout* lines = widget()->layout();
        const int height = lines && lines->hasHeightForWidth()
                               ? lines->totalHeightForWidth(std::max(width() - verticalBar, narrowest))
                               : content.height();
        return {content.width() + verticalBar, height + bar};
    }

    QSize minimumSizeHint() const override
    {
        return {200, std::min(sizeHint().height(), 6 * (fontMetrics().height() + 9))};
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }

    void resizeEvent(QResizeEvent* event) override
    {
        QScrollArea::resizeEvent(event);
        if (event->oldSize().width() != event->size().width())
            updateGeometry();
    }
};

// All but the buttons. Rows and table give way as far as they can before it scrolls itself.
class AboveButtons : public QWidget {
public:
    int heightForWidth(int width) const override { return layout()->totalMinimumHeightForWidth(width); }
};

void fill(QScrollArea& area, QWidget* content)
{
    area.setFrameShape(QFrame::NoFrame);
    area.setFocusPolicy(Qt::NoFocus);
    area.setWidgetResizable(true);
    area.setWidget(content);
    area.viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}

}  // namespace

FormLayout::FormLayout(QWidget& form, const QString& title) : m_form(new QVBoxLayout(&form))
{
    m_form->setContentsMargins(Margin, Margin, Margin, Margin);
    m_form->setSpacing(Spacing);
    auto* whole = new QScrollArea;
    m_form->addWidget(whole);
    auto* above = new AboveButtons;
    fill(*whole, above);
    m_down = new QVBoxLayout(above);
    m_down->setContentsMargins(0, 0, 0, 0);
    m_down->setSpacing(Spacing);
    auto* header = new QWidget;
    m_header = new QVBoxLayout(header);
    m_header->setContentsMargins(0, 0, 0, 0);
    m_header->setSpacing(Spacing);
    auto* label = new Caption(title);
    QFont large = label->font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setBold(true);
    label->setFont(large);
    m_header->addWidget(label);
    m_down->addWidget(header);
    m_parts.append({.widget = header});
    m_down->addStretch(0);
}

QHBoxLayout& FormLayout::headerLine()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(Spacing);
    m_header->addLayout(line);
    return *line;
}

QScrollArea* FormLayout::scroll(QWidget* content, RowSheet* rows)
{
    auto* scroller = new Scroller;
    scroller->setObjectName("rows");
    fill(*scroller, content);
    m_down->insertWidget(m_down->count() - 1, scroller);
    m_parts.append({.widget = content, .area = scroller, .rows = rows});
    return scroller;
}

void FormLayout::addRows(RowSheet* rows)
{
    const QScrollArea* area = scroll(rows, rows);
    QObject::connect(area->verticalScrollBar(), &QScrollBar::valueChanged, rows, &RowSheet::pinHeadings);
}

QVBoxLayout& FormLayout::sections()
{
    auto* content = new QWidget;
    auto* down = new QVBoxLayout(content);
    down->setContentsMargins(0, 0, 0, 0);
    down->setSpacing(Spacing);
    scroll(content);
    return *down;
}

void FormLayout::sections(std::initializer_list<std::initializer_list<Section*>> columns)
{
    auto* across = new QHBoxLayout;
    across->setSpacing(ColumnSpacing);
    sections().addLayout(across);
    for (const auto& column : columns) {
        auto* down = new QVBoxLayout;
        down->setSpacing(SectionSpacing);
        for (Section* section : column)
            down->addWidget(section);
        down->addStretch();
        across->addLayout(down);
    }
}

void FormLayout::addBelow(QWidget* widget, DataGrid* grid)
{
    m_down->insertWidget(m_down->count() - 1, widget);
    m_parts.append({.widget = widget, .grid = grid});
}

QHBoxLayout& FormLayout::lineBelow()
{
    auto* holder = new QWidget;
    auto* line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Spacing);
    addBelow(holder);
    return *line;
}

void FormLayout::buttons(std::initializer_list<Button*> buttons)
{
    auto* holder = new QWidget;
    auto* line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(2 * Spacing);
    line->addStretch();
    for (Button* button : buttons)
        line->addWidget(button);
    m_form->addWidget(holder);
    m_parts.append({.widget = holder});
}

int widthOf(const QWidget& box, int characters)
{
    return characters * box.fontMetrics().horizontalAdvance('0') + 14;
}

Caption& addField(QBoxLayout& line, const QString& caption, TextBox& box, int characters)
{
    auto* label = new Caption(caption);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(&box);
    label->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);  // as its caption wraps, no narrower
    line.addWidget(label);
    addBox(line, box, characters, label->spoken());
    return *label;
}

QGroupBox& addGroup(QBoxLayout& line, const QString& name, const QString& heading,
                    std::initializer_list<QAbstractButton*> buttons)
{
    auto* group = new QGroupBox(heading);
    group->setObjectName(name);
    auto* across = new QHBoxLayout(group);
    across->setContentsMargins(8, 2, 8, 2);
    for (QAbstractButton* button : buttons)
        across->addWidget(button);
    line.addWidget(group);
    return *group;
}

void addBox(QBoxLayout& line, TextBox& box, int characters, const QString& spoken)
{
    if (characters > 0) {
        box.setMaximumWidth(widthOf(box, characters));
        box.setMinimumWidth(widthOf(box, characters > LongestFigure ? NarrowestName : characters));
    }
    box.setAccessibleName(spoken);
    line.addWidget(&box, std::max(1, characters));
}

}  // namespace controls
