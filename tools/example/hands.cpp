#include "hands.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <stdexcept>

namespace {

constexpr QPoint OnTheMark(9, 0);  // of an option button or check box

void settle()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

}  // namespace

QWidget& Hands::find(const char* name) const
{
    auto* found = m_form->findChild<QWidget*>(name);
    if (!found)
        throw std::runtime_error(m_form->objectName().toStdString() + " has no " + name);
    return *found;
}

void Hands::type(const char* box, const QString& text) const
{
    auto& line = dynamic_cast<QLineEdit&>(find(box));
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, text);
    settle();
}

void Hands::click(const char* button) const
{
    QWidget& widget = find(button);
    if (!widget.isEnabled())
        throw std::runtime_error(m_form->objectName().toStdString() + ": " + button + " cannot be pressed yet");
    const bool marked = widget.inherits("QRadioButton") || widget.inherits("QCheckBox");
    QTest::mouseClick(&widget, Qt::LeftButton, {},
                      marked ? OnTheMark + QPoint(0, widget.height() / 2) : widget.rect().center());
    settle();
}

QString Hands::text(const char* box) const
{
    return dynamic_cast<QLineEdit&>(find(box)).text();
}

void Hands::photograph(const QString& file) const
{
    for (int i = 0; i < 4; ++i)
        settle();  // what was shown is laid out, and what wraps then once more
    if (!m_form->grab().save(file))
        throw std::runtime_error("cannot write " + file.toStdString());
}
