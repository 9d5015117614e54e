// The printed sheets of all ten screens.

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTest>
#include <algorithm>

#include "screens/flow/printing.h"
#include "screens/usability/ten_screens.h"

namespace {

class Sheets : public TenScreens {  // slow
protected:
    Sheets() { workSample(); }
    ~Sheets() override { QApplication::setPalette(m_theme); }

    QString print(const flow::Screen& form)
    {
        QString path = folder.filePath(form.objectName() + ".pdf");
        dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, path.toStdString());
        // The start screen's is open, a worked screen's too.
        QTest::keyClick(const_cast<controls::Button*>(&form.cmdPrint), Qt::Key_Return);
        settle();
        EXPECT_EQ(dialogs.open(), 0U) << form.objectName().toStdString() << " did not print";
        return path;
    }

    /// A tool of the system reads the sheet as anyone's viewer does; "" where it is not installed.
    static QByteArray read(const QString& tool, const QStringList& arguments)
    {
        QProcess process;
        process.start(tool, arguments);
        return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
    }

    static QByteArray textOn(const QString& pdf) { return read("pdftotext", {"-layout", pdf, "-"}); }

    struct Word {
        QString text;
        QRectF box;  ///< [points]
    };
    struct Page {
        QSizeF size;  ///< [points]
        std::vector<Word> margin;
    };

    /// The first page with the words in its bottom margin, from left to right; "" where the tool is not installed.
    static Page marginOf(const QString& pdf)
    {
        const QString text = QString::fromUtf8(read("pdftotext", {"-bbox", "-l", "1", pdf, "-"}));
        static const QRegularExpression size("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\"");
        static const QRegularExpression word("<word xMin=\"(\\S+)\" yMin=\"(\\S+)\" xMax=\"(\\S+)\" "
                                             "yMax=\"(\\S+)\">([^<]*)</word>");
        const auto number = [](const QRegularExpressionMatch& match, int i) { return match.captured(i).toDouble(); };
        const QRegularExpressionMatch whole = size.match(text);
        Page page{{number(whole, 1), number(whole, 2)}, {}};
        for (auto each = word.globalMatch(text); each.hasNext();) {
            const QRegularExpressionMatch match = each.next();
            const QPointF topLeft(number(match, 1), number(match, 2));
            if (topLeft.y() > page.size.height() - TenMm)
                page.margin.push_back(
                    {match.captured(5).replace("ﬁ", "fi"), {topLeft, QPointF(number(match, 3), number(match, 4))}});
        }
        std::sort(page.margin.begin(), page.margin.end(),
                  [](const Word& a, const Word& b) { return a.box.left() < b.box.left(); });
        return page;
    }

    static std::string wordsOf(const Page& page)
    {
        QStringList words;
        for (const Word& word : page.margin)
            words += word.text;
        return words.join(' ').toStdString();
    }

    /// Between the form and what printers leave blank, in its place from side to side, no word over another.
    static void expectInPlace(const Page& page)
    {
        double free = TenMm - 1;
        for (const Word& word : page.margin) {
            EXPECT_GE(word.box.left(), free) << word.text.toStdString();
            EXPECT_LT(word.box.bottom(), page.size.height() - TenMm / 2) << word.text.toStdString();
            EXPECT_GE(word.box.height(), 7) << "too small to read";
            free = word.box.right();
        }
        EXPECT_LE(free, page.size.width() - TenMm + 1);
    }

    static constexpr double TenMm = 10 / 25.4 * 72;  // [points]

    /// Of the rows; the start screen has none.
    static QScrollBar* scrollBarOf(const QWidget& form)
    {
        const auto* area = form.findChild<QScrollArea*>("rows");
        return area ? area->verticalScrollBar() : nullptr;
    }

    static QByteArray pictureOf(const QString& pdf) { return read("pdftoppm", {"-r", "60", "-png", pdf}); }

    static void makeDark()
    {
        QApplication::setPalette(QPalette(Qt::white, QColor(50, 50, 50), QColor(70, 70, 70), QColor(30, 30, 30),
                                          QColor(40, 40, 40), Qt::white, QColor(20, 20, 20)));
        settle();
    }

