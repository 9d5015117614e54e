#pragma once
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "monkey/chance.h"
#include "screens/flow/dialogs.h"
#include "screens/flow/screen.h"

namespace monkey {

/// RandomDialogs every box by chance, and remembers what was asked. While a box is open, the system may ask the program
/// to end.
class RandomDialogs : public flow::Dialogs {
public:
    enum class Kind { YesNo, Critical, Message, File, Print };
    /// What became of a print-out.
    enum class PrintOut { Cancelled, None, Good, Lost };

    struct Given {
        Kind kind;
        flow::Screen* screen;  ///< on which it was shown, null if on none; it may be gone since
        QString title;
        QString text;
        bool yes = false;
        PrintOut printOut = PrintOut::Cancelled;
        QString path;
    };

    explicit RandomDialogs(Chance& chance);

    /// Those of the step under way.
    std::vector<Given> given;

    /// Writes something else over the data file that is a copy, or takes it away.
    void tamperWithFile();

    bool askYesNo(QWidget& parent, const QString& title, const QString& prompt, bool defaultYes) override;
    int showCritical(QWidget& parent, const QString& title, const QString& text) override;
    int showMessage(QWidget& parent, const QString& title, const QString& text) override;
    QString openFile(QWidget& parent, const QString& title, const QString& filter, const QString& folder) override;
    std::optional<flow::PrintChoice> print(QWidget& parent, QPrinter& printer) override;

private:
    void whileOpen(QWidget& parent);
    QString dataFile();

    Chance& m_chance;
    QTemporaryDir m_folder;
    QStringList m_samples;
    QStringList m_fixtures;
    QString m_copy;
    int m_printOuts = 0;
};

}  // namespace monkey
