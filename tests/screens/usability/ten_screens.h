#pragma once
#include <QLineEdit>
#include <QTemporaryDir>
#include <functional>
#include <string>
#include <vector>

#include "support/screen_test.h"

/// All ten screens side by side, as they stand when the first sample has been worked: 5 segments, 4 yards, 3 beats.
class TenScreens : public ScreenTest {  // slow
protected:
    static constexpr QSize Usual = flow::OpeningSize;

    struct Step {
        flow::Screen* form;
        std::string import;   ///< "" where there is nothing to import
        std::string compute;  ///< "" on the start screen
    };

    /// Works the sample as the only Sr SE of its division, so that all screens stay.
    void workSample(const std::function<void(const Step&)>& before = {})
    {
        begin();
        type("txtT1(5)", "Sample Railway");
        type("txtT1(2)", "Sample Division");
        type("txtT1(3)", "1");
        type("txtT1(0)", "Sr SE Ambapur");
        dialogs.expectFile(sample("1-ambapur.mdb"));
        click("cmdFile");
        while (steps.size() < division::Steps.size()) {
            const QString form = begin().objectName();
            if (form == "frmT1") {
                type("txtT1(0)", "Sample Section");
                type("txtT1(2)", "Km 0 to 100");
                click("optBG");
            } else if (form == "frmSummary") {
                dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
            }
            if (before)
                before(steps.back());
            if (!steps.back().import.empty())
                click(steps.back().import);
            click(steps.back().compute);
        }
        click("cmdTotal");
    }

    /// As many rows as there can be: 16 segments, 12 yards, beats and locations, 9 gangs, 15 Sr SEs. Not computed.
    void openWithMostRows()
    {
        struct Count {
            const char* form;
            const char* box;
            const char* text;
        };
        static constexpr Count counts[] = {
            {"frmStart", "txtT1(3)", "15"}, {"frmT1", "txtNSeg", "16"}, {"frmY", "txtNYd", "12"},
            {"frmM1", "txtNB", "12"},       {"frmM1", "txtVL", "12"},   {"frmS2", "txtTB1", "8"},
            {"frmS2", "txtTB2", "9"},       {"frmS2", "txtTB4", "6"},
        };
        while (steps.size() < division::Steps.size()) {
            const QString form = begin().objectName();
            for (const Count& count : counts)
                if (form == count.form)
                    put(count.box, count.text);
            for (int i = 0; form == "frmT1" && i < 16; ++i)
                put("txtEqtkm(" + std::to_string(i) + ")", "10.5");
        }
        settle();
    }

    /// Opens each as it first appears, with the sample as its data file.
    void openEmpty()
    {
        begin();
        put("txtT1(1)", sample("1-ambapur.mdb"));
        while (steps.size() < division::Steps.size())
            begin();
    }

    void sized(QSize size)
    {
        for (const Step& step : steps)
            step.form->resize(size);
        for (int i = 0; i < 3; ++i)  // captions wrap, scroll bars come and go
            settle();
    }

    /// Opens the next screen.
    flow::Screen& begin()
    {
        flow::Screen& form = onNext();
        form.resize(Usual);
        settle();
        const division::Step& step = division::Steps.at(steps.size());
        steps.push_back({&form, step.import, step.compute});
        return form;
    }

    std::vector<Step> steps;  ///< one for each screen opened, in their order

private:
    /// As the program itself puts a text into a box, locked or not.
    void put(const std::string& box, const std::string& text)
    {
        dynamic_cast<QLineEdit&>(find(box)).setText(QString::fromStdString(text));
    }
};
