// An idle program is idle: nothing is painted while nothing changes.

#include <QApplication>
#include <QBackingStore>
#include <QExposeEvent>
#include <QTest>
#include <QWindow>
#include <map>

#include "screens/usability/ten_screens.h"
#include "start/frmStart.h"
#include "track/frmT1.h"

namespace {

class PaintCount : public QObject {
public:
    PaintCount() { qApp->installEventFilter(this); }
    int total() const { return m_total; }
    std::string last() const { return m_last; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++m_total;
            m_last = watched->objectName().toStdString();
        }
        return false;
    }

private:
    int m_total = 0;
    std::string m_last;
};

TEST_F(TenScreens, PaintNothingWhileNothingChanges)
{
    const int blinking = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);  // as the program has it
    workSample();
    for (const Step& step : steps) {
        ASSERT_TRUE(step.form->isVisible());
        step.form->activateWindow();
        if (QWidget* box = step.form->firstBox())
            box->setFocus();
        QTest::qWait(50);
    }
    QTest::qWait(300);  // what is still to be painted

    const PaintCount paints;
    QTest::qWait(1200);  // twelve ticks of the clock
    EXPECT_EQ(paints.total(), 0) << "the last one was " << paints.last();

    chain.get<frmStart>().txtT1(0).setText("somebody else");
    QTest::qWait(100);
    EXPECT_GT(paints.total(), 0) << "a change is painted";
    QApplication::setCursorFlashTime(blinking);
}

// A picture has 4 bytes a pixel: 3.5 MiB at the size at which a screen opens.
class PicturesOfScreens : public TenScreens {  // slow
protected:
    static constexpr QSize None{0, 0};

    static QSize picture(const QWidget& screen) { return screen.backingStore()->size(); }

    void openTwo()
    {
        begin();
        begin().activateWindow();
        QTest::qWait(250);  // two ticks of the clock
    }

    flow::Screen& behind() { return chain.get<frmStart>(); }
    flow::Screen& inFront() { return chain.get<frmT1>(); }
};

TEST_F(PicturesOfScreens, AreKeptOfTheOneInFrontAlone)
{
    openTwo();
    EXPECT_TRUE(behind().isVisible());
    EXPECT_EQ(picture(behind()), None);
    EXPECT_EQ(picture(inFront()), inFront().size());

    behind().activateWindow();
    behind().update();
    QTest::qWait(250);
    EXPECT_EQ(picture(behind()), behind().size());
    EXPECT_EQ(picture(inFront()), None);
}

TEST_F(PicturesOfScreens, ArePaintedAnewWhenAScreenBehindIsUncovered)
{
    openTwo();
    const PaintCount paints;
    QExposeEvent uncovered(QRect(0, 0, 100, 10));  // a strip of it
    QApplication::sendEvent(behind().windowHandle(), &uncovered);
    EXPECT_EQ(picture(behind()), behind().size());
    EXPECT_GE(paints.total(), behind().findChildren<QLineEdit*>().size()) << "all of it, not the strip alone";

    QTest::qWait(250);
    EXPECT_EQ(picture(behind()), None) << "and rests again";
}

TEST_F(PicturesOfScreens, ArePaintedAnewWhenAScreenBehindChanges)
{
    openTwo();
    const PaintCount paints;
    chain.get<frmStart>().txtT1(0).setText("somebody else");
    ASSERT_TRUE(QTest::qWaitFor([&] { return paints.total() > 0; }, 1000));
    EXPECT_GE(paints.total(), behind().findChildren<QLineEdit*>().size()) << "all of it, not the box alone";
}

TEST_F(PicturesOfScreens, AreBackWhenAHiddenScreenIsShownAgain)
{
    openTwo();
    inFront().close();
    QTest::qWait(250);
    EXPECT_EQ(picture(inFront()), None);
    chain.show<frmT1>();
    QTest::qWait(50);
    EXPECT_EQ(picture(inFront()), inFront().size());
}

}  // namespace
