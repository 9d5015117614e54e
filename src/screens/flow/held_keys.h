#pragma once
#include <QObject>

class QKeyEvent;

namespace flow {

/// Lets no key held down press more than one button, on any screen and in any dialog: each button leads to the next, so
/// that Enter held would compute, print to a file, go on, and do the same on the next screen.
///
/// A key's repeats come as releases and presses. Qt knows a repeat only if it has received both together, which under X
/// it has not on a busy machine; their times, given by the X server, are the same all the same. So a press is a repeat
/// if Qt says so or if it follows its key's release faster than a finger can.
class HeldKeys : public QObject {
public:
    HeldKeys();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isRepeat(const QKeyEvent& press) const;

    // The last key released; a repeat follows its own release alone.
    quint32 m_key = 0;
    quint64 m_at = 0;  ///< [ms], as the events give it; 0: never
};

}  // namespace flow
