#include "screens/controls/paste.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QStringList>
#include <QToolTip>
#include <algorithm>
#include <utility>
#include <vector>

#include "screens/controls/combo_box.h"
#include "screens/controls/entry.h"
#include "screens/controls/text_box.h"

namespace controls {

namespace {

constexpr int NoticeMargin = 4;  // between its text and its frame [px]
constexpr int NoticeGap = 2;     // between it and the row [px]

struct Change {
    QPointer<QWidget> box;
    QString cell;
    QString before;
    QString after;  // not always the cell: a count is cut to its limit
};
std::vector<Change> lastPaste;

QLineEdit* lineOf(QWidget& widget)
{
    auto* combo = dynamic_cast<ComboBox*>(&widget);
    return combo ? combo->lineEdit() : dynamic_cast<TextBox*>(&widget);
}

// Computed boxes take no cell of the pasted block. A locked combo box does, so that later cells stay aligned.
bool takesCell(const QWidget& widget)
{
    return openForTyping(widget) || dynamic_cast<const ComboBox*>(&widget);
}

void typeInto(QWidget& widget, const QString& text)
{
    if (!openForTyping(widget))
        return;
    if (auto* combo = dynamic_cast<ComboBox*>(&widget)) {
        combo->setText(text);
        return;
    }
    QLineEdit* line = lineOf(widget);
    line->setText(text);
    emit line->textEdited(text);  // a pasted figure is the user's as a typed one is
}

// The boxes that take cells, right of `first` and below, in rows as the screen shows them.
std::vector<std::vector<QWidget*>> rowsFrom(const QWidget& first)
{
    std::vector<QWidget*> boxes;
    for (QWidget* box : first.parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (box->isVisibleTo(first.parentWidget()) && takesCell(*box))
            boxes.push_back(box);
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
    return rows;
}

// What a paste left out, under the last row that it filled. It goes as soon as a box of the block changes, the user
// goes on to something that is no box, or clicks it. As long as it stands it is the description of the box pasted into:
// screen readers tell a description that changes under the focus.
class Notice : public QLabel {
public:
    Notice(const QString& text, QWidget& first, const QWidget& last) : QLabel(text, first.window()), m_first(&first)
    {
        setObjectName("pasteNotice");
        setTextFormat(Qt::PlainText);
        setPalette(QToolTip::palette());
        setBackgroundRole(QPalette::ToolTipBase);
        setForegroundRole(QPalette::ToolTipText);
        setAutoFillBackground(true);
        setFrameShape(QFrame::Box);
        setMargin(NoticeMargin);
        adjustSize();

        const QWidget& form = *first.window();
        const QWidget& sheet = *first.parentWidget();
        const QPoint under = last.mapTo(&form, QPoint(0, last.height()));
        const int seen = sheet.mapTo(&form, sheet.visibleRegion().boundingRect().bottomLeft()).y();
        move(std::clamp(under.x(), 0, std::max(0, form.width() - width())), std::min(under.y(), seen) + NoticeGap);
        show();
        raise();

        first.setAccessibleDescription((remarkOn(first) + " " + text).trimmed());
        connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) {
            if (now && !openForTyping(*now))
                withdraw();
        });
        for (const Change& change : lastPaste)
            connect(lineOf(*change.box), &QLineEdit::textChanged, this, &Notice::withdraw);
    }

    void withdraw()
    {
        hide();
        deleteLater();
        if (m_first)
            m_first->setAccessibleDescription(remarkOn(*m_first));
    }

protected:
    void mousePressEvent(QMouseEvent*) override { withdraw(); }

private:
    static QString remarkOn(const QWidget& widget)
    {
        const auto* box = dynamic_cast<const TextBox*>(&widget);
        return box ? box->remark() : QString();
    }

    QPointer<QWidget> m_first;
};

void tellLeftOut(QWidget& first, const std::vector<std::vector<QWidget*>>& rows, QStringList lines)
{
    static QPointer<Notice> notice;
    if (notice)
        notice->withdraw();
    while (!lines.isEmpty() && lines.back().trimmed().isEmpty())
        lines.pop_back();  // whole columns are copied with all their empty rows
    const auto shown = static_cast<qsizetype>(rows.size());
    if (lines.size() <= shown)
        return;
    const QString text("Pasted: %1 of %2 rows. Left out: %3, because no more rows are shown. Ctrl+Z undoes the paste.");
    notice = new Notice(text.arg(shown).arg(lines.size()).arg(lines.size() - shown), first, *rows.back().front());
}

}  // namespace

bool pasteBlock(QWidget& first, const QString& block)
{
    QString cells = block;
    cells.replace("\r\n", "\n").replace('\r', '\n');
    if (cells.endsWith('\n'))
        cells.chop(1);  // spreadsheets end the last row too
    if (!cells.contains('\t') && !cells.contains('\n')) {
        if (cells == block)
            return false;
        lineOf(first)->insert(cells);
        return true;
    }

    // All boxes first: a pasted count shows or hides rows while the block is on its way.
    const std::vector<std::vector<QWidget*>> rows = rowsFrom(first);
    const QStringList lines = cells.split('\n');
    std::vector<Change> changes;
    for (std::size_t row = 0; row < rows.size() && row < static_cast<std::size_t>(lines.size()); ++row) {
        const QStringList texts = lines[static_cast<int>(row)].split('\t');
        for (std::size_t column = 0; column < rows[row].size() && column < static_cast<std::size_t>(texts.size());
             ++column)
            if (QWidget* box = rows[row][column]; openForTyping(*box))
                changes.push_back({box, texts[static_cast<int>(column)], lineOf(*box)->text(), {}});
    }
    for (const Change& change : changes)
        typeInto(*change.box, change.cell);
    for (Change& change : changes)
        change.after = lineOf(*change.box)->text();
    lastPaste = std::move(changes);
    tellLeftOut(first, rows, lines);
    return true;
}

bool canUndoPaste(const QWidget& box)
{
    const auto asPasted = [](const Change& change) {
        return change.box && openForTyping(*change.box) && lineOf(*change.box)->text() == change.after;
    };
    return std::any_of(lastPaste.begin(), lastPaste.end(), [&](const Change& change) { return change.box == &box; }) &&
           std::all_of(lastPaste.begin(), lastPaste.end(), asPasted);
}

bool undoPaste(const QWidget& box)
{
    if (!canUndoPaste(box))
        return false;
    const std::vector<Change> changes = std::exchange(lastPaste, {});
    for (auto change = changes.rbegin(); change != changes.rend(); ++change)
        typeInto(*change->box, change->before);
    return true;
}

}  // namespace controls
