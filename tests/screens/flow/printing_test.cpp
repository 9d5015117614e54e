#include "screens/flow/printing.h"

#include <QApplication>
#include <QFile>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QtEndian>

#include "support/screen_test.h"
#include "track/frmT1.h"

namespace {

QByteArray unpacked(const QByteArray& stream)
{
    QByteArray sized(4, '\0');
    qToBigEndian<quint32>(static_cast<quint32>(stream.size() * 8), sized.data());
    return qUncompress(sized + stream);
}

/// What is drawn on the pages of a PDF file.
QByteArray drawnOn(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return "no file";
    const QByteArray bytes = file.readAll();
    QByteArray drawn;
    for (qsizetype at = bytes.indexOf("stream\n"); at >= 0; at = bytes.indexOf("stream\n", at + 7)) {
        if (at >= 3 && bytes.mid(at - 3, 3) == "end")
            continue;
        const qsizetype begin = at + 7;
        if (static_cast<unsigned char>(bytes[begin]) != 0x78)  // not packed: no page
            continue;
        const QByteArray content = unpacked(bytes.mid(begin, bytes.indexOf("endstream", begin) - begin));
        if (content.contains(" Tf"))
            drawn += content;
    }
    return drawn;
}

QSizeF paperOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression box("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]");
    const auto match = box.match(QString::fromLatin1(file.readAll()));
    EXPECT_TRUE(match.hasMatch());
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

/// frmT1 with all its rows, printed by its Print button.
class PrintedForm : public ScreenTest {  // slow
protected:
    PrintedForm()
    {
        form.txtNSeg.setText("16");
        for (int i = 0; i < 16; ++i)
            form.txtKmf(i).setText(QString::number(100 + i));
        form.cmdPrint.setEnabled(true);
        sized(flow::OpeningSize);
    }

    static constexpr QSize Low{flow::OpeningSize.width(), 330};

    void sized(QSize size)
    {
        form.resize(size);
        for (int i = 0; i < 3; ++i)
            settle();
    }

    /// More records than a small window has room for, as if from a data file.
    void showTable()
    {
        putRecords("TrGrid", std::vector(17, std::vector<std::string>(13, "123.45")));
        find("TrGrid").show();
    }

    QString print(const QString& name)
    {
        QString path = folder.filePath(name);
        dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, path.toStdString());
        click("cmdPrint");
        return path;
    }

    QScrollArea& area() { return *form.findChild<QScrollArea*>("rows"); }

    QTemporaryDir folder;
    frmT1& form = on<frmT1>();
};

TEST_F(PrintedForm, IsTheWholeFormAlsoWhatASmallWindowHasScrolledAway)
{
    const QByteArray whole = drawnOn(print("whole.pdf"));
    EXPECT_GT(whole.count("Tj") + whole.count("TJ"), 16 * 3) << "number, line and method of each segment at least";
    sized(Low);
    ASSERT_GT(area().verticalScrollBar()->maximum(), 100);
    const QByteArray small = drawnOn(print("small.pdf"));
    EXPECT_EQ(small.count("Tj") + small.count("TJ"), whole.count("Tj") + whole.count("TJ"));
}

TEST_F(PrintedForm, IsTheSameHoweverSmallOrLargeTheWindow)
{
    showTable();
    sized(flow::OpeningSize);
    const QByteArray usual = drawnOn(print("usual.pdf"));
    for (const QSize window : {QSize(900, 434), QSize(flow::OpeningSize.width(), 1002), QSize(1894, 1002)}) {
        sized(window);
        area().horizontalScrollBar()->setValue(area().horizontalScrollBar()->maximum());
        area().verticalScrollBar()->setValue(area().verticalScrollBar()->maximum());
        settle();
        const QPoint scrolled(area().horizontalScrollBar()->value(), area().verticalScrollBar()->value());
        EXPECT_TRUE(drawnOn(print("other.pdf")) == usual)
            << "another sheet from a window " << window.width() << " wide";
        for (int i = 0; i < 3; ++i)
            settle();
        EXPECT_EQ(QPoint(area().horizontalScrollBar()->value(), area().verticalScrollBar()->value()), scrolled);
        EXPECT_EQ(form.size(), window);
    }
}

