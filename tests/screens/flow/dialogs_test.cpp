#include "screens/flow/dialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "start/frmStart.h"
#include "support/screen_test.h"

namespace {

/// The real boxes of the desktop, each answered as soon as it stands there.
class DesktopDialogsTest : public testing::Test {
protected:
    template <class Box>
    void answer(std::function<void(Box&)> look)
    {
        QTimer::singleShot(0, &parent, [look] {
            auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr) << "no box, or another one";
            look(*box);
            if (box->isVisible())
                box->reject();
        });
    }

    QWidget parent;
    flow::DesktopDialogs dialogs;
};

TEST_F(DesktopDialogsTest, AQuestionOffersYesAndNoWithItsDefault)
{
    for (const bool defaultYes : {true, false}) {
        for (const bool yes : {true, false}) {
            answer<QMessageBox>([&](QMessageBox& box) {
                EXPECT_EQ(box.windowTitle(), "Forgot to take a print of the Form !");
                EXPECT_EQ(box.text(), "Do you want to take a print of the form ?");
                EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
                EXPECT_EQ(box.defaultButton(), box.button(defaultYes ? QMessageBox::Yes : QMessageBox::No));
                box.button(yes ? QMessageBox::Yes : QMessageBox::No)->click();
            });
            EXPECT_EQ(dialogs.askYesNo(parent, "Forgot to take a print of the Form !",
                                       "Do you want to take a print of the form ?", defaultYes),
                      yes);
        }
    }
}

TEST_F(DesktopDialogsTest, AQuestionLeftWithoutAnAnswerIsAnsweredByItsDefaultWhichLosesNothing)
{
    for (const bool preset : {true, false}) {
        answer<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        EXPECT_EQ(dialogs.askYesNo(parent, "title", "prompt", preset), preset) << "Esc";
        answer<QMessageBox>([](QMessageBox& box) { box.close(); });
        EXPECT_EQ(dialogs.askYesNo(parent, "title", "prompt", preset), preset) << "its X";
    }
}

TEST_F(DesktopDialogsTest, ABoxIsWideEnoughForItsTitle)
{
    const QString title = "Calculations for all Sr SSE's are over";
    answer<QMessageBox>([&](QMessageBox& box) {
        EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(title) + 3 * 40)
            << "and for three buttons beside it";
        box.button(QMessageBox::Ok)->click();
    });
    dialogs.showMessage(parent, title, "Now");
}

TEST_F(DesktopDialogsTest, ACriticalBoxHasItsIconAndOkWhichIsOne)
{
    answer<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box.windowTitle(), "Tr Data");
        box.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(dialogs.showCritical(parent, "Tr Data", "reason"), 1);
    answer<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.showCritical(parent, "Tr Data", "reason"), 1) << "however it is closed";
}

TEST_F(DesktopDialogsTest, AMessageHasOkAlone)
{
    answer<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        box.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(dialogs.showMessage(parent, "title", "text"), 1);
}

TEST_F(DesktopDialogsTest, AFileNameThatLooksLikeMarkupIsShownAsItStands)
{
    answer<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), "There is no file \"<b>.mdb\".");
    });
    dialogs.showCritical(parent, "Tr Data", "There is no file \"<b>.mdb\".");
}

TEST_F(DesktopDialogsTest, TheFileDialogShowsAccessFilesOfItsFolderAndReturnsTheFullPath)
{
    const QTemporaryDir folder;
    for (const char* name : {"parasnath.mdb", "AMBAPUR.MDB", "notes.txt"}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    answer<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "File Open");
        EXPECT_EQ(QDir(dialog.directory()).canonicalPath(), QDir(folder.path()).canonicalPath());
        auto* list = dialog.findChild<QListView*>("listView");
        ASSERT_NE(list, nullptr);
        QStringList names;
        for (int i = 0; i < 50 && names.size() < 2; ++i) {
            QTest::qWait(20);  // the folder is read beside the dialog
            names.clear();
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                names += list->model()->index(row, 0, list->rootIndex()).data().toString();
        }
        names.sort();
        EXPECT_EQ(names.join(' ').toStdString(), "AMBAPUR.MDB parasnath.mdb");
        auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        QTest::keyClicks(name, "parasnath.mdb");
        QTest::keyClick(name, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.openFile(parent, "File Open", "Access Files(*.mdb)|*.mdb", folder.path()),
              folder.filePath("parasnath.mdb"));
}

