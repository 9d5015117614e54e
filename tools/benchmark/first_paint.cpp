// Ends the program that it is loaded into as soon as its first window is painted, and prints when that was
// (CLOCK_MONOTONIC, nanoseconds).
#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <unistd.h>

namespace {

class FirstPaint : public QObject {
public:
    FirstPaint() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        // Posted, so that it comes when the paint that is about to begin has been flushed to the window.
        if (event->type() == QEvent::Paint && !m_seen) {
            m_seen = true;
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        }
        return false;
    }

    void customEvent(QEvent*) override
    {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        std::printf("%lld\n", static_cast<long long>(now.tv_sec) * 1'000'000'000 + now.tv_nsec);
        std::fflush(stdout);
        _exit(0);
    }

private:
    bool m_seen = false;
};

}  // namespace

class FirstPaintPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first_paint.json")

public:
    QObject* create(const QString&, const QString&) override { return new FirstPaint; }
};

#include "first_paint.moc"
