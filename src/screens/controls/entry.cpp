#include "screens/controls/entry.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "screens/controls/combo_box.h"
#include "screens/controls/row_sheet.h"
#include "screens/controls/text_box.h"

namespace controls {

namespace {

bool openForTyping(const QWidget& widget)
{
    if (const auto* box = dynamic_cast<const TextBox*>(&widget))
        return !box->isLocked() && box->isEnabled();
    if (const auto* box = dynamic_cast<const ComboBox*>(&widget))
        return !box->isLocked();
    return false;
}

// Of the boxes that `inside` shows, those that are `wanted`.
template <class Wanted>
std::vector<QWidget*> boxesOf(const QWidget& inside, Qt::FindChildOptions depth, Wanted wanted)
{
    std::vector<QWidget*> boxes;
    for (QWidget* child : inside.findChildren<QWidget*>(QString(), depth))
        if (child->isVisibleTo(&inside) && wanted(*child))
            boxes.push_back(child);
    return boxes;
}

// A computed box is no column of the user's sheet. A choice that is forced in this row is one all the same, or the
// cells behind it would go astray.
bool takesCell(const QWidget& widget)
{
    return openForTyping(widget) || dynamic_cast<const ComboBox*>(&widget);
}

bool goToRow(QWidget& from, int direction)
{
    const QWidget& form = *from.window();
    const QPoint here = from.mapTo(&form, from.rect().center());
    QWidget* nearest = nullptr;
    int least = 0;
    for (QWidget* box : boxesOf(form, Qt::FindChildrenRecursively, openForTyping)) {
        const QPoint there = box->mapTo(&form, box->rect().center());
        const int down = (there.y() - here.y()) * direction;
        if (down < from.height() / 2)
            continue;
        const int distance = 4 * down + std::abs(there.x() - here.x());
        if (!nearest || distance < least) {
            nearest = box;
            least = distance;
        }
    }
    if (nearest)
        nearest->setFocus(Qt::TabFocusReason);
    return true;
}

// An ordinary paste, at the cursor.
void insertInto(QWidget& widget, const QString& text)
{
    if (auto* box = dynamic_cast<TextBox*>(&widget))
        box->insert(text);
    else if (auto* combo = dynamic_cast<ComboBox*>(&widget))
        combo->lineEdit()->insert(text);
}

void typeInto(QWidget& widget, const QString& text)
{
    if (!openForTyping(widget))
        return;
    if (auto* box = dynamic_cast<TextBox*>(&widget)) {
        box->setText(text);
        emit box->textEdited(text);  // a pasted figure is the user's as a typed one is
    } else if (auto* combo = dynamic_cast<ComboBox*>(&widget)) {
        combo->setText(text);
    }
}

}  // namespace

bool handleEntryKey(QWidget& box, QKeyEvent& event)
{
    if (event.matches(QKeySequence::Paste))
        return openForTyping(box) && pasteBlock(box, QGuiApplication::clipboard()->text());
    if (event.modifiers() == Qt::AltModifier && !event.text().isEmpty()) {
        event.ignore();  // the mnemonic of a button that is closed now: no letter for the box
        return true;
    }
    if (event.modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(&box, &tab);
        return true;
    }
    case Qt::Key_Up:
        return goToRow(box, -1);
    case Qt::Key_Down:
        return goToRow(box, 1);
    default:
        return false;
    }
}

bool pasteBlock(QWidget& first, const QString& block)
{
    QString cells = block;
    cells.replace("\r\n", "\n").replace('\r', '\n');
    if (cells.endsWith('\n'))
        cells.chop(1);  // spreadsheets end the last row too
    if (!cells.contains('\t') && !cells.contains('\n')) {
        if (cells == block)
            return false;
        insertInto(first, cells);
        return true;
    }

    // All positions first: a pasted count shows or hides rows while the block is on its way.
    std::vector<QWidget*> boxes = boxesOf(*first.parentWidget(), Qt::FindDirectChildrenOnly, takesCell);
    std::sort(boxes.begin(), boxes.end(), [](const QWidget* a, const QWidget* b) {
        return std::pair(a->geometry().center().y(), a->x()) < std::pair(b->geometry().center().y(), b->x());
    });
    std::vector<std::vector<QWidget*>> rows;
    for (QWidget* box : boxes) {
        if (box->geometry().bottom() < first.y() || box->geometry().right() < first.x())
            continue;
        if (rows.empty() || rows.back().front()->geometry().center().y() != box->geometry().center().y())
            rows.emplace_back();
        rows.back().push_back(box);
    }

    const QStringList lines = cells.split('\n');
    for (std::size_t row = 0; row < rows.size() && row < static_cast<std::size_t>(lines.size()); ++row) {
        const QStringList texts = lines[static_cast<int>(row)].split('\t');
        for (std::size_t column = 0; column < rows[row].size() && column < static_cast<std::size_t>(texts.size());
             ++column)
            typeInto(*rows[row][column], texts[static_cast<int>(column)]);
    }
    return true;
}

void bringIntoView(QWidget& box)
{
    int pinned = 0;
    for (QWidget* above = box.parentWidget(); above; above = above->parentWidget()) {
        if (const auto* sheet = dynamic_cast<const RowSheet*>(above))
            pinned = sheet->headingHeight();
        if (auto* area = qobject_cast<QScrollArea*>(above)) {
            // By its middle: for a box to type in the area would look at the cursor alone.
            const QPoint middle = box.mapTo(area->widget(), box.rect().center());
            const QSize room = area->viewport()->size() / 2;
            area->ensureVisible(middle.x(), middle.y(), std::min(box.width(), room.width()),
                                std::min(pinned + box.height(), room.height()));
            pinned = 0;  // the headings are the inner area's; the one around it may scroll as a whole
        }
    }
}

}  // namespace controls
