#include "screens/controls/entry.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScrollArea>
#include <algorithm>
#include <cstdlib>

#include "screens/controls/combo_box.h"
#include "screens/controls/paste.h"
#include "screens/controls/row_sheet.h"
#include "screens/controls/text_box.h"

namespace controls {

namespace {

bool goToRow(QWidget& from, int direction)
{
    const QWidget& form = *from.window();
    const QPoint here = from.mapTo(&form, from.rect().center());
    QWidget* nearest = nullptr;
    int least = 0;
    for (QWidget* box : form.findChildren<QWidget*>()) {
        if (!box->isVisibleTo(&form) || !openForTyping(*box))
            continue;
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

}  // namespace

bool openForTyping(const QWidget& widget)
{
    if (const auto* box = dynamic_cast<const TextBox*>(&widget))
        return !box->isLocked() && box->isEnabled();
    if (const auto* box = dynamic_cast<const ComboBox*>(&widget))
        return !box->isLocked();
    return false;
}

bool handleEntryKey(QWidget& box, QKeyEvent& event)
{
    if (event.matches(QKeySequence::Paste))
        return openForTyping(box) && pasteBlock(box, QGuiApplication::clipboard()->text());
    if (event.matches(QKeySequence::Undo))
        return undoPaste(box);
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
