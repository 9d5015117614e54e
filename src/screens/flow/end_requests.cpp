#include "screens/flow/end_requests.h"

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <atomic>
#include <cerrno>
#include <cstdint>

#include <sys/eventfd.h>
#include <unistd.h>

#include "screens/flow/chain.h"

namespace flow {

namespace {

// How the signal handler, which may do next to nothing, tells the event loop.
std::atomic<int> bell = -1;

void ring(int)
{
    const int before = errno;
    const std::uint64_t once = 1;
    [[maybe_unused]] const ssize_t told = write(bell, &once, sizeof once);
    errno = before;
}

}  // namespace

EndRequests::EndRequests(Chain& chain) : m_chain(chain)
{
    catchSignals();
    connect(qApp, &QGuiApplication::commitDataRequest, this, &EndRequests::sessionEnds, Qt::DirectConnection);
    connect(
        qApp, &QGuiApplication::saveStateRequest, this,
        [](QSessionManager& session) {
            session.setRestartHint(QSessionManager::RestartNever);  // it would come back without the figures
        },
        Qt::DirectConnection);
    qApp->installEventFilter(this);
}

EndRequests::~EndRequests()
{
    for (const Caught& caught : m_caught)
        sigaction(caught.number, &caught.before, nullptr);
    if (bell >= 0)
        close(bell.exchange(-1));
}

void EndRequests::catchSignals()
{
    bell = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (bell < 0)
        return;
    auto* notifier = new QSocketNotifier(bell, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::uint64_t rings = 0;
        // While the question stands, further signals add nothing: a session that ends sends several at once.
        if (read(bell, &rings, sizeof rings) > 0)
            m_chain.mayEnd();
    });

    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        Caught caught{.number = number, .before = {}};
        sigaction(number, nullptr, &caught.before);
        if (caught.before.sa_handler == SIG_IGN)
            continue;
        struct sigaction action = {};
        action.sa_handler = ring;
        action.sa_flags = SA_RESTART;
        sigemptyset(&action.sa_mask);
        sigaction(number, &action, nullptr);
        m_caught.push_back(caught);
    }
}

void EndRequests::sessionEnds(QSessionManager& session)
{
    if (!session.allowsInteraction())
        return;  // the desktop takes no question now; it is asked when the program itself is told to quit
    if (m_chain.mayEnd())
        session.release();
    else
        session.cancel();
}

bool EndRequests::eventFilter(QObject* watched, QEvent* event)
{
    // Qt would close the screens one by one, and a No would come when all but one are gone.
    if (watched != qApp || event->type() != QEvent::Quit)
        return QObject::eventFilter(watched, event);
    m_chain.mayEnd();
    return true;
}

}  // namespace flow
