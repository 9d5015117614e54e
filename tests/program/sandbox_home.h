#pragma once
#include <QTemporaryDir>
#include <string>

/// A house for one run of the program, with all the places where programs leave things: the home folder, /tmp, the
/// working folder, the session's own for sockets; and a tray for what the user prints.
class SandboxHome {
public:
    SandboxHome();

    QString home() const { return m_place.filePath("home"); }
    QString temporary() const { return m_place.filePath("tmp"); }
    QString work() const { return m_place.filePath("work"); }
    QString tray() const { return m_place.filePath("tray"); }
    QString sockets() const { return m_place.filePath("sockets"); }

    /// Names and values of the environment by which programs find these places.
    QList<QPair<QByteArray, QByteArray>> environment() const;

    /// Every file and folder that lies there, as "home/.config/...".
    std::string contents() const;

private:
    QTemporaryDir m_place;
};
