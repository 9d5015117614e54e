#include "screens/flow/printing.h"

#include <QFileInfo>
#include <QLocale>
#include <QPainter>
#include <QPicture>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QWidget>
#include <algorithm>
#include <numeric>
#include <stdexcept>

#include "screens/controls/data_grid.h"
#include "screens/controls/row_sheet.h"

namespace flow {

namespace {

// Fine enough for hairlines; widgets painted at a printer's full resolution cost ten times the time and bytes.
constexpr int Resolution = 300;   // [dots per inch]
constexpr int Gap = 6;            // between the parts [px]
constexpr int UsualWidth = 1320;  // of a form, at 96 dots per inch [px]
constexpr double MarginMm = 10.0;
constexpr double MarginPoints = 7.5;  // size of the line in the bottom margin
constexpr int LongestSubject = 50;    // of a sheet's name [characters]

// Black on white for as long as the sheet is painted.
class PaperPalette {
public:
    explicit PaperPalette(QWidget& form)
        : m_form(form), m_own(form.palette()), m_wasSet(form.testAttribute(Qt::WA_SetPalette))
    {
        QPalette paper(Qt::black, Qt::white, Qt::white, QColor(160, 160, 160), QColor(200, 200, 200), Qt::black,
                       Qt::white);
        paper.setColor(QPalette::PlaceholderText, Qt::darkGray);
        paper.setColor(QPalette::Highlight, Qt::white);  // what is selected is of no concern on paper
        paper.setColor(QPalette::HighlightedText, Qt::black);
        form.setPalette(paper);
    }
    ~PaperPalette() { m_form.setPalette(m_wasSet ? m_own : QPalette()); }
    PaperPalette(const PaperPalette&) = delete;
    PaperPalette& operator=(const PaperPalette&) = delete;

private:
    QWidget& m_form;
    QPalette m_own;
    bool m_wasSet;
};

using Part = controls::FormLayout::Part;

// Rows that the user has scrolled down stand under their headings on paper, not around them.
class HeadingsOnTop {
public:
    explicit HeadingsOnTop(const QList<Part>& parts)
    {
        for (const Part& part : parts)
            if (part.rows) {
                m_pinned.append({part.rows, part.rows->pinnedAt()});
                part.rows->pinHeadings(0);
            }
    }
    ~HeadingsOnTop()
    {
        for (const auto& [rows, scrolled] : m_pinned)
            rows->pinHeadings(scrolled);
    }
    HeadingsOnTop(const HeadingsOnTop&) = delete;
    HeadingsOnTop& operator=(const HeadingsOnTop&) = delete;

private:
    QList<QPair<controls::RowSheet*, int>> m_pinned;
};

// On paper a form is as wide as all of it needs and its parts as high as that asks for, however small or large its
// window: the same sheet on every desktop. The table of the data file is on it as far as a screen takes it over.
class LaidOutForPaper {
public:
    LaidOutForPaper(const QWidget& form, const QList<Part>& parts) : m_width(UsualWidth * form.logicalDpiX() / 96)
    {
        for (const Part& part : parts) {
            m_before.append({part, part.widget->size(), {}});
            m_width = std::max(m_width, part.widget->minimumSizeHint().width());
            if (showsGrid(part))
                m_width = std::max(m_width, part.grid->wholeSize().width());
        }
        for (Before& before : m_before)
            stretch(before);
    }
    ~LaidOutForPaper()
    {
        for (const auto& [part, size, scrolled] : m_before) {
            part.widget->resize(size);
            if (showsGrid(part))
                setBars(*part.grid, Qt::ScrollBarAsNeeded);
            if (!part.area)
                continue;
            part.area->setWidgetResizable(true);
            part.area->horizontalScrollBar()->setValue(scrolled.x());
            part.area->verticalScrollBar()->setValue(scrolled.y());
        }
    }
    LaidOutForPaper(const LaidOutForPaper&) = delete;
    LaidOutForPaper& operator=(const LaidOutForPaper&) = delete;

    int width() const { return m_width; }

private:
    struct Before {
        Part part;
        QSize size;
        QPoint scrolled;
    };

    static bool showsGrid(const Part& part) { return part.grid && !part.grid->isHidden(); }

    static void setBars(controls::DataGrid& grid, Qt::ScrollBarPolicy policy)
    {
        grid.setHorizontalScrollBarPolicy(policy);
        grid.setVerticalScrollBarPolicy(policy);
    }

    void stretch(Before& before)
    {
        QWidget& widget = *before.part.widget;
        if (QScrollArea* area = before.part.area) {
            before.scrolled = {area->horizontalScrollBar()->value(), area->verticalScrollBar()->value()};
            area->setWidgetResizable(false);
        }
        widget.resize(m_width, widget.height());  // headings wrap anew: the height follows the width
        int height = widget.hasHeightForWidth() ? widget.heightForWidth(m_width) : widget.sizeHint().height();
        if (showsGrid(before.part)) {
            controls::DataGrid& grid = *before.part.grid;
            height += grid.wholeSize().height() - grid.sizeHint().height();
            setBars(grid, Qt::ScrollBarAlwaysOff);
        }
        if (height > 0)
            widget.resize(m_width, height);
    }

