#pragma once
#include <QTemporaryDir>
#include <functional>
#include <vector>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

/// All ten screens side by side, as they stand when the first sample has been worked: 5 segments, 4 yards, 3 beats.
class TenScreens : public ScreenTest {  // slow
protected:
    /// The size at which a screen opens on a desktop of 1366x768.
    static constexpr QSize Usual{1340, 690};

    struct Step {
        flow::Screen* form;
        std::string import;   ///< "" where there is nothing to import
        std::string compute;  ///< "" on the start screen
    };

    /// Works the sample as the only Sr SE of its division, so that all screens stay.
    void workSample(const std::function<void(const Step&)>& before = {})
    {
        begin<frmStart>("", "");
        type("txtT1(5)", "Sample Railway");
        type("txtT1(2)", "Sample Division");
        type("txtT1(3)", "1");
        type("txtT1(0)", "Sr SE Ambapur");
        dialogs.expectFile(sample("1-ambapur.mdb"));
        click("cmdFile");

        begin<frmT1>("cmdCopy", "cmdCompute");
        type("txtT1(0)", "Sample Section");
        type("txtT1(2)", "Km 0 to 100");
        click("optBG");
        work(before);
        begin<frmT2>("cmdCopy", "cmdCompute");
        work(before);
        begin<frmT4>("", "cmdCompute");
        work(before);
        begin<frmY>("cmdYdata", "cmdCOMPUTE");
        work(before);
        begin<frmM1>("cmdData", "cmdCompute");
        work(before);
        begin<frmM2>("cmdData", "cmdCompute");
        work(before);
        begin<frmS1>("cmdData", "cmdCompute");
        work(before);
        begin<frmS2>("cmdData", "cmdCompute");
        work(before);
        begin<frmSummary>("cmdTransfer", "cmdCompute");
        dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
        work(before);
        click("cmdTotal");
    }

    /// As many rows as there can be: 16 segments, 12 yards, beats and locations, 9 gangs, 15 Sr SEs. Not computed.
    void openWithMostRows()
    {
        begin<frmStart>("", "").txtT1(3).setText("15");
        auto& t1 = begin<frmT1>("cmdCopy", "cmdCompute");
        t1.txtNSeg.setText("16");
        for (int i = 0; i < frmT1::MaxSegments; ++i)
            t1.txtEqtkm(i).setText("10.5");
        begin<frmT2>("cmdCopy", "cmdCompute");
        begin<frmT4>("", "cmdCompute");
        begin<frmY>("cmdYdata", "cmdCOMPUTE").txtNYd.setText("12");
        auto& m1 = begin<frmM1>("cmdData", "cmdCompute");
        m1.txtNB.setText("12");
        m1.txtVL.setText("12");
        begin<frmM2>("cmdData", "cmdCompute");
        begin<frmS1>("cmdData", "cmdCompute");
        auto& s2 = begin<frmS2>("cmdData", "cmdCompute");
        s2.txtTB1.setText("8");
        s2.txtTB2.setText("9");
        s2.txtTB4.setText("6");
        begin<frmSummary>("cmdTransfer", "cmdCompute");
        settle();
    }

    /// Opens each as it first appears, with the sample as its data file.
    void openEmpty()
    {
        begin<frmStart>("", "").txtT1(1).setText(QString::fromStdString(sample("1-ambapur.mdb")));
        begin<frmT1>("cmdCopy", "cmdCompute");
        begin<frmT2>("cmdCopy", "cmdCompute");
        begin<frmT4>("", "cmdCompute");
        begin<frmY>("cmdYdata", "cmdCOMPUTE");
        begin<frmM1>("cmdData", "cmdCompute");
        begin<frmM2>("cmdData", "cmdCompute");
        begin<frmS1>("cmdData", "cmdCompute");
        begin<frmS2>("cmdData", "cmdCompute");
        begin<frmSummary>("cmdTransfer", "cmdCompute");
    }

    void sized(QSize size)
    {
        for (const Step& step : steps)
            step.form->resize(size);
        for (int i = 0; i < 3; ++i)  // captions wrap, scroll bars come and go
            settle();
    }

    template <class Form>
    Form& begin(const std::string& import, const std::string& compute)
    {
        auto& form = on<Form>();
        form.resize(Usual);
        settle();
        steps.push_back({&form, import, compute});
        return form;
    }

    std::vector<Step> steps;  ///< one for each screen opened, in their order

private:
    void work(const std::function<void(const Step&)>& before)
    {
        if (before)
            before(steps.back());
        if (!steps.back().import.empty())
            click(steps.back().import);
        click(steps.back().compute);
    }
};