TEST_F(PrintedForm, HasNoScrollBars)
{
    class BarWatch : public QObject {
    public:
        int painted = 0;

    protected:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            painted += event->type() == QEvent::Paint && qobject_cast<QScrollBar*>(watched);
            return false;
        }
    };
    showTable();
    sized({1000, 330});
    BarWatch bars;
    qApp->installEventFilter(&bars);
    form.grab();
    EXPECT_GE(bars.painted, 2) << "the rows' and the table's on the screen";
    bars.painted = 0;
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, folder.filePath("form.pdf").toStdString());
    form.cmdPrint.click();  // and nothing else: the screen is not painted meanwhile
    EXPECT_EQ(bars.painted, 0);
}

TEST_F(PrintedForm, HasItsHeadingsOnTopHoweverFarItIsScrolled)
{
    sized(Low);
    const QByteArray top = drawnOn(print("top.pdf"));
    area().verticalScrollBar()->setValue(120);
    settle();
    const int pinned = dynamic_cast<controls::RowSheet&>(*area().widget()).pinnedAt();
    EXPECT_EQ(pinned, 120);
    EXPECT_TRUE(drawnOn(print("scrolled.pdf")) == top) << "another sheet";
    EXPECT_EQ(dynamic_cast<controls::RowSheet&>(*area().widget()).pinnedAt(), pinned);
}

TEST_F(PrintedForm, IsBlackOnWhiteWhateverTheTheme)
{
    const QByteArray light = drawnOn(print("light.pdf"));
    const QPalette theme = QApplication::palette();
    QApplication::setPalette(QPalette(Qt::white, QColor(50, 50, 50), QColor(70, 70, 70), QColor(30, 30, 30),
                                      QColor(40, 40, 40), Qt::white, QColor(20, 20, 20)));
    settle();
    const QPalette before = form.palette();
    EXPECT_EQ(before.color(QPalette::Base), QColor(20, 20, 20));
    const QByteArray dark = drawnOn(print("dark.pdf"));
    EXPECT_EQ(form.palette(), before) << "the form on the screen keeps its theme";
    QApplication::setPalette(theme);
    EXPECT_TRUE(dark == light) << "another sheet";
}

TEST_F(PrintedForm, ShowsNothingOfWhatIsSelected)
{
    putRecords("TrGrid", {{"1", "5", "1"}, {"2", "", "2"}});
    auto& grid = dynamic_cast<QTableView&>(find("TrGrid"));
    grid.show();
    grid.selectAll();
    const QString sheet = drawnOn(print("selected.pdf"));
    EXPECT_TRUE(grid.selectionModel()->hasSelection()) << "it stays on the screen";
    static const QRegularExpression colour("([0-9.]+) ([0-9.]+) ([0-9.]+) (?:scn|SCN)");
    int colours = 0;
    for (auto each = colour.globalMatch(sheet); each.hasNext(); ++colours) {
        const QRegularExpressionMatch match = each.next();
        EXPECT_LE(match.captured(3).toDouble(), match.captured(1).toDouble() + 0.05) << match.captured().toStdString();
    }
    EXPECT_GT(colours, 0);
}

TEST_F(PrintedForm, LiesAcrossThePaperWhenItIsWiderThanHigh)
{
    const QSizeF paper = paperOf(print("form.pdf"));
    EXPECT_GT(paper.width(), paper.height());
}

