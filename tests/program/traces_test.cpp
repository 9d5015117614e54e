// A whole Sr SE is worked with the desktop's own boxes, from Browse to Exit. Behind it nothing lies in the house but
// what was printed.

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "compose.h"
#include "division/act.h"
#include "division/steps.h"
#include "program/sandbox_home.h"
#include "screens/flow/chain.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"

namespace {

SandboxHome* house = nullptr;

/// Answers the desktop's boxes, each as soon as it stands there.
class Clerk {
public:
    Clerk()
    {
        QObject::connect(&m_look, &QTimer::timeout, [this] { answer(); });
        m_look.start(0);
    }

    QString dataFile;
    int printOuts = 0;
    int dataFiles = 0;
    QStringList messages;

private:
    void answer()
    {
        QWidget* const box = QApplication::activeModalWidget();
        if (auto* file = qobject_cast<QFileDialog*>(box)) {
            ++dataFiles;
            file->findChild<QLineEdit*>("fileNameEdit")->setText(dataFile);
            QTest::keyClick(file->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        } else if (auto* print = qobject_cast<QPrintDialog*>(box)) {
            auto* const name = print->findChild<QLineEdit*>("filename");
            ASSERT_NE(name, nullptr) << "no printing to a file";
            name->setText(QString("%1/%2.pdf").arg(house->tray()).arg(++printOuts, 2, 10, QChar('0')));
            print->accept();
        } else if (auto* message = qobject_cast<QMessageBox*>(box)) {
            messages += message->text();
            message->defaultButton()->click();
        }
    }

    QTimer m_look;
};

TEST(Traces, AWholeSrSeLeavesNothingButItsPrintOuts)
{
    flow::DesktopDialogs dialogs;
    flow::Chain chain(dialogs);
    compose(chain);
    Clerk clerk;
    clerk.dataFile = CREWMARK_SAMPLES "/1-ambapur.mdb";

    chain.show<frmStart>();
    for (const division::Step& step : division::Steps) {
        flow::Screen* const screen = chain.find(step.form);
        ASSERT_TRUE(screen && screen->isVisible()) << step.form;
        const auto press = [screen](const char* button) { division::perform(*screen, {.control = button}); };
        if (screen->objectName() == "frmStart") {
            division::perform(*screen, {"txtT1(3)", "1"});
            press("cmdFile");
        }
        if (screen->objectName() == "frmT1")
            press("optBG");
        for (const char* button : {step.import, step.compute})
            if (*button)
                press(button);
        if (screen->objectName() == "frmSummary")
            press("cmdTotal");
        press("cmdPrint");
        press(*step.next ? step.next : "cmdExit");
    }

    EXPECT_FALSE(chain.isLoaded<frmSummary>()) << "Exit ends the program";
    EXPECT_EQ(clerk.dataFiles, 1);
    EXPECT_EQ(clerk.messages.join('|').toStdString(), "Now Total up the figures");
    EXPECT_EQ(house->contents(), "tray/01.pdf tray/02.pdf tray/03.pdf tray/04.pdf tray/05.pdf "
                                 "tray/06.pdf tray/07.pdf tray/08.pdf tray/09.pdf tray/10.pdf");
}

}  // namespace

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    house = new SandboxHome;
    for (const auto& [name, value] : house->environment())
        qputenv(name, value);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QDir::setCurrent(house->work());
    int result = 0;
    {
        QApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");  // as the program has it
        result = RUN_ALL_TESTS();
    }
    delete house;
    return result;
}
