#include "division/replay_dialogs.h"

#include <QPrinter>

namespace division {

bool ReplayDialogs::askYesNo(QWidget&, const QString&, const QString&, bool)
{
    return false;
}

int ReplayDialogs::showCritical(QWidget&, const QString& title, const QString& text)
{
    errors += title + ": " + text;
    return Ok;
}

int ReplayDialogs::showMessage(QWidget&, const QString&, const QString&)
{
    return Ok;
}

QString ReplayDialogs::openFile(QWidget&, const QString&, const QString&, const QString&)
{
    return dataFile;
}

std::optional<flow::PrintChoice> ReplayDialogs::print(QWidget&, QPrinter& printer)
{
    if (printOut.isEmpty())
        return std::nullopt;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(printOut);
    return flow::PrintChoice{};
}

}  // namespace division
