// What the screens say to screen readers: Qt's tree of names, roles and states, as the accessibility bus
// passes it on.

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableView>
#include <map>

#include "screens/usability/ten_screens.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "yards/frmY.h"

namespace {

/// A control, not a part of one.
bool isControl(const QObject& object)
{
    const auto* widget = qobject_cast<const QWidget*>(&object);
    if (!widget || widget->objectName().startsWith("qt_"))
        return false;
    for (const QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
        if (above->inherits("QComboBox") || above->inherits("QTableView"))
            return false;
    return widget->inherits("QLineEdit") || widget->inherits("QComboBox") || widget->inherits("QAbstractButton") ||
           widget->inherits("QTableView");
}

QAccessible::Role roleOf(const QWidget& widget)
{
    if (widget.inherits("QLineEdit"))
        return QAccessible::EditableText;
    if (widget.inherits("QComboBox"))
        return QAccessible::ComboBox;
    if (widget.inherits("QRadioButton"))
        return QAccessible::RadioButton;
    if (widget.inherits("QCheckBox"))
        return QAccessible::CheckBox;
    if (widget.inherits("QTableView"))
        return QAccessible::Table;
    return QAccessible::Button;
}

/// All shown controls below `above`, in the order in which they are told.
void tell(QAccessibleInterface& above, std::vector<QWidget*>& told)
{
    for (int i = 0; i < above.childCount(); ++i) {
        QAccessibleInterface* child = above.child(i);
        ASSERT_NE(child, nullptr);
        auto* widget = qobject_cast<QWidget*>(child->object());
        if (!widget || !widget->isVisible())
            continue;
        if (isControl(*widget))
            told.push_back(widget);
        else
            tell(*child, told);
    }
}

std::string spoken(QWidget& widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).toStdString();
}

class Accessibility : public TenScreens {  // slow
protected:
    std::vector<QWidget*> told(QWidget& form)
    {
        std::vector<QWidget*> all;
        tell(*QAccessible::queryAccessibleInterface(&form), all);
        return all;
    }

    std::string name(const std::string& control) { return spoken(find(control)); }
};

TEST_F(Accessibility, EveryControlOfEveryScreenHasANameOfItsOwnAndTheRightRole)
{
    openWithMostRows();
    for (const Step& step : steps) {
        const std::string form = step.form->objectName().toStdString();
        const std::vector<QWidget*> controls = told(*step.form);
        EXPECT_GT(controls.size(), 5U) << form;
        std::map<std::string, std::string> taken;
        for (QWidget* control : controls) {
            const std::string object = form + "." + control->objectName().toStdString();
            const std::string said = spoken(*control);
            EXPECT_FALSE(QString::fromStdString(said).trimmed().isEmpty()) << object;
            EXPECT_FALSE(said.find("  ") != std::string::npos || said.find('&') != std::string::npos)
                << object << " says " << said;
            EXPECT_TRUE(taken.emplace(said, object).second) << object << " and " << taken[said] << " both say " << said;
            EXPECT_EQ(QAccessible::queryAccessibleInterface(control)->role(), roleOf(*control)) << object;
        }
    }
}

TEST_F(Accessibility, NothingThatIsShownIsLeftOut)
{
    openWithMostRows();
    for (const Step& step : steps) {
        const std::vector<QWidget*> controls = told(*step.form);
        for (QWidget* shown : step.form->findChildren<QWidget*>())
            EXPECT_EQ(std::count(controls.begin(), controls.end(), shown), shown->isVisible() && isControl(*shown))
                << step.form->objectName().toStdString() << "." << shown->objectName().toStdString();
    }
}

TEST_F(Accessibility, BoxesInRowsAreNamedAfterTheirHeadingAndTheirRow)
{
    openWithMostRows();
    nowOn<frmT1>();
    EXPECT_EQ(name("txtKmf(2)"), "Km From, segment 3");
    EXPECT_EQ(name("cboMtc(0)"), "Method of Maintenance, segment 1");
    EXPECT_EQ(name("txtConc2(15)"), "Length and no of Eq.t/outs on conc Sleepers, turnouts, segment 16");
    nowOn<frmT2>();
    EXPECT_EQ(name("txtRain(4)").substr(name("txtRain(4)").size() - 11), ", segment 5");
    nowOn<frmY>();
    EXPECT_EQ(name("txtStn(1)"), "Station, yard 2");
    EXPECT_EQ(name("txtM2(11)"), "Manually Packed RYL, length, yard 12");
    nowOn<frmSummary>();
    EXPECT_EQ(name("txtEx(4)"), "Excess(+) Shortage(-), Sr SE 5");
    EXPECT_EQ(name("txtTkm(15)"), "Total Km, total");
}

TEST_F(Accessibility, WhatIsComputedIsToldAsReadOnlyAndWhatIsTypedAsNot)
{
    workSample();
    nowOn<frmT1>();
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&find("txtEqtkm(0)"))->state().readOnly);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(&find("txtKmf(0)"))->state().readOnly);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&find("txtKmf(0)"))->text(QAccessible::Value).toStdString(),
              text("txtKmf(0)"));
}

TEST_F(Accessibility, TheNextButtonIsToldAsTheDefault)
{
    auto& start = on<frmStart>();
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&start.cmdFile)->state().defaultButton);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(&start.cmdPrint)->state().defaultButton);
}

/// Where blocks stand side by side each is told whole, from the left.
TEST_F(Accessibility, ReadingOrderIsTheOrderOnTheScreen)
{
    openWithMostRows();
    for (const Step& step : steps) {
        const std::vector<QWidget*> controls = told(*step.form);
        for (std::size_t i = 1; i < controls.size(); ++i) {
            const QWidget& a = *controls[i - 1];
            const QWidget& b = *controls[i];
            const QRect first(a.mapTo(step.form, QPoint()), a.size());
            const QRect second(b.mapTo(step.form, QPoint()), b.size());
            const bool oneLine = std::abs(first.center().y() - second.center().y()) < first.height() / 2;
            EXPECT_TRUE(oneLine ? first.right() < second.left()
                                : first.bottom() < second.top() ||  // down, or up again to the next block
                                      (a.parentWidget() != b.parentWidget() && first.right() < second.left()))
                << step.form->objectName().toStdString() << ": " << a.objectName().toStdString() << " is told before "
                << b.objectName().toStdString();
        }
    }
}

}  // namespace
