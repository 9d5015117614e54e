#include "division/offscreen.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>

namespace division {

void silenceOffscreenRemarks()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
        if (!message.startsWith("This plugin does not support"))
            std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    });
}

}  // namespace division
