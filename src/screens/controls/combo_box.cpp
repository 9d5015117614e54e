#include "screens/controls/combo_box.h"

#include <QAccessibleWidget>
#include <QCompleter>
#include <QFocusEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include "screens/controls/entry.h"
#include "screens/controls/text_box.h"

namespace controls {

namespace {

// On Linux, Qt reports a combo box's current text as its accessible name; report it as the value.
class SpokenComboBox : public QAccessibleWidget {
public:
    explicit SpokenComboBox(ComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox) {}

    QString text(QAccessible::Text text) const override
    {
        return text == QAccessible::Value ? static_cast<ComboBox*>(widget())->text() : QAccessibleWidget::text(text);
    }
};

QAccessibleInterface* speak(const QString&, QObject* object)
{
    auto* box = dynamic_cast<ComboBox*>(object);
    return box ? new SpokenComboBox(*box) : nullptr;
}

}  // namespace

ComboBox::ComboBox(const QString& name)
{
    [[maybe_unused]] static const bool spoken = (QAccessible::installFactory(speak), true);
    setObjectName(name);
    // A completer would turn "Machine packed" into the list's "Machine Packed". Qt creates one for every line edit that
    // has none, which costs more than the line edit itself.
    static QCompleter none;
    auto* line = new QLineEdit;
    line->setCompleter(&none);
    setLineEdit(line);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
}

void ComboBox::setLocked(bool locked)
{
    setEnabled(!locked);
    setPalette(locked ? lockedFill() : QPalette());
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
