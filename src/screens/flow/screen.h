#pragma once
#include <QWidget>
#include <cstdint>

#include "figures/run_time_error.h"
#include "screens/controls/button.h"
#include "screens/controls/control_array.h"
#include "screens/controls/form_layout.h"
#include "screens/controls/text_box.h"

namespace flow {

class Chain;
struct SheetFacts;

/// What every screen has: its caption, the date box that the clock keeps, Print, and the guard its handlers run in.
class Screen : public QWidget {
public:
    /// The clock's tick: writes the date into the date box if it has changed.
    void Timer1_Timer(const QString& date);

    /// Whether closing the program would lose anything that stands on this screen.
    virtual bool holdsFigures() const { return true; }

    /// Once, when the screen has first been shown.
    virtual void onFirstShown() {}
    /// Each time it is brought back later.
    virtual void onShownAgain() {}

    /// Where the user starts on this screen.
    virtual QWidget* firstBox() = 0;

    controls::ControlArray<controls::TextBox> txtRly;
    controls::Button cmdPrint{"cmdPrint", "&Print"};

protected:
    /// `railwayBoxes`: the elements of txtRly that the screen has; element 2 is the date box.
    Screen(Chain& chain, const QString& name, const QString& caption, std::initializer_list<int> railwayBoxes = {2});

    /// Prints the form once for each copy asked for. An error ends it quietly.
    void cmdPrint_Click();
    /// Of the printed form.
    virtual SheetFacts sheetFacts() const;
    /// Behind the last copy.
    virtual void onPrinted() {}

    /// Runs a handler. A RunTimeError becomes a critical box under the screen's caption, and leaves everything as
    /// the handler left it; the box at fault is brought into view.
    template <class Handler>
    void guard(Handler&& handler)
    {
        try {
            handler();
        } catch (const figures::RunTimeError& error) {
            report(error);
        }
    }

    /// The box to go to after an error in the given row, if the screen has one.
    virtual QWidget* boxOf(const figures::RunTimeError&) { return nullptr; }

    /// Shows the user where to mend something.
    void revealBox(QWidget& box);

    /// Marks the button that the user is to press next, as long as it is enabled, and no other.
    void setDefaultButton(const QPushButton* button);
    /// Gives that button the focus as well: Enter goes on.
    void focusDefault(QPushButton& button);

    /// Ignored while a modal dialog is open: a delayed mnemonic or assistive click would re-enter a running handler.
    template <class Form>
    void onPress(controls::Button& button, void (Form::*handler)())
    {
        connect(&button, &QAbstractButton::clicked, this, [this, handler] {
            if (!dialogIsOpen())
                guard([&] { (static_cast<Form*>(this)->*handler)(); });
        });
    }

    /// For option buttons and check boxes. Never ignored: the choice has been made when the handler runs.
    template <class Form>
    void onChoice(QAbstractButton& button, void (Form::*handler)())
    {
        connect(&button, &QAbstractButton::clicked, this,
                [this, handler] { guard([&] { (static_cast<Form*>(this)->*handler)(); }); });
    }

    template <class Form>
    void onChange(controls::TextBox& box, void (Form::*handler)())
    {
        connect(&box, &QLineEdit::textChanged, this,
                [this, handler] { guard([&] { (static_cast<Form*>(this)->*handler)(); }); });
    }

    /// The date box with its label, at the right end of a header line.
    void addDate(QBoxLayout& line);

    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;

    Chain& chain;
    controls::FormLayout form;

private:
    static bool dialogIsOpen();
    void report(const figures::RunTimeError& error);
};

/// The tool tip that Print, Next and Compute share: what is printed or left behind is final.
extern const char* const LockTip;

}  // namespace flow