    QTemporaryDir folder;

private:
    QPalette m_theme = QApplication::palette();
};

TEST_F(Sheets, EveryScreenIsOneSheetOfAtMostAMegabyteInLessThanABlink)
{
    for (const Step& step : steps) {
        SCOPED_TRACE(step.form->objectName().toStdString());
        QElapsedTimer time;
        time.start();
        const QString pdf = print(*step.form);
        EXPECT_EQ(pagesOf(pdf.toStdString()), 1);
        EXPECT_GT(QFileInfo(pdf).size(), 5'000);
        EXPECT_LE(QFileInfo(pdf).size(), 1'000'000);
        RecordProperty(step.form->objectName().toStdString() + "_ms", static_cast<int>(time.elapsed()));
        RecordProperty(step.form->objectName().toStdString() + "_bytes", static_cast<int>(QFileInfo(pdf).size()));
    }
}

TEST_F(Sheets, TheirTextCanBeSelected)
{
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    for (const Step& step : steps) {
        SCOPED_TRACE(step.form->objectName().toStdString());
        const QByteArray text = textOn(print(*step.form)).simplified();
        EXPECT_TRUE(text.contains(step.form->windowTitle().simplified().left(20).toUtf8())) << text.constData();
        int figures = 0;
        for (const auto* box : step.form->findChildren<QLineEdit*>()) {
            const QByteArray shown = box->text().simplified().toUtf8();
            if (!box->isVisible() || shown.isEmpty() || shown == "." || box->objectName() == "txtT1(1)")
                continue;
            ++figures;
            EXPECT_TRUE(text.contains(shown)) << box->objectName().toStdString() << ": " << shown.constData();
        }
        EXPECT_GT(figures, 4);
    }
}

TEST_F(Sheets, TheyAreBlackOnWhiteWhateverTheTheme)
{
    if (QStandardPaths::findExecutable("pdftoppm").isEmpty())
        GTEST_SKIP() << "pdftoppm (poppler-utils) is not installed";
    makeDark();
    for (const Step& step : steps) {
        SCOPED_TRACE(step.form->objectName().toStdString());
        const QString pdf = print(*step.form);
        const QImage sheet = QImage::fromData(pictureOf(pdf)).convertToFormat(QImage::Format_Grayscale8);
        ASSERT_FALSE(sheet.isNull());
        EXPECT_EQ(qGray(sheet.pixel(2, 2)), 255) << "the margin";
        int pale = 0;
        int dark = 0;
        for (int y = 0; y < sheet.height(); ++y) {
            for (int x = 0; x < sheet.width(); ++x) {
                pale += qGray(sheet.pixel(x, y)) >= 200;
                dark += qGray(sheet.pixel(x, y)) < 128;
            }
        }
        const int all = sheet.width() * sheet.height();
        EXPECT_GT(pale, all * 8 / 10) << "dark ground";
        EXPECT_GT(dark, all / 1000) << "no ink";
        EXPECT_LT(dark, all / 10) << "dark ground";
    }
}

TEST_F(Sheets, WhatASmallWindowHasScrolledAwayIsOnThem)
{
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    std::vector<QByteArray> texts;
    std::vector<QByteArray> sheets;
    for (const Step& step : steps) {
        print(*step.form);  // Next is the marked button from here on
        const QString pdf = print(*step.form);
        texts.push_back(textOn(pdf));
        sheets.push_back(pictureOf(pdf));
    }
    // The last column and the last record of the largest table.
    EXPECT_TRUE(texts[8].contains("DECASUALISED") && texts[8].contains("17 Days")) << texts[8].constData();
    sized({900, 320});
    for (std::size_t i = 0; i < steps.size(); ++i) {
        SCOPED_TRACE(steps[i].form->objectName().toStdString());
        QScrollBar* down = scrollBarOf(*steps[i].form);
        const int scrolled = down ? down->maximum() : 0;
        if (down)
            down->setValue(scrolled);
        const QString pdf = print(*steps[i].form);
        EXPECT_EQ(down ? down->value() : 0, scrolled) << "the screen has moved";
        EXPECT_EQ(textOn(pdf).toStdString(), texts[i].toStdString());
        EXPECT_TRUE(pictureOf(pdf) == sheets[i]) << "laid out anew";
    }
}

// What tells one sheet from another

TEST_F(Sheets, AreOfferedUnderSrSeAndCaptionTheSummaryUnderItsDivision)
{
    const std::string names[] = {
        "1 Sr SE Ambapur - Calculations of Crewmark Based on PLKTN Commitees's Report",
        "1 Sr SE Ambapur - Entering Track Data",
        "1 Sr SE Ambapur - Entering Data on Formation , Rainfall and Curves",
        "1 Sr SE Ambapur - Calculations of Mandays required for ' T ' and ' R ' activities of main line",
        "1 Sr SE Ambapur - Entering Yard Data",
        "1 Sr SE Ambapur - Data Entry for - For Miscelleneous Activities",
        "1 Sr SE Ambapur - Data Entry for Miscelleneous Activities (continued).....",
        "1 Sr SE Ambapur - Data Entry for Site Specefic Activiries 'S'",
        "1 Sr SE Ambapur - Data Entry for Site Specefic Activities 'S' (Continued)",
        "Division Sample Division - Manpower Requirement Summary",
    };
    for (std::size_t i = 0; i < steps.size(); ++i) {
        print(*steps[i].form);
        EXPECT_EQ(dialogs.lastSheet(), names[i]);
    }
}

TEST_F(Sheets, SayInTheirMarginWhoseTheyAreAndWhenTheyWerePrinted)
{
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    const std::string printed =
        QLocale::system().toString(FakeDialogs::PrintedAt.date(), QLocale::ShortFormat).toStdString() +
        " 14:05 page 1 of 1";
    for (const Step& step : steps) {
        SCOPED_TRACE(step.form->objectName().toStdString());
        const bool ofDivision = step.form == steps.back().form;
        const Page page = marginOf(print(*step.form));
        EXPECT_EQ(wordsOf(page), "Railway: Sample Railway Division: Sample Division " +
                                     std::string(ofDivision ? "" : "Sr SE: 1 Sr SE Ambapur Data file: 1-ambapur.mdb ") +
                                     printed);
        expectInPlace(page);
    }
}

TEST_F(Sheets, EachCopyIsPageOneOfOne)
{
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    const QString path = folder.filePath("copies.pdf");
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 3}, path.toStdString());
    QTest::keyClick(&steps[0].form->cmdPrint, Qt::Key_Return);
    EXPECT_EQ(textOn(path).simplified().count("14:05 page 1 of 1"), 3);
}

TEST_F(Sheets, LongNamesInTheMarginAreShortenedInTheMiddle)
{
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    const QString path = folder.filePath("long.pdf");
    const flow::SheetFacts facts{.name = {},
                                 .railway = "Short",
                                 .division = "D" + QString("ivision").repeated(4'000) + "End",
                                 .srSe = "15 A" + QString(200, 'W') + "Z",
                                 .dataFile = "/folder/B" + QString(150, 'W') + ".mdb",
                                 .printedAt = FakeDialogs::PrintedAt};
    for (const QSize size : {QSize(1320, 700), QSize(200, 4000)}) {  // across the paper and upright
        QWidget form;
        QWidget part(&form);
        part.resize(size);
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        flow::printForm(form, {{.widget = &part}}, facts, printer, 1);
        const Page page = marginOf(path);
        expectInPlace(page);
        const QString words = QString::fromStdString(wordsOf(page));
        static const QRegularExpression shortened("^Railway: Short Division: Div[a-z]*…[a-z]*End Sr SE: 15 AW*…W+Z "
                                                  "Data file: BW+…W+\\.mdb \\S+ 14:05 page 1 of 1$");
        EXPECT_TRUE(shortened.match(words).hasMatch()) << words.toStdString();
    }
}

}  // namespace