    int m_width;
    QList<Before> m_before;
};

// Painted on a printer, a widget becomes a bitmap; by way of a recording its text stays text.
QPicture drawn(QWidget& form, const QList<Part>& parts)
{
    const PaperPalette paper(form);
    const HeadingsOnTop onTop(parts);
    QPicture sheet;
    QPainter painter(&sheet);
    for (const Part& part : parts) {
        part.widget->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
        painter.translate(0, part.widget->height() + Gap);
    }
    return sheet;
}

struct Fact {
    QString label;
    QString text;
};

// Elides the facts' texts in the middle, the longest first, until all of them have room side by side, `gap` apart.
QStringList elided(const QList<Fact>& facts, const QFontMetrics& metrics, int gap, int room)
{
    QList<int> widths;
    for (const Fact& fact : facts)
        widths += metrics.horizontalAdvance(fact.label + fact.text) + gap;
    int longest = room;
    const auto sum = [&] {
        return std::accumulate(widths.begin(), widths.end(), -gap,
                               [&](int before, int width) { return before + std::min(width, longest + gap); });
    };
    while (longest > 0 && sum() > room)
        --longest;
    QStringList texts;
    for (const auto& [label, text] : facts)
        texts += label + metrics.elidedText(text, Qt::ElideMiddle, longest - metrics.horizontalAdvance(label));
    return texts;
}

// The line in the page's bottom margin. Each text has its label: a name alone may be a railway's or a division's.
void paintMargin(QPainter& painter, const SheetFacts& sheet, int page, int pages)
{
    QList<Fact> facts{{"Railway: ", sheet.railway.simplified()},
                      {"Division: ", sheet.division.simplified()},
                      {"Sr SE: ", sheet.srSe.simplified()},
                      {"Data file: ", QFileInfo(sheet.dataFile).fileName().simplified()}};
    facts.removeIf([](const Fact& fact) { return fact.text.isEmpty(); });
    const QString date = QLocale::system().toString(sheet.printedAt.date(), QLocale::ShortFormat);
    const QString time = sheet.printedAt.toString("HH:mm");
    const QString last = QString("%1 %2   page %3 of %4").arg(date, time).arg(page).arg(pages);

    painter.save();
    QFont small = painter.font();
    small.setPointSizeF(MarginPoints);
    painter.setFont(small);
    const QFontMetrics metrics = painter.fontMetrics();
    const int gap = 3 * metrics.averageCharWidth();
    const QRect form = painter.viewport();
    const QRect line(form.left(), form.bottom() + metrics.descent(), form.width(), metrics.height());
    painter.drawText(line, Qt::AlignRight, last);
    int x = line.left();
    for (const QString& text : elided(facts, metrics, gap, line.width() - metrics.horizontalAdvance(last) - gap)) {
        painter.drawText(QPoint(x, line.top() + metrics.ascent()), text);
        x += metrics.horizontalAdvance(text) + gap;
    }
    painter.restore();
}

void checkWritten(const QPrinter& printer)
{
    if (printer.printerState() == QPrinter::Error)
        throw std::runtime_error("the printer gave out");
    if (printer.outputFileName().isEmpty())
        return;
    // A full disk shows only in what has reached the file.
    QFile file(printer.outputFileName());
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(0, file.size() - 16)) ||
        !file.readAll().contains("%%EOF"))
        throw std::runtime_error("the print-out is not whole");
}

}  // namespace

QString sheetName(const QString& subject, const QString& caption)
{
    const QString first = subject.simplified().left(LongestSubject).trimmed();
    QString name = (first.isEmpty() ? "" : first + " - ") + caption.simplified();
    static const QRegularExpression refused("[/\\\\:*?\"<>|\\x00-\\x1f\\x7f]");
    return name.replace(refused, "-");
}

void printForm(QWidget& form, const QList<Part>& parts, const SheetFacts& facts, QPrinter& printer, int copies)
{
    if (copies <= 0)
        return;
    const LaidOutForPaper paper(form, parts);
    QSize whole(paper.width(), -Gap);
    for (const Part& part : parts)
        whole.rheight() += part.widget->height() + Gap;

    printer.setCopyCount(1);  // the sheet is repeated here
    printer.setResolution(Resolution);
    printer.setPageOrientation(whole.width() > whole.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setPageMargins(QMarginsF(MarginMm, MarginMm, MarginMm, MarginMm), QPageLayout::Millimeter);

    const QPicture sheet = drawn(form, parts);
    QPainter painter;
    if (!painter.begin(&printer))
        throw std::runtime_error("the printer did not start");
    // A small form is not blown up beyond its size on the screen.
    const double natural = Resolution / static_cast<double>(form.logicalDpiX());
    const double scale = std::min({painter.viewport().width() / static_cast<double>(whole.width()),
                                   painter.viewport().height() / static_cast<double>(whole.height()), natural});
    for (int copy = 0; copy < copies; ++copy) {
        if (copy > 0 && !printer.newPage())
            throw std::runtime_error("the printer took no further page");
        painter.save();
        painter.scale(scale, scale);  // a recording is played at the size it had: undo that
        painter.scale(sheet.logicalDpiX() / static_cast<double>(painter.device()->logicalDpiX()),
                      sheet.logicalDpiY() / static_cast<double>(painter.device()->logicalDpiY()));
        painter.drawPicture(0, 0, sheet);
        painter.restore();
        paintMargin(painter, facts, 1, 1);  // of each copy: it is complete in itself
    }
    if (!painter.end())
        throw std::runtime_error("the printer did not finish");
    checkWritten(printer);
}

}  // namespace flow
