#pragma once
#include <QWidget>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "compose.h"
#include "division/steps.h"
#include "screens/flow/chain.h"
#include "screens/flow/placement.h"
#include "support/fake_dialogs.h"

/// A test that works the real screens with keys and clicks, offscreen. Controls are found by their object names in
/// the screen last opened with `on`.
class ScreenTest : public testing::Test {
protected:
    ScreenTest() { compose(chain); }
    ~ScreenTest() override;

    /// Shows the screen and works on it from here on.
    template <class Form>
    Form& on()
    {
        auto& form = chain.show<Form>();
        m_form = &form;
        settle();
        return form;
    }

    /// Works from here on on the screen, which must be visible already.
    template <class Form>
    Form& nowOn()
    {
        EXPECT_TRUE(chain.isLoaded<Form>()) << "the screen is not loaded";
        auto& form = chain.get<Form>();
        workOn(form);
        return form;
    }
    /// The same by the form's name.
    flow::Screen& nowOn(const std::string& form);

    /// Shows the first screen, then the one behind that worked on, and works on it.
    flow::Screen& onNext();
    /// Shows all ten in their order.
    std::vector<flow::Screen*> onAll();

    /// Replaces a box's text by keys, as a user does.
    void type(const std::string& name, const std::string& text);
    void click(const std::string& name);
    void key(const std::string& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    std::string text(const std::string& name);
    bool shown(const std::string& name);  ///< not hidden itself
    bool enabled(const std::string& name);
    bool locked(const std::string& name);  ///< read-only, or a disabled combo box
    bool pale(const std::string& name);
    std::string toolTip(const std::string& name);
    std::string focus();                    ///< object name of the box that has it
    bool says(const std::string& caption);  ///< a label has this text, to the letter

    /// The question of Next on a form that was not printed: Yes stays to print it, No moves on.
    void expectPrintQuestion(bool yes);

    /// Every element of an array, first to last, as "a|b|c".
    std::string texts(const std::string& array, int first, int last);
    /// "1110" for an array of which the first three are not hidden.
    std::string shownOf(const std::string& array, int first, int last);

    /// Puts records into a grid as if the data file held them; the fields have no names.
    void putRecords(const std::string& grid, const std::vector<std::vector<std::string>>& records);

    QWidget& find(const std::string& name);
    static void settle();
    static std::string sample(const std::string& name);
    static std::string fixture(const std::string& name);

    FakeDialogs dialogs;
    flow::Chain chain{dialogs};

private:
    void workOn(flow::Screen& form);

    flow::Screen* m_form = nullptr;
};

/// Pages of a PDF file.
int pagesOf(const std::string& pdf);
