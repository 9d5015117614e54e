// An idle program is idle: nothing is painted while nothing changes.

#include <QApplication>
#include <QTest>
#include <map>

#include "screens/likes/ten_screens.h"

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

}  // namespace
