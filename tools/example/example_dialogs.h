#pragma once
#include "screens/flow/dialogs.h"

/// Answers the program's boxes as the worked example needs them: the next data file, a print-out into a PDF file.
class ExampleDialogs : public flow::Dialogs {
public:
    QString nextFile;      ///< what the file dialog will be answered with
    QString nextPrintOut;  ///< where the print dialog will print to
    QString trouble;       ///< the last critical box, which no example should see

    bool askYesNo(QWidget& parent, const QString& title, const QString& prompt, bool defaultYes) override;
    int showCritical(QWidget& parent, const QString& title, const QString& text) override;
    int showMessage(QWidget& parent, const QString& title, const QString& text) override;
    QString openFile(QWidget& parent, const QString& title, const QString& filter, const QString& folder) override;
    std::optional<flow::PrintChoice> print(QWidget& parent, QPrinter& printer) override;
};
