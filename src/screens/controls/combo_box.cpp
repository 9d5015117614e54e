#include "screens/controls/combo_box.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include "screens/controls/entry.h"

namespace controls {

ComboBox::ComboBox(const QString& name)
{
    setObjectName(name);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);  // it would turn "Machine packed" into the list's "Machine Packed"
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void ComboBox::setText(const QString& text)
{
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEditText(text);
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
    if (!handleEntryKey(*this, *event))
        QComboBox::keyPressEvent(event);
}

void ComboBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    bringIntoView(*this);
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

}  // namespace controls
