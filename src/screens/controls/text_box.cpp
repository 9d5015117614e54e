#include "screens/controls/text_box.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <memory>

#include "figures/numeric_text.h"
#include "figures/picture.h"
#include "screens/controls/entry.h"
#include "screens/controls/paste.h"
#include "screens/controls/tool_tip.h"

namespace controls {

namespace {

// Base, text and placeholder go together: a dark theme must never put its white text on the pale fill.
constexpr QRgb PaleFill = qRgb(255, 224, 192);
constexpr QRgb Black = qRgb(0, 0, 0);
constexpr QRgb Grey = qRgb(96, 96, 96);
constexpr QRgb PureRed = qRgb(255, 0, 0);
constexpr QRgb RedOnLight = qRgb(176, 0, 0);
constexpr QRgb RedOnDark = qRgb(255, 144, 144);
constexpr QRgb Remark = qRgb(192, 0, 32);

// "12" where the picture prints "12."
QString plain(double value)
{
    QString text = QString::fromStdString(figures::picture(value, "#.######"));
    if (text.endsWith('.'))
        text.chop(1);
    return text.isEmpty() ? QString("0") : text;
}

}  // namespace

TextBox::TextBox(const QString& name)
{
    setObjectName(name);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!isModified())
            setCursorPosition(0);
    });
}

void TextBox::setLocked(bool locked)
{
    setReadOnly(locked);
    setFocusPolicy(locked ? Qt::ClickFocus : Qt::StrongFocus);
    paintFill();
    updateRemark();
}

void TextBox::setInk(Ink ink)
{
    m_ink = ink;
    paintFill();
}

QColor TextBox::readableRed() const
{
    const QColor fill = isLocked() ? QColor(PaleFill) : palette().color(QPalette::Base);
    return qGray(fill.rgb()) < 128 ? RedOnDark : RedOnLight;
}

void TextBox::paintFill()
{
    QPalette fill = isLocked() ? lockedFill() : QPalette();
    if (m_ink != Ink::Theme)
        fill.setColor(QPalette::Text, m_ink == Ink::PureRed ? QColor(PureRed) : readableRed());
    setPalette(fill);
}

// The fill may turn dark or light under a readable red: with the theme, on paper, or as the box is unlocked.
void TextBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    const bool fillMayDiffer = event->type() == QEvent::PaletteChange && m_ink == Ink::ReadableRed;
    if (fillMayDiffer && palette().color(QPalette::Text) != readableRed())
        paintFill();
}

void TextBox::setNumeric()
{
    m_numeric = true;
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QLineEdit::textChanged, this, &TextBox::updateRemark);
}

void TextBox::setLimit(int limit)
{
    m_limit = limit;
    setNumeric();
}

QString TextBox::remark() const
{
    const std::string entered = text().toStdString();
    const figures::Reading reading = figures::read(entered);
    if (!m_numeric || isLocked() || reading.kind == figures::TextKind::Blank)
        return {};
    if (m_limit && figures::countUpTo(*m_limit + 1, entered) > *m_limit)
        return QString("The most is %1: more counts as %1.").arg(*m_limit);
    if (reading.kind == figures::TextKind::TooLarge)
        return QString("\"%1\" is too large to compute with.").arg(text().trimmed());
    if (reading.kind == figures::TextKind::NotANumber)
        return QString("\"%1\" is not a number: it counts as %2.").arg(text().trimmed(), plain(reading.value));
    return {};
}

void TextBox::updateRemark()
{
    const QString odd = remark();
    if (odd.isEmpty() && !m_remarked)
        return;
    if (!m_remarked)
        m_ownToolTip = toolTip();
    m_remarked = !odd.isEmpty();
    const QString tip = plainTip(odd);
    setToolTip(m_ownToolTip.isEmpty() || odd.isEmpty() ? m_ownToolTip + tip : tip + "\n" + m_ownToolTip);
    setAccessibleDescription(odd);
    update();
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    if (!handleEntryKey(*this, *event))
        QLineEdit::keyPressEvent(event);
}

void TextBox::inputMethodEvent(QInputMethodEvent* event)
{
    // A read-only QLineEdit takes what an input method sends late.
    if (isLocked())
        event->ignore();
    else
        QLineEdit::inputMethodEvent(event);
}

void TextBox::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (QAction* action : menu->actions()) {
        const QString name = action->text().section('\t', 0, 0);
        if (name == QLineEdit::tr("&Paste")) {
            disconnect(action, nullptr, this, nullptr);
            connect(action, &QAction::triggered, this, [this] {
                if (!pasteBlock(*this, QGuiApplication::clipboard()->text()))
                    paste();
            });
        } else if (name == QLineEdit::tr("&Undo") && canUndoPaste(*this)) {
            disconnect(action, nullptr, this, nullptr);
            connect(action, &QAction::triggered, this, [this] { undoPaste(*this); });
            action->setEnabled(true);
        }
    }
    menu->exec(event->globalPos());
}

void TextBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // By keys, one comes to type a new figure over the old one; by the mouse, to mend a digit.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
        event->reason() == Qt::OtherFocusReason)
        selectAll();
    bringIntoView(*this);
}

void TextBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const bool left = event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason;
    if (left && (m_numeric || !isLocked()))
        setCursorPosition(0);
}

void TextBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (!m_remarked)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Remark));
    const int corner = height() / 3;
    painter.drawPolygon(QPolygon({{1, 1}, {1 + corner, 1}, {1, 1 + corner}}));
}

QPalette lockedFill()
{
    QPalette fill;
    fill.setColor(QPalette::Base, PaleFill);
    fill.setColor(QPalette::Text, Black);
    fill.setColor(QPalette::PlaceholderText, Grey);
    return fill;
}

double valueOf(const TextBox& box)
{
    return figures::valueOf(box.text().toStdString());
}

int countOf(TextBox& box, int limit)
{
    const double count = figures::countUpTo(limit + 1, box.text().toStdString());
    if (count > limit) {
        rewrite(box, QString::number(limit));
        return limit;
    }
    return static_cast<int>(std::max(count, 0.0));
}

void rewrite(TextBox& box, const QString& text)
{
    const int cursor = box.cursorPosition();
    box.setText(text);
    box.setCursorPosition(cursor);
}

void setText(TextBox& box, const std::string& text)
{
    box.setText(QString::fromStdString(text));
}

}  // namespace controls
