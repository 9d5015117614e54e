#include <QApplication>
#include <QIcon>

#include "compose.h"
#include "screens/flow/chain.h"
#include "screens/flow/end_requests.h"
#include "screens/flow/frmStart.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("crewmark");
    QApplication::setDesktopFileName("crewmark");  // whose windows these are, for the desktop
    Q_INIT_RESOURCE(drawings);
    QApplication::setWindowIcon(QIcon(":/crewmark.svg"));
    QApplication::setCursorFlashTime(0);  // a blinking cursor would wake the machine, and paint, twice a second
    QApplication::setQuitOnLastWindowClosed(false);  // the chain knows when the last screen may go

    flow::DesktopDialogs dialogs;
    flow::Chain chain(dialogs);
    compose(chain);
    const flow::EndRequests endRequests(chain);
    chain.show<frmStart>();
    return QApplication::exec();
}
