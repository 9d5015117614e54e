// How the ten screens lie in their windows. Run again under other scale factors: see CMakeLists.txt.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTableView>
#include <QTest>

#include "activities/misc/frmM1.h"
#include "screens/controls/caption.h"
#include "screens/usability/ten_screens.h"
#include "start/frmStart.h"

namespace {

std::string nameOf(const QWidget& widget)
{
    if (!widget.objectName().isEmpty())
        return widget.objectName().toStdString();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label ? "\"" + label->text().simplified().toStdString() + "\"" : widget.metaObject()->className();
}

/// What the user sees of a form: its labels, boxes, buttons and its grid.
std::vector<QWidget*> partsOf(const QWidget& form)
{
    std::vector<QWidget*> parts;
    for (QWidget* child : form.findChildren<QWidget*>()) {
        const bool inner =
            child->parentWidget()->inherits("QComboBox") || child->parentWidget()->inherits("QTableView");
        const bool part = qobject_cast<QLineEdit*>(child) || qobject_cast<QComboBox*>(child) ||
                          qobject_cast<QAbstractButton*>(child) || qobject_cast<QTableView*>(child) ||
                          qobject_cast<QLabel*>(child);
        const auto* label = qobject_cast<QLabel*>(child);
        if (part && !inner && child->isVisible() && !(label && label->text().isEmpty()))
            parts.push_back(child);
    }
    return parts;
}

QRect placeIn(const QWidget& form, const QWidget& part)
{
    return {part.mapTo(&form, QPoint()), part.size()};
}

QScrollArea* rowsOf(const QWidget& form)
{
    return form.findChild<QScrollArea*>("rows");  // the start screen has none
}

bool inside(const QScrollArea* area, const QWidget& part)
{
    return area && area->widget()->isAncestorOf(&part);
}

/// The innermost area with which the part scrolls; none for the buttons.
const QScrollArea* areaAround(const QWidget& part)
{
    for (const QWidget* above = part.parentWidget(); above; above = above->parentWidget())
        if (const auto* area = qobject_cast<const QScrollArea*>(above))
            return area;
    return nullptr;
}

void expectNothingOverlaps(const QWidget& form)
{
    const std::vector<QWidget*> parts = partsOf(form);
    const QScrollArea* rows = rowsOf(form);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        for (std::size_t j = i + 1; j < parts.size(); ++j) {
            if (areaAround(*parts[i]) != areaAround(*parts[j]))
                continue;  // rows scroll away under what stands below them; the areas are looked at by themselves
            const QRect a = placeIn(form, *parts[i]);
            const QRect b = placeIn(form, *parts[j]);
            EXPECT_FALSE(a.intersects(b)) << nameOf(*parts[i]) << " lies over " << nameOf(*parts[j]);
        }
        if (!rows || areaAround(*parts[i]) != areaAround(*rows))
            continue;
        EXPECT_FALSE(placeIn(form, *parts[i]).intersects(placeIn(form, *rows)))
            << nameOf(*parts[i]) << " lies over the rows";
    }
}

/// Nothing is cut off by what it stands in; what scrolls may be, by the rows' window.
void expectNothingCut(const QWidget& form)
{
    for (const QWidget* part : partsOf(form)) {
        const QWidget* around = part->parentWidget();
        for (QRect place = part->geometry(); around; around = around->parentWidget()) {
            EXPECT_TRUE(around->rect().contains(place)) << nameOf(*part) << " is cut off in " << nameOf(*around);
            const auto* area =
                qobject_cast<QScrollArea*>(around->parentWidget() ? around->parentWidget()->parentWidget() : nullptr);
            if (around == &form || (area && area->widget() == around))
                break;
            place.translate(around->pos());
        }
    }
}

int roomForText(const QLineEdit& box)
{
    QStyleOptionFrame frame;
    frame.initFrom(&box);
    frame.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, &box);
    const QMargins margins = box.textMargins();
    constexpr int inner = 2 * 2;  // Qt's own margin on either side
    return box.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &box).width() - margins.left() -
           margins.right() - inner;
}

