// Light and dark desktops, and what is drawn for the program.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <cmath>
#include <set>

#include "screens/usability/ten_screens.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"

namespace {

double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// 1 for the same colour, 21 for black on white.
double contrast(const QColor& a, const QColor& b)
{
    const double one = luminance(a) + 0.05;
    const double other = luminance(b) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

class Themes : public TenScreens {  // slow
protected:
    ~Themes() override { QApplication::setPalette(m_theme); }

    static QPalette dark()
    {
        return {Qt::white,          QColor(60, 60, 60), QColor(80, 80, 80), Qt::black,
                QColor(40, 40, 40), Qt::white,          QColor(30, 30, 30)};
    }

    /// Text is read without effort from 4.5 on.
    void expectReadable(const QWidget& form)
    {
        int looked = 0;
        for (const QWidget* part : form.findChildren<QWidget*>()) {
            const auto* list = qobject_cast<const QComboBox*>(part->parentWidget());
            if (!part->isVisible() ||
                (!part->isEnabled() && !list))  // a locked list is to be read, a closed button not
                continue;
            const QPalette& own = part->palette();
            double seen = 0;
            if (qobject_cast<const QLineEdit*>(part)) {
                seen = contrast(own.color(QPalette::Text), own.color(QPalette::Base));
                EXPECT_GT(seen, 4.5) << (list ? list : part)->objectName().toStdString();
            } else if (qobject_cast<const QAbstractButton*>(part)) {
                seen = contrast(own.color(QPalette::ButtonText), own.color(QPalette::Button));
                EXPECT_GT(seen, 4.5) << part->objectName().toStdString();
            } else if (qobject_cast<const QLabel*>(part)) {
                seen = contrast(own.color(QPalette::WindowText), own.color(QPalette::Window));
                EXPECT_GT(seen, 4.5) << static_cast<const QLabel*>(part)->text().toStdString();
            }
            looked += seen > 0;
        }
        EXPECT_GT(looked, 10);
    }

private:
    QPalette m_theme = QApplication::palette();
};

TEST_F(Themes, EveryTextOfEveryScreenIsReadableInALightThemeAndInADarkOne)
{
    workSample();
    for (const QPalette& theme : {QApplication::palette(), dark()}) {
        QApplication::setPalette(theme);
        settle();
        const bool isDark = luminance(theme.color(QPalette::Base)) < 0.5;
        for (const Step& step : steps) {
            SCOPED_TRACE(step.form->objectName().toStdString() + (isDark ? ", dark" : ", light"));
            expectReadable(*step.form);
            EXPECT_EQ(luminance(step.form->palette().color(QPalette::Window)) < 0.5, isDark) << "does not follow";
        }
    }
}

TEST_F(Themes, AShortageIsReadOnEveryFill)
{
    auto& form = on<frmSummary>();
    form.txtEx(0).setText("-7");
    const auto seen = [&] {
        const QPalette& own = form.txtEx(0).palette();
        EXPECT_GT(own.color(QPalette::Text).hsvSaturation(), 100) << "a red is no grey";
        return contrast(own.color(QPalette::Text), own.color(QPalette::Base));
    };
    for (const bool lockedFirst : {false, true}) {
        for (const QPalette& theme : {QApplication::palette(), dark(), QApplication::palette()}) {
            QApplication::setPalette(theme);
            for (const bool locked : {lockedFirst, !lockedFirst}) {
                form.txtEx(0).setLocked(locked);
                EXPECT_GE(seen(), 4.5) << (locked ? "pale" : "paper") << " in a theme with base "
                                       << theme.color(QPalette::Base).name().toStdString();
            }
        }
    }
    form.txtEx(0).setText("7");
    EXPECT_EQ(form.txtEx(0).palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
}

TEST_F(Themes, TheStartScreensDrawingAndTheProgramsIconAreThere)
{
    const auto coloursOf = [](const QImage& image) {
        std::set<QRgb> colours;
        for (int y = 0; y < image.height(); y += 4)
            for (int x = 0; x < image.width(); x += 4)
                colours.insert(image.pixel(x, y));
        return colours.size();
    };
    on<frmStart>();
    EXPECT_GT(coloursOf(find("Image1").grab().toImage()), 10U);
    for (const int size : {16, 32, 64, 256}) {
        const QImage icon = QIcon(":/crewmark.svg").pixmap(size).toImage();
        EXPECT_EQ(icon.size(), QSize(size, size));
        EXPECT_GT(coloursOf(icon), 2U) << size;
    }
}

}  // namespace
