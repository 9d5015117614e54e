// The printed sheets of all ten screens.

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTest>

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

}  // namespace