/// Where there is room; in a narrow window the boxes of names give way.
void expectTextsFit(const QWidget& form, QSize usual)
{
    for (const QWidget* part : partsOf(form)) {
        SCOPED_TRACE(nameOf(*part));
        if (const auto* box = qobject_cast<const QLineEdit*>(part)) {
            if (box->objectName() == "txtT1(1)" && form.objectName() == "frmStart")
                continue;  // a path shows its end
            if (form.width() < usual.width() && !(box->alignment() & Qt::AlignRight))
                continue;
            EXPECT_LE(box->fontMetrics().horizontalAdvance(box->text()), roomForText(*box))
                << box->text().toStdString();
        } else if (const auto* combo = qobject_cast<const QComboBox*>(part)) {
            EXPECT_LE(combo->fontMetrics().horizontalAdvance(combo->currentText()), roomForText(*combo->lineEdit()))
                << combo->currentText().toStdString();
        } else if (const auto* caption = dynamic_cast<const controls::Caption*>(part)) {
            EXPECT_LE(caption->heightForWidth(caption->width()), caption->height()) << "lines are cut off";
            EXPECT_LE(caption->minimumSizeHint().width(), caption->width()) << "a word is cut off";
        } else if (qobject_cast<const QAbstractButton*>(part)) {
            EXPECT_GE(part->width(), part->minimumSizeHint().width());
            EXPECT_GE(part->height(), part->minimumSizeHint().height());
        }
    }
}

void expectNoScrolling(const QWidget& form)
{
    const QScrollArea* rows = rowsOf(form);
    if (!rows)
        return;
    EXPECT_FALSE(rows->verticalScrollBar()->isVisible())
        << "the rows scroll by " << rows->verticalScrollBar()->maximum();
    EXPECT_FALSE(rows->horizontalScrollBar()->isVisible())
        << "the rows scroll sideways by " << rows->horizontalScrollBar()->maximum();
}

/// Header and buttons stay in the window, whatever the rows do.
void expectHeaderAndButtonsStay(const QWidget& form, QSize window)
{
    EXPECT_EQ(form.width(), window.width()) << "the window is wider than the desktop";
    EXPECT_EQ(form.height(), window.height()) << "the window is higher than the desktop";
    const QScrollArea* rows = rowsOf(form);
    for (const QWidget* part : partsOf(form))
        EXPECT_TRUE(inside(rows, *part) || form.rect().contains(placeIn(form, *part))) << nameOf(*part);
}

class Layout : public TenScreens {  // slow
protected:
    /// A desktop's room for a window, in logical pixels, less the frame.
    static QSize windowOn(QSize desktop, double scale)
    {
        return QSize(static_cast<int>(desktop.width() / scale), static_cast<int>(desktop.height() / scale)) -
               QSize(26, 78);  // a frame, a title bar and the desktop's own bar: 1366x768 leaves 1340x690
    }

    void expectWell(QSize window, bool fits)
    {
        sized(window);
        for (const Step& step : steps) {
            SCOPED_TRACE(step.form->objectName().toStdString() + " at " + std::to_string(window.width()) + "x" +
                         std::to_string(window.height()));
            expectNothingOverlaps(*step.form);
            expectNothingCut(*step.form);
            expectTextsFit(*step.form, Usual);
            expectHeaderAndButtonsStay(*step.form, window);
            if (fits)
                expectNoScrolling(*step.form);
        }
    }
};

TEST_F(Layout, ATypicalSrSeFitsWithoutScrollingAndNothingIsCutOff)
{
    openEmpty();
    expectWell(Usual, true);
}

TEST_F(Layout, WorkedTheScreensFitAsWell)
{
    workSample();
    EXPECT_EQ(steps.size(), 10U);
    expectWell(Usual, true);
    expectWell({1894, 1002}, true);  // of 1920x1080
}

