// After a Compute its results are in view, also where the desktop's scaling leaves little room. Run again under other
// scale factors: see CMakeLists.txt.

#include <QScrollArea>
#include <map>

#include "screens/controls/text_box.h"
#include "screens/usability/ten_screens.h"

namespace {

using Texts = std::map<const controls::TextBox*, QString>;

/// What a Compute can write to.
Texts lockedTexts(const QWidget& form)
{
    Texts texts;
    for (const auto* box : form.findChildren<const controls::TextBox*>())
        if (box->isLocked())
            texts[box] = box->text();
    return texts;
}

bool inView(const QWidget& box)
{
    return box.visibleRegion() == QRegion(box.rect());
}

class ResultsInView : public TenScreens, public testing::WithParamInterface<double> {
protected:
    void expectResultsInView(const Step& step)
    {
        int results = 0;
        std::string hidden;
        for (const auto& [box, text] : m_before)
            if (box->text() != text) {
                ++results;
                if (!inView(*box))
                    hidden += " " + box->objectName().toStdString();
            }
        EXPECT_GT(results, 0) << step.form->objectName().toStdString();
        EXPECT_EQ(hidden, "") << step.form->objectName().toStdString();
    }

    Texts m_before;
};

TEST_P(ResultsInView, OfASmallDesktop)
{
    const QSize window = windowOn({1366, 768}, GetParam());
    const auto resize = [&](const Step& step) {
        if (steps.size() > 2)
            expectResultsInView(steps[steps.size() - 2]);
        step.form->resize(window);
        for (int i = 0; i < 3; ++i)
            settle();
    };
    workSample(resize, [&](const Step& step) { m_before = lockedTexts(*step.form); });
    EXPECT_EQ(steps.size(), 10U);
    expectResultsInView(steps.back());
}

INSTANTIATE_TEST_SUITE_P(Percent, ResultsInView, testing::Values(1.0, 1.25, 1.5),
                         [](const auto& scale) { return std::to_string(static_cast<int>(scale.param * 100)); });

}  // namespace
