#include "screens/flow/clock.h"

#include <QLocale>
#include <utility>

namespace flow {

namespace {
constexpr int TickMs = 100;
}

Clock::Clock(std::function<void(const QString&)> tick) : m_tick(std::move(tick))
{
    m_timer.setInterval(TickMs);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { this->tick(); });
}

void Clock::start()
{
    m_timer.start();
    tick();
}

void Clock::tick()
{
    // Formatting a date takes longer than all the rest of a tick: once a day.
    if (const QDate today = QDate::currentDate(); today != m_day) {
        m_day = today;
        m_date = QLocale::system().toString(today, QLocale::ShortFormat);
    }
    m_tick(m_date);
}

}  // namespace flow
