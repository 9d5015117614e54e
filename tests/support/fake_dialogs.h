#pragma once
#include <deque>
#include <string>
#include <vector>

#include "screens/flow/dialogs.h"

/// Holds the boxes that a test expects and their answers; a box nobody expected fails the test, and so does one that
/// was expected and did not come.
class FakeDialogs : public flow::Dialogs {
public:
    static inline const QDateTime PrintedAt{QDate(2026, 11, 21), QTime(14, 5)};

    ~FakeDialogs() override;

    void expectYesNo(const std::string& title, const std::string& prompt, bool answer);
    void expectCritical(const std::string& title, const std::string& text);
    /// A critical box whose text holds `part`.
    void expectCriticalWith(const std::string& title, const std::string& part);
    void expectMessage(const std::string& title, const std::string& text);
    void expectFile(const std::string& path);
    /// The print dialog, left with `choice` at PrintedAt; the print-out goes to the PDF file `path`.
    void expectPrint(const flow::PrintChoice& choice, const std::string& path);
    void expectPrintCancelled();

    /// Expected boxes that have not come.
    std::size_t open() const { return m_expected.size(); }
    std::string lastFolder() const { return m_lastFolder; }
    std::string lastSheet() const { return m_lastSheet; }  ///< the name that the print dialog offers for a file

    bool askYesNo(QWidget& parent, const QString& title, const QString& prompt, bool defaultYes) override;
    int showCritical(QWidget& parent, const QString& title, const QString& text) override;
    int showMessage(QWidget& parent, const QString& title, const QString& text) override;
    QString openFile(QWidget& parent, const QString& title, const QString& filter, const QString& folder) override;
    std::optional<flow::PrintChoice> print(QWidget& parent, QPrinter& printer) override;

private:
    enum class Kind { YesNo, Critical, Message, File, Print };
    struct Expected {
        Kind kind;
        std::string title;
        std::string text;
        bool partOnly = false;
        bool yes = false;
        std::optional<flow::PrintChoice> choice;
    };

    /// The next expected box if it is of this kind and says this; else a failure that tells both.
    std::optional<Expected> take(Kind kind, const std::string& title, const std::string& text);

    std::deque<Expected> m_expected;
    std::string m_lastFolder;
    std::string m_lastSheet;
};
