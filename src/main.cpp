#include <QApplication>

#include "compose.h"
#include "screens/flow/chain.h"
#include "screens/flow/end_requests.h"
#include "screens/flow/frmStart.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("crewmark");
    QApplication::setApplicationDisplayName("Crewmark");
    QApplication::setQuitOnLastWindowClosed(false);  // the chain knows when the last screen may go

    flow::DesktopDialogs dialogs;
    flow::Chain chain(dialogs);
    compose(chain);
    const flow::EndRequests endRequests(chain);
    chain.show<frmStart>();
    return QApplication::exec();
}
