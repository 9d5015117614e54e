#pragma once
#include <QDateTime>
#include <QString>
#include <optional>

class QPrinter;
class QWidget;

namespace flow {

/// What the print dialog was left with.
struct PrintChoice {
    int firstPage = 0;
    int lastPage = 0;
    int copies = 1;
    QDateTime at = QDateTime::currentDateTime();  ///< the sheet is dated with it
};

/// Every dialog that the program opens. The tests' one holds the expected answers and fails on a dialog that nobody
/// expected.
class Dialogs {
public:
    static constexpr int Ok = 1;  ///< the number of the OK button

    virtual ~Dialogs() = default;

    /// Yes and No; true for Yes, which is the default unless the question is about losing something.
    virtual bool askYesNo(QWidget& parent, const QString& title, const QString& prompt, bool defaultYes) = 0;
    /// The critical icon and OK; returns the button pressed.
    virtual int showCritical(QWidget& parent, const QString& title, const QString& text) = 0;
    /// OK only; returns the button pressed.
    virtual int showMessage(QWidget& parent, const QString& title, const QString& text) = 0;
    /// Full path of the chosen file, "" if cancelled. `filter` is "name(pattern)|pattern".
    virtual QString openFile(QWidget& parent, const QString& title, const QString& filter, const QString& folder) = 0;
    /// Sets `printer` up; nothing if cancelled. For a file it offers the name printer.docName() + ".pdf".
    virtual std::optional<PrintChoice> print(QWidget& parent, QPrinter& printer) = 0;
};

/// The dialogs of the desktop.
class DesktopDialogs : public Dialogs {
public:
    bool askYesNo(QWidget& parent, const QString& title, const QString& prompt, bool defaultYes) override;
    int showCritical(QWidget& parent, const QString& title, const QString& text) override;
    int showMessage(QWidget& parent, const QString& title, const QString& text) override;
    QString openFile(QWidget& parent, const QString& title, const QString& filter, const QString& folder) override;
    /// A file is offered in the folder of the last print-out of this run.
    std::optional<PrintChoice> print(QWidget& parent, QPrinter& printer) override;

private:
    QString m_printFolder;
};

}  // namespace flow
