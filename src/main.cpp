#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QSettings>
#include <QTemporaryDir>
#include <optional>

#include "compose.h"
#include "screens/flow/chain.h"
#include "screens/flow/end_requests.h"
#include "screens/flow/held_keys.h"
#include "start/frmStart.h"

namespace {

// Where the session has no folder for sockets, Qt makes one in /tmp and leaves it there. This one is deleted.
class RuntimeFolder {
public:
    RuntimeFolder()
    {
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_ours.emplace().path()));
    }

private:
    std::optional<QTemporaryDir> m_ours;
};

}  // namespace

int main(int argc, char* argv[])
{
    const RuntimeFolder runtimeFolder;
    QApplication application(argc, argv);
    QApplication::setApplicationName("crewmark");
    QApplication::setDesktopFileName("crewmark");  // whose windows these are, for the desktop
    QApplication::setWindowIcon(QIcon(":/crewmark.svg"));
    QApplication::setCursorFlashTime(0);             // a blinking cursor would repaint twice a second
    QApplication::setQuitOnLastWindowClosed(false);  // the chain knows when the last screen may go

    // Qt keeps no settings, or its file dialog would write a history into the home folder: /dev/null can hold no file.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");

    flow::DesktopDialogs dialogs;
    flow::Chain chain(dialogs);
    compose(chain);
    const flow::EndRequests endRequests(chain);
    const flow::HeldKeys heldKeys;
    chain.show<frmStart>();
    return QApplication::exec();
}
