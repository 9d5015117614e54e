#include "monkey/random_dialogs.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QPrinter>
#include <array>
#include <csignal>

namespace monkey {

namespace {

QStringList dataFilesOf(const QString& folder)
{
    QStringList paths;
    for (const QString& name : QDir(folder).entryList({"*.mdb", "*.accdb"}, QDir::Files, QDir::Name))
        paths += folder + "/" + name;
    return paths;
}

// A box may stand on another box.
flow::Screen* screenUnder(QWidget& parent)
{
    QWidget* screen = &parent;
    while (screen->parentWidget())
        screen = screen->parentWidget();
    return screen->isVisible() ? dynamic_cast<flow::Screen*>(screen) : nullptr;
}

}  // namespace

RandomDialogs::RandomDialogs(Chance& chance)
    : m_chance(chance),
      m_samples(dataFilesOf(CREWMARK_SAMPLES)),
      m_fixtures(dataFilesOf(CREWMARK_TEST_DATA)),
      m_copy(m_folder.filePath("नाम 'with' \"quotes\"\nand lines.mdb"))
{
    tamperWithFile();
}

void RandomDialogs::tamperWithFile()
{
    QFile::remove(m_copy);
    if (m_chance.oneIn(5))
        return;
    QFile::copy(m_chance.of(m_samples), m_copy);
    QFile::setPermissions(m_copy, QFile::ReadOwner | QFile::WriteOwner);
    if (m_chance.oneIn(2))
        QFile::resize(m_copy, m_chance.below(1 << 20));
}

void RandomDialogs::whileOpen(QWidget& parent)
{
    QDialog box(&parent);
    box.setModal(true);
    box.show();
    if (m_chance.oneIn(40))
        std::raise(SIGTERM);
    QCoreApplication::processEvents();
}

bool RandomDialogs::askYesNo(QWidget& parent, const QString& title, const QString& prompt, bool)
{
    const bool yes = m_chance.oneIn(prompt.startsWith("End") ? 12 : 4);
    given.push_back(
        {.kind = Kind::YesNo, .screen = screenUnder(parent), .title = title, .text = prompt, .yes = yes, .path = {}});
    whileOpen(parent);
    return yes;
}

int RandomDialogs::showCritical(QWidget& parent, const QString& title, const QString& text)
{
    given.push_back({.kind = Kind::Critical, .screen = screenUnder(parent), .title = title, .text = text, .path = {}});
    whileOpen(parent);
    return Ok;
}

int RandomDialogs::showMessage(QWidget& parent, const QString& title, const QString& text)
{
    given.push_back({.kind = Kind::Message, .screen = screenUnder(parent), .title = title, .text = text, .path = {}});
    whileOpen(parent);
    return Ok;
}

QString RandomDialogs::dataFile()
{
    switch (m_chance.below(16)) {
    case 0:
        return {};
    case 1:
        return m_folder.path();
    case 2:
        return m_chance.oneIn(2) ? "/nowhere/at all.mdb" : "/" + QString("very long/").repeated(2'000);
    case 3:
        return m_chance.oneIn(2) ? "/dev/null" : "/dev/zero";
    case 4:
    case 5:
        return m_chance.of(m_fixtures);
    case 6:
    case 7:
        return m_copy;
    default:
        return m_chance.of(m_samples);
    }
}

QString RandomDialogs::openFile(QWidget& parent, const QString& title, const QString& filter, const QString&)
{
    QString path = dataFile();
    given.push_back({.kind = Kind::File, .screen = screenUnder(parent), .title = title, .text = filter, .path = path});
    whileOpen(parent);
    return path;
}

std::optional<flow::PrintChoice> RandomDialogs::print(QWidget& parent, QPrinter& printer)
{
    Given box{.kind = Kind::Print, .screen = screenUnder(parent), .title = {}, .text = {}, .path = {}};
    std::optional<flow::PrintChoice> choice;
    if (!m_chance.oneIn(5)) {
        choice = flow::PrintChoice{.firstPage = m_chance.below(3), .lastPage = m_chance.below(3)};
        const bool tooMany = m_chance.oneIn(20);
        choice->copies = tooMany ? 70'000 : m_chance.from(m_chance.oneIn(10) ? -1 : 0, 3);
        const bool lost = m_chance.oneIn(4);
        const std::array bad = {QString("/nowhere/print.pdf"), QString("/dev/full"), m_folder.path(),
                                "/" + QString("x").repeated(5'000)};
        m_printOuts = (m_printOuts + 1) % 10;
        const QString good = m_folder.filePath(QString("print-%1.pdf").arg(m_printOuts));
        QFile::remove(good);
        box.path = lost ? m_chance.of(bad) : good;
        box.printOut = tooMany               ? PrintOut::Lost
                       : choice->copies <= 0 ? PrintOut::None
                       : lost                ? PrintOut::Lost
                                             : PrintOut::Good;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(box.path);
    }
    given.push_back(box);
    whileOpen(parent);
    return choice;
}

}  // namespace monkey
