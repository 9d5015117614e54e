#pragma once
#include <QObject>
#include <csignal>
#include <vector>

class QSessionManager;

namespace flow {

class Chain;

/// The ways in which the system asks the program to end: the signals SIGTERM, SIGINT and SIGHUP, and the end of the
/// desktop's session. Each asks the user as the X on the last screen does. A signal that was ignored when the program
/// was started (nohup) stays so.
class EndRequests : public QObject {
public:
    explicit EndRequests(Chain& chain);
    ~EndRequests() override;

protected:
    /// The desktop's own way to quit a program.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void catchSignals();
    void sessionEnds(QSessionManager& session);

    struct Caught {
        int number;
        struct sigaction before;
    };

    Chain& m_chain;
    std::vector<Caught> m_caught;
};

}  // namespace flow
