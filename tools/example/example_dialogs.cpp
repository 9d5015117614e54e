#include "example_dialogs.h"

#include <QPrinter>

bool ExampleDialogs::askYesNo(QWidget&, const QString&, const QString&, bool)
{
    return false;  // nobody forgot to print here: the example may be told to save the paper
}

int ExampleDialogs::showCritical(QWidget&, const QString& title, const QString& text)
{
    trouble = title + ": " + text;
    return Ok;
}

int ExampleDialogs::showMessage(QWidget&, const QString&, const QString&)
{
    return Ok;
}

QString ExampleDialogs::openFile(QWidget&, const QString&, const QString&, const QString&)
{
    return nextFile;
}

std::optional<flow::PrintChoice> ExampleDialogs::print(QWidget&, QPrinter& printer)
{
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(nextPrintOut);
    return flow::PrintChoice{};
}
