#pragma once
#include <QString>

#include "division/act.h"
#include "division/replay_dialogs.h"
#include "division/steps.h"
#include "probe.h"
#include "screens/flow/chain.h"

/// Goes through the screens of a division as a user does and reports what the user waits for at each of them [ms]:
/// "next frmT1", "import frmT1", "compute frmT1", "print frmT1", and "paper frmT1" [byte], the size of the print-out.
/// "cpu next frmT1" is what the processor worked for it, "compute handler of frmT1" the time until the results stand in
/// the boxes.
class Walk {
public:
    /// `samples` holds the data files; `scratch` takes the print-outs.
    Walk(const QString& samples, const QString& scratch);

    /// Through all ten screens of one Sr SE, to the summary with its figures transferred.
    void oneSrSe(int index);
    /// The summary's Compute: the Sr SE's screens are unloaded and the start screen comes back.
    void sumUp();

    /// The start screen, and Proceed with this data file.
    void proceed(int index, const QString& file);
    /// Import and Compute of the track screen.
    void track();

    void setReporting(bool reporting) { m_reporting = reporting; }
    flow::Chain& chain() { return m_chain; }
    probe::Painting& painting() { return m_painting; }

private:
    void goTo(const division::Step& step, const char* button);
    void work(const division::Step& step);
    void perform(const division::Act& act);
    void press(const char* button);
    void timed(const QString& figure, const char* button);
    void print();
    void report(const QString& figure, double value) const;

    QString m_samples;
    QString m_scratch;
    division::ReplayDialogs m_dialogs;
    flow::Chain m_chain{m_dialogs};
    probe::Painting m_painting;
    flow::Screen* m_form = nullptr;
    bool m_reporting = true;
};
