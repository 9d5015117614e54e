#include "program/sandbox_home.h"

#include <QDir>
#include <QDirIterator>

SandboxHome::SandboxHome()
{
    for (const QString& room : {home(), temporary(), work(), tray(), sockets()})
        QDir().mkpath(room);
    QFile::setPermissions(sockets(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QList<QPair<QByteArray, QByteArray>> SandboxHome::environment() const
{
    return {{"HOME", home().toUtf8()},
            {"TMPDIR", temporary().toUtf8()},
            {"XDG_CONFIG_HOME", ""},
            {"XDG_CACHE_HOME", ""},
            {"XDG_DATA_HOME", ""},
            {"XDG_STATE_HOME", ""},
            {"XDG_RUNTIME_DIR", sockets().toUtf8()}};
}

std::string SandboxHome::contents() const
{
    QStringList found;
    QDirIterator all(m_place.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext())
        found += QDir(m_place.path()).relativeFilePath(all.next());
    for (const char* room : {"home", "tmp", "work", "tray", "sockets"})
        found.removeOne(room);
    found.sort();
    return found.join(' ').toStdString();
}