TEST_F(Layout, WithTheMostRowsTheRowsScrollAndHeaderAndButtonsStay)
{
    openWithMostRows();
    expectWell(Usual, false);
    constexpr QSize low(Usual.width(), 480);
    expectWell(low, false);
    std::string scrolled;
    for (const Step& step : steps) {
        QScrollArea* rows = rowsOf(*step.form);
        if (!rows)
            continue;
        SCOPED_TRACE(step.form->objectName().toStdString());
        EXPECT_FALSE(rows->horizontalScrollBar()->isVisible());
        QScrollBar& bar = *rows->verticalScrollBar();
        if (bar.maximum() > 0)
            scrolled += step.form->objectName().toStdString() + " ";
        bar.setValue(bar.maximum());
        settle();
        expectHeaderAndButtonsStay(*step.form, low);
    }
    EXPECT_EQ(scrolled.substr(0, 18), "frmT1 frmT2 frmT4 ") << "16 segments do not fit there: " << scrolled;
}

TEST_F(Layout, OnALargerWindowTheMostRowsFitToo)
{
    openWithMostRows();
    expectWell({1894, 1002}, true);
}

TEST_F(Layout, InANarrowWindowANoteIsNoTowerOfSingleWords)
{
    workSample();
    sized({1066, 536});
    int notes = 0;
    for (const auto* label : chain.get<frmM1>().findChildren<QLabel*>())
        if (label->text().startsWith("Data for a max")) {
            ++notes;
            EXPECT_LE(label->heightForWidth(label->width()), 3 * label->fontMetrics().height());
        }
    EXPECT_EQ(notes, 2);
}

/// What the desktop's scaling leaves of the room: the rows scroll, the rest stays whole.
class ScaledLayout : public Layout, public testing::WithParamInterface<double> {};

class LargeDesktop : public ScaledLayout {};

TEST_P(LargeDesktop, HeaderAndButtonsStayWhole)  // slow
{
    workSample();
    expectWell(windowOn({1920, 1080}, GetParam()), GetParam() < 1.5);
}

class SmallDesktop : public ScaledLayout {};

TEST_P(SmallDesktop, HeaderAndButtonsStayWhole)  // slow
{
    workSample();
    expectWell(windowOn({1366, 768}, GetParam()), false);
}

/// Doubled, 1366x768 leaves 683x384: no room for rows under their header. All above the buttons scrolls.
TEST_F(Layout, OnTheSmallestDesktopTheButtonsStayAndTabBringsTheRestIntoView)
{
    const QSize window = windowOn({1366, 768}, 2.0);
    int seen = 0;
    const auto check = [&](const Step& step) {
        SCOPED_TRACE(step.form->objectName().toStdString());
        sized(window);
        EXPECT_EQ(step.form->size(), window);
        expectNothingOverlaps(*step.form);
        expectNothingCut(*step.form);
        expectTextsFit(*step.form, Usual);
        int buttons = 0;
        for (const auto* button : step.form->findChildren<QPushButton*>())
            if (button->isVisible() && !areaAround(*button)) {
                ++buttons;
                EXPECT_TRUE(step.form->rect().contains(placeIn(*step.form, *button))) << nameOf(*button);
            }
        EXPECT_GE(buttons, 2);

        const QWidget* const first = QApplication::focusWidget();
        const QWidget* at = nullptr;
        for (int stops = 0; at != first && stops < 1000; ++stops) {
            QTest::keyClick(step.form, Qt::Key_Tab);
            settle();
            at = QApplication::focusWidget();
            ASSERT_NE(at, nullptr);
            if (qobject_cast<const QTableView*>(at))
                continue;  // it has bars of its own
            EXPECT_EQ(at->visibleRegion(), QRegion(at->rect())) << nameOf(*at) << " is not in view";
            ++seen;
        }
        EXPECT_EQ(at, first);
        step.form->resize(Usual);
        settle();
    };
    workSample(check);
    nowOn<frmStart>().activateWindow();
    settle();
    check(steps.front());
    EXPECT_GT(seen, 90) << "stops of Tab on the ten screens";
}

std::string percent(const testing::TestParamInfo<double>& tested)
{
    return std::to_string(static_cast<int>(tested.param * 100));
}

INSTANTIATE_TEST_SUITE_P(Percent, LargeDesktop, testing::Values(1.25, 1.5, 2.0), percent);
INSTANTIATE_TEST_SUITE_P(Percent, SmallDesktop, testing::Values(1.25, 1.5), percent);

}  // namespace
