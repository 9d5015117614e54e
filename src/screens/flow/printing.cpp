#include "screens/flow/printing.h"

#include <QFile>
#include <QLayout>
#include <QPainter>
#include <QPicture>
#include <QPrinter>
#include <QWidget>
#include <algorithm>
#include <stdexcept>

#include "screens/controls/data_grid.h"
#include "screens/controls/row_sheet.h"

namespace flow {

namespace {

// Fine enough for hairlines; widgets painted at a printer's full resolution cost ten times the time and bytes.
constexpr int Resolution = 300;  // [dots per inch]
constexpr int Gap = 6;           // between the parts [px]
constexpr double MarginMm = 10.0;
constexpr double LargestScale = 1.0;  // a small form is not blown up beyond its size on the screen

// Black on white for as long as the sheet is painted.
class PaperPalette {
public:
    explicit PaperPalette(QWidget& form)
        : m_form(form), m_own(form.palette()), m_wasSet(form.testAttribute(Qt::WA_SetPalette))
    {
        QPalette paper(Qt::black, Qt::white, Qt::white, QColor(160, 160, 160), QColor(200, 200, 200), Qt::black,
                       Qt::white);
        paper.setColor(QPalette::PlaceholderText, Qt::darkGray);
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

// Rows that the user has scrolled down stand under their headings on paper, not around them.
class HeadingsOnTop {
public:
    explicit HeadingsOnTop(const QList<QWidget*>& parts)
    {
        for (QWidget* part : parts)
            if (auto* rows = dynamic_cast<controls::RowSheet*>(part)) {
                m_pinned.append({rows, rows->pinnedAt()});
                rows->pinHeadings(0);
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

// The table of the data file is on the sheet as far as a screen takes it over, however few of its records are in view.
class WholeTables {
public:
    explicit WholeTables(const QList<QWidget*>& parts)
    {
        for (QWidget* part : parts)
            for (auto* view : part->findChildren<QTableView*>()) {
                const auto* grid = dynamic_cast<const controls::DataGrid*>(view);
                const int hidden = grid && !grid->isHidden() ? grid->wholeHeight() - grid->height() : 0;
                if (hidden <= 0)
                    continue;
                m_stretched.append({part, part->height()});
                resize(*part, part->height() + hidden);
            }
    }
    ~WholeTables()
    {
        for (const auto& [part, height] : m_stretched)
            resize(*part, height);
    }
    WholeTables(const WholeTables&) = delete;
    WholeTables& operator=(const WholeTables&) = delete;

private:
    static void resize(QWidget& part, int height)
    {
        part.resize(part.width(), height);
        part.layout()->activate();
    }

    QList<QPair<QWidget*, int>> m_stretched;
};

// A content that scrolls may be larger than its window; one that does not is as wide as the form.
QSize sizeOf(const QWidget& part)
{
    return part.size().expandedTo(part.minimumSizeHint());
}

// A widget told to paint on a printer paints a picture of dots; by way of a recording its text stays text.
QPicture drawn(QWidget& form, const QList<QWidget*>& parts)
{
    const PaperPalette paper(form);
    const HeadingsOnTop onTop(parts);
    QPicture sheet;
    QPainter painter(&sheet);
    for (QWidget* part : parts) {
        part->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
        painter.translate(0, sizeOf(*part).height() + Gap);
    }
    return sheet;
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

void printForm(QWidget& form, const QList<QWidget*>& parts, QPrinter& printer, int copies)
{
    if (copies <= 0)
        return;
    const WholeTables tables(parts);
    QSize whole(0, -Gap);
    for (const QWidget* part : parts)
        whole = QSize(std::max(whole.width(), sizeOf(*part).width()), whole.height() + sizeOf(*part).height() + Gap);

    printer.setCopyCount(1);  // the sheet is repeated here
    printer.setResolution(Resolution);
    printer.setDocName(form.windowTitle());
    printer.setPageOrientation(whole.width() > whole.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setPageMargins(QMarginsF(MarginMm, MarginMm, MarginMm, MarginMm), QPageLayout::Millimeter);

    const QPicture sheet = drawn(form, parts);
    QPainter painter;
    if (!painter.begin(&printer))
        throw std::runtime_error("the printer did not start");
    const double natural = Resolution / static_cast<double>(form.logicalDpiX());
    const double scale =
        std::min({painter.viewport().width() / static_cast<double>(whole.width()),
                  painter.viewport().height() / static_cast<double>(whole.height()), natural * LargestScale});
    for (int copy = 0; copy < copies; ++copy) {
        if (copy > 0 && !printer.newPage())
            throw std::runtime_error("the printer took no further page");
        painter.save();
        painter.scale(scale, scale);  // a recording is played at the size it had: undo that
        painter.scale(sheet.logicalDpiX() / static_cast<double>(painter.device()->logicalDpiX()),
                      sheet.logicalDpiY() / static_cast<double>(painter.device()->logicalDpiY()));
        painter.drawPicture(0, 0, sheet);
        painter.restore();
    }
    if (!painter.end())
        throw std::runtime_error("the printer did not finish");
    checkWritten(printer);
}

}  // namespace flow
