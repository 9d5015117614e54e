#pragma once
#include <QObject>

class QWidget;

/// What a process can tell of itself, for the rounds of the benchmark.
namespace probe {

/// Prints one figure for crewmark-bench: a line "name<Tab>value".
void report(const QString& name, double value);

/// Memory of this process [MiB]: its own, and its own with its share of what it has in common with others.
struct Memory {
    double own;
    double proportional;
};
Memory memory();

/// What the process has used since it was started, all its threads together.
struct Usage {
    double cpuSeconds;  ///< with the readers that it has started and that have ended
    double wakeUps;     ///< times that it gave up the processor and was woken again
};
Usage usage();

/// Sees every event of the application.
class Painting : public QObject {
public:
    Painting();

    /// Runs the event loop until the window has been painted and there is nothing left to lay out or to paint.
    void settle(const QWidget& window);
    int paints() const { return m_paints; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int m_paints = 0;
    int m_events = 0;  // that lead to a paint
};

}  // namespace probe
