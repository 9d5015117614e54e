#pragma once
#include <QDate>
#include <QString>
#include <QTimer>
#include <functional>

namespace flow {

/// The one clock of all screens: ticks every 100 ms and tells the date in the system's short form.
class Clock {
public:
    explicit Clock(std::function<void(const QString& date)> tick);

    /// Ticks at once, then goes on ticking.
    void start();
    void stop() { m_timer.stop(); }

private:
    void tick();

    std::function<void(const QString&)> m_tick;
    QTimer m_timer;
    QDate m_day;
    QString m_date;  // m_day in the system's short form
};

}  // namespace flow