TEST_F(PrintedForm, IsWrittenAsTextNotAsAPictureOfDots)
{
    const QString path = print("form.pdf");
    EXPECT_LT(QFile(path).size(), 400'000);
    EXPECT_GT(drawnOn(path).count("Tf"), 0);
}

class PrintedSheet : public testing::Test {
protected:
    PrintedSheet()
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
    }

    QTemporaryDir folder;
    QString path = folder.filePath("print.pdf");
    QPrinter printer;
    QWidget form;
    QWidget part{&form};
    const flow::SheetFacts facts{};
};

TEST_F(PrintedSheet, IsRepeatedByTheProgramNotByThePrinterToo)
{
    form.resize(400, 200);
    printer.setCopyCount(3);
    flow::printForm(form, {{.widget = &part}}, facts, printer, 3);
    EXPECT_EQ(printer.copyCount(), 1) << "three copies are three pages, not nine";
    EXPECT_EQ(pagesOf(path.toStdString()), 3);
}

TEST_F(PrintedSheet, StandsUprightWhenItIsHigherThanWide)
{
    part.resize(200, 4000);
    flow::printForm(form, {{.widget = &part}}, facts, printer, 1);
    const QSizeF paper = paperOf(path);
    EXPECT_LT(paper.width(), paper.height());
}

TEST_F(PrintedSheet, OfNoCopiesDoesNotEvenStartThePrinter)
{
    flow::printForm(form, {{.widget = &part}}, facts, printer, 0);
    flow::printForm(form, {{.widget = &part}}, facts, printer, -1);
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(PrintedSheet, ThatCannotBeWrittenIsAnError)
{
    for (const QString& lost : {folder.filePath("no-such-folder/print.pdf"), QString("/dev/full")}) {
        QPrinter broken;
        broken.setOutputFormat(QPrinter::PdfFormat);
        broken.setOutputFileName(lost);
        EXPECT_THROW(flow::printForm(form, {{.widget = &part}}, facts, broken, 1), std::runtime_error)
            << lost.toStdString();
    }
}

struct Named {
    const char* name;
    const char* subject;
    const char* caption;
    const char* sheet;
};

class SheetNames : public testing::TestWithParam<Named> {};

TEST_P(SheetNames, AreOnesThatAnyDiskTakes)
{
    EXPECT_EQ(flow::sheetName(GetParam().subject, GetParam().caption).toStdString(), GetParam().sheet);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Subjects, SheetNames, testing::Values(
    //    name          subject              caption                   sheet
    Named{"SrSe",       "1 Sr SE Ambapur",   "Entering Track Data",    "1 Sr SE Ambapur - Entering Track Data"},
    Named{"Division",   "Division X",        "Summary",                "Division X - Summary"},
    Named{"Blanks",     " 1   Ambapur ",     "Data  on Form  ",        "1 Ambapur - Data on Form"},
    Named{"Nothing",    "  ",                "Entering Track Data",    "Entering Track Data"},
    Named{"Points",     "1 Sr.SE Ambapur",   "Data (continued).....",  "1 Sr.SE Ambapur - Data (continued)....."},
    Named{"Slashes",    "1 P.Way/Ambapur\\N", "Track",                 "1 P.Way-Ambapur-N - Track"},
    Named{"Windows",    "1 <A> \"B\": *?|",   "Track",                 "1 -A- -B-- --- - Track"},
    Named{"Control",    "1 A\x01\x7f" "B",    "Track",                 "1 A--B - Track"},
    Named{"Hindi",      "1 अंबापुर",           "Track",                  "1 अंबापुर - Track"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(SheetName, IsNotTooLongForTheDisk)
{
    const QTemporaryDir folder;
    for (const QString& name : {QString(300, QChar(0x0905)), QString("x").repeated(32'000)}) {
        const QString sheet = flow::sheetName(
            "15 " + name, "Calculations  of Mandays required for ' T ' and ' R ' activities of main line");
        QFile file(folder.filePath(sheet + ".pdf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << sheet.toStdString();
        EXPECT_TRUE(sheet.endsWith("activities of main line"));
    }
}

}  // namespace
