#pragma once
#include <QDateTime>
#include <QString>

#include "screens/controls/form_layout.h"

class QPrinter;
class QWidget;

namespace flow {

/// What tells one sheet from another, apart from the form on it. What is blank is left out.
struct SheetFacts {
    QString name;  ///< see sheetName

    // In the bottom margin:
    QString railway;
    QString division;
    QString srSe;      ///< index and name
    QString dataFile;  ///< its path; the sheet bears the file's name alone
    QDateTime printedAt;
};

/// The name that the print dialog offers for a file, without its ending: "1 Sr SE Ambapur - Entering Track Data" of the
/// subject "1 Sr SE Ambapur". Characters that a file name cannot hold, on whatever system it is copied to, become '-';
/// a long subject is cut, so that no name is too long for the disk.
QString sheetName(const QString& subject, const QString& caption);

/// Prints the form once for each copy, one sheet each: all its parts one under another, whole, the same whatever the
/// size of its window, scaled to fit; landscape where wider than tall, black on white whatever the theme. The facts
/// stand in the bottom margin, where they take no room from the form.
/// Throws std::runtime_error if the printer or its file gives out. With no copies, nothing is printed.
void printForm(QWidget& form, const QList<controls::FormLayout::Part>& parts, const SheetFacts& facts,
               QPrinter& printer, int copies);

}  // namespace flow
