#include "support/screen_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <stdexcept>

#include "screens/controls/data_grid.h"
#include "start/frmStart.h"
#include "support/clicks.h"

ScreenTest::~ScreenTest()
{
    settle();
}

void ScreenTest::settle()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

void ScreenTest::workOn(flow::Screen& form)
{
    EXPECT_TRUE(form.isVisible()) << form.objectName().toStdString() << " is not visible";
    m_form = &form;
    settle();
}

flow::Screen& ScreenTest::nowOn(const std::string& name)
{
    flow::Screen* const form = chain.find(QString::fromStdString(name));
    if (!form)
        throw std::logic_error(name + " is not loaded");
    workOn(*form);
    return *form;
}

flow::Screen& ScreenTest::onNext()
{
    if (!m_form)
        return on<frmStart>();
    const auto step = std::find_if(division::Steps.begin(), division::Steps.end(),
                                   [this](const division::Step& one) { return m_form->objectName() == one.form; });
    chain.showNextAfter(*m_form);
    return nowOn((step + 1)->form);
}

std::vector<flow::Screen*> ScreenTest::onAll()
{
    std::vector<flow::Screen*> screens;
    m_form = nullptr;
    while (screens.size() < division::Steps.size())
        screens.push_back(&onNext());
    return screens;
}

QWidget& ScreenTest::find(const std::string& name)
{
    if (!m_form)
        throw std::logic_error("no screen is open: call on<...>() first");
    if (auto* found = m_form->findChild<QWidget*>(QString::fromStdString(name)))
        return *found;
    std::string there;
    for (const QWidget* child : m_form->findChildren<QWidget*>())
        if (!child->objectName().isEmpty() && !child->objectName().startsWith("qt_"))
            there += " " + child->objectName().toStdString();
    throw std::logic_error(m_form->objectName().toStdString() + " has no " + name + "; it has" + there);
}

void ScreenTest::type(const std::string& name, const std::string& text)
{
    QWidget& box = find(name);
    box.setFocus();
    auto* combo = qobject_cast<QComboBox*>(&box);
    auto* line = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(&box);
    if (!line)
        throw std::logic_error(name + " is no box to type in");
    line->selectAll();
    if (text.empty())
        QTest::keyClick(line, Qt::Key_Delete);
    else
        QTest::keyClicks(line, QString::fromStdString(text));
    settle();
}

void ScreenTest::click(const std::string& name)
{
    QWidget& button = find(name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, placeToClick(button));
    settle();
}

void ScreenTest::key(const std::string& name, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&find(name), key, modifiers);
    settle();
}

std::string ScreenTest::text(const std::string& name)
{
    QWidget& widget = find(name);
    if (const auto* line = qobject_cast<QLineEdit*>(&widget))
        return line->text().toStdString();
    if (const auto* combo = qobject_cast<QComboBox*>(&widget))
        return combo->currentText().toStdString();
    if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
        return button->text().toStdString();
    if (const auto* label = qobject_cast<QLabel*>(&widget))
        return label->text().toStdString();
    throw std::logic_error(name + " has no text");
}

bool ScreenTest::shown(const std::string& name)
{
    return !find(name).isHidden();
}

bool ScreenTest::enabled(const std::string& name)
{
    return find(name).isEnabled();
}

bool ScreenTest::locked(const std::string& name)
{
    QWidget& widget = find(name);
    if (const auto* line = qobject_cast<QLineEdit*>(&widget))
        return line->isReadOnly();
    return !widget.isEnabled();
}

bool ScreenTest::pale(const std::string& name)
{
    return find(name).palette().color(QPalette::Base) == QColor(255, 224, 192);
}

std::string ScreenTest::toolTip(const std::string& name)
{
    return find(name).toolTip().toStdString();
}

std::string ScreenTest::focus()
{
    const QWidget* widget = m_form ? m_form->focusWidget() : nullptr;
    return widget ? widget->objectName().toStdString() : "";
}

bool ScreenTest::says(const std::string& caption)
{
    const auto labels = m_form->findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->text().toStdString() == caption; });
}

void ScreenTest::expectPrintQuestion(bool yes)
{
    dialogs.expectYesNo("Forgot to take a print of the Form !", "Do you want to take a print of the form ?", yes);
}

void ScreenTest::putRecords(const std::string& grid, const std::vector<std::vector<std::string>>& records)
{
    store::Table table("TABLE", std::vector<std::string>(records.front().size()));
    for (const auto& record : records)
        table.append({record.begin(), record.end()});
    dynamic_cast<controls::DataGrid&>(find(grid)).setTable(table);
}

std::string ScreenTest::texts(const std::string& array, int first, int last)
{
    std::string all;
    for (int i = first; i <= last; ++i)
        all += (i > first ? "|" : "") + text(array + "(" + std::to_string(i) + ")");
    return all;
}

std::string ScreenTest::shownOf(const std::string& array, int first, int last)
{
    std::string all;
    for (int i = first; i <= last; ++i)
        all += shown(array + "(" + std::to_string(i) + ")") ? '1' : '0';
    return all;
}

std::string ScreenTest::sample(const std::string& name)
{
    return std::string(CREWMARK_SAMPLES) + "/" + name;
}

std::string ScreenTest::fixture(const std::string& name)
{
    return std::string(CREWMARK_TEST_DATA) + "/" + name;
}

int pagesOf(const std::string& pdf)
{
    QFile file(QString::fromStdString(pdf));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QString content = QString::fromLatin1(file.readAll());
    return static_cast<int>(content.count(QRegularExpression("/Type\\s*/Page\\b")));
}
