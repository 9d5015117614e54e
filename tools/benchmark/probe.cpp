#include "probe.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QWidget>
#include <cstdio>
#include <stdexcept>

#include <sys/resource.h>

namespace probe {

namespace {

constexpr int PatienceMs = 5000;

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

void report(const QString& name, double value)
{
    std::printf("%s\t%.9g\n", name.toUtf8().constData(), value);
}

Memory memory()
{
    QFile file("/proc/self/smaps_rollup");
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no /proc/self/smaps_rollup");
    Memory found{0.0, 0.0};
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() < 2)
            continue;
        const double mib = words[1].toDouble() / 1024.0;
        if (words[0] == "Pss:")
            found.proportional = mib;
        else if (words[0] == "Private_Clean:" || words[0] == "Private_Dirty:")
            found.own += mib;
    }
    return found;
}

Usage usage()
{
    rusage used{};
    rusage readers{};
    getrusage(RUSAGE_SELF, &used);
    getrusage(RUSAGE_CHILDREN, &readers);
    return {.cpuSeconds =
                seconds(used.ru_utime) + seconds(used.ru_stime) + seconds(readers.ru_utime) + seconds(readers.ru_stime),
            .wakeUps = static_cast<double>(used.ru_nvcsw)};
}

Painting::Painting()
{
    qApp->installEventFilter(this);
}

bool Painting::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Paint:
        ++m_paints;
        ++m_events;
        break;
    case QEvent::UpdateRequest:
    case QEvent::LayoutRequest:
    case QEvent::Expose:
    case QEvent::Resize:
        ++m_events;
        break;
    default:
        break;
    }
    return false;
}

void Painting::settle(const QWidget& window)
{
    QElapsedTimer patience;
    patience.start();
    int before = -1;
    while (before != m_events || !window.testAttribute(Qt::WA_Mapped)) {
        if (patience.hasExpired(PatienceMs))
            throw std::runtime_error(window.objectName().toStdString() + " was never painted");
        before = m_events;
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

}  // namespace probe