TEST_F(DesktopDialogsTest, TheFileDialogCancelledReturnsNothing)
{
    answer<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.openFile(parent, "File Open", "Access Files(*.mdb)|*.mdb", ""), "");
}

TEST_F(DesktopDialogsTest, ThePrintDialogGivesItsCopies)
{
    const QTemporaryDir folder;
    QPrinter printer;
    printer.setOutputFileName(folder.filePath("print.pdf"));
    answer<QPrintDialog>([](QPrintDialog& dialog) {
        auto* copies = dialog.findChild<QSpinBox*>("copies");
        ASSERT_NE(copies, nullptr);
        copies->setValue(3);
        dialog.accept();
    });
    const auto choice = dialogs.print(parent, printer);
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->copies, 3);
}

TEST_F(DesktopDialogsTest, ThePrintDialogOffersTheSheetsNameInTheFolderOfTheLastPrintOut)
{
    QTemporaryDir folder;
    const auto offered = [&](const QString& sheet, const QString& chosen) {
        QString offer;
        QPrinter printer;
        printer.setDocName(sheet);
        answer<QPrintDialog>([&](QPrintDialog& dialog) {
            auto* printers = dialog.findChild<QComboBox*>("printers");
            auto* file = dialog.findChild<QLineEdit*>("filename");
            ASSERT_TRUE(printers && file);
            offer = file->text();
            printers->setCurrentIndex(printers->count() - 1);  // "Print to File (PDF)"
            EXPECT_EQ(file->text(), offer);
            if (!chosen.isEmpty()) {
                file->setText(chosen);
                dialog.accept();
            }
        });
        EXPECT_EQ(dialogs.print(parent, printer).has_value(), !chosen.isEmpty());
        return offer;
    };
    const QString name = "1 Sr.SE Ambapur - Entering Track Data";
    EXPECT_EQ(offered(name, folder.filePath("mine.pdf")), QDir::home().filePath(name + ".pdf"));
    EXPECT_EQ(offered(name, ""), folder.filePath(name + ".pdf")) << "the folder chosen last";
    EXPECT_EQ(offered(name, QDir::temp().filePath("crewmark-print.pdf")), folder.filePath(name + ".pdf"))
        << "Cancel changes nothing";
    EXPECT_EQ(offered(name, folder.filePath("mine.pdf")), QDir::temp().filePath(name + ".pdf"));
    folder.remove();
    EXPECT_EQ(offered(name, ""), QDir::home().filePath(name + ".pdf")) << "its disk has been taken out";
}

TEST_F(DesktopDialogsTest, ThePrintDialogLeavesTheChoiceOfAPrinterAsQtHasIt)
{
    QPrinter printer;
    printer.setDocName("1 Sr SE Ambapur - Entering Track Data");
    const QPrinter::OutputFormat before = printer.outputFormat();
    answer<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(dialogs.print(parent, printer).has_value());
    EXPECT_EQ(printer.outputFormat(), before);
    EXPECT_EQ(printer.outputFileName(), "") << "a printer chosen after it would print to that file";
}

TEST_F(DesktopDialogsTest, ThePrintDialogCancelledGivesNothing)
{
    QPrinter printer;
    answer<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(dialogs.print(parent, printer).has_value());
}

TEST_F(DesktopDialogsTest, WhoDoesNotReadTheLastQuestionLosesNothing)
{
    flow::Chain chain(dialogs);
    compose(chain);
    auto& start = chain.show<frmStart>();
    start.txtT1(5).setText("Sample Railway");
    answer<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "End the program? The figures on the screens will be lost.");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_FALSE(start.close());
    EXPECT_TRUE(chain.isLoaded<frmStart>());
}

}  // namespace
