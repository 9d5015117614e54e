#pragma once
#include <QStringList>

#include "screens/flow/dialogs.h"

namespace division {

/// Answers every dialog without asking: No to the question whether to print and to any other, OK to messages, and a
/// data file or a PDF file as it has been told.
class ReplayDialogs : public flow::Dialogs {
public:
    QString dataFile;    ///< the answer to Browse; "" cancels it
    QString printOut;    ///< the PDF file that Print writes; "" cancels it
    QStringList errors;  ///< of the critical boxes so far, "title: text"

    bool askYesNo(QWidget& parent, const QString& title, const QString& prompt, bool defaultYes) override;
    int showCritical(QWidget& parent, const QString& title, const QString& text) override;
    int showMessage(QWidget& parent, const QString& title, const QString& text) override;
    QString openFile(QWidget& parent, const QString& title, const QString& filter, const QString& folder) override;
    std::optional<flow::PrintChoice> print(QWidget& parent, QPrinter& printer) override;
};

}  // namespace division
