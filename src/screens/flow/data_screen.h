#pragma once
#include <cstdint>

#include "screens/controls/data_grid.h"
#include "screens/flow/screen.h"

class QLabel;

namespace flow {

/// A screen with figures on it, which reminds the user to print it.
class DataScreen : public Screen {
public:
    std::int16_t Printed = 0;  ///< 1 once Print has run to its end; never cleared

protected:
    using Screen::Screen;

    void onPrinted() override { Printed = 1; }

    /// False if the user wants to stay and print first: Print is then next. Asks only while the screen has not been
    /// printed.
    bool mayLeave();
};

/// A step of the chain: fill, Compute, Print, Next.
class StepScreen : public DataScreen {
public:
    controls::Button cmdNext{"cmdNext", "&Next"};

protected:
    /// `computeButton` is a member of the form: kept, not used, until the form is constructed.
    StepScreen(Chain& chain, const QString& name, const QString& caption, controls::Button& computeButton);

    /// After a Compute that ended well: Next and Print are open, Compute is done for this Sr SE, and the user goes on
    /// to print.
    void finishCompute();

    /// With the sheet printed, the user goes on to Next.
    void onPrinted() override;

    void cmdNext_Click();

    controls::Button& compute;
};

/// A step whose boxes can be filled from the Sr SE's data file.
class ImportScreen : public StepScreen {
protected:
    struct Setup {
        QString form;              ///< object name of the screen
        QString caption;           ///< of the screen
        QString table;             ///< of the data file
        QString source;            ///< caption of the table on the screen
        QString grid;              ///< object name of the grid that shows the table
        int records;               ///< of the table that the screens take
        int columns;               ///< of the table that the screens take
        bool opensCompute = true;  ///< an import or the first keystroke opens Compute; if not, the form does
    };

    /// The buttons are members of the form: kept, not used, until the form is constructed.
    ImportScreen(Chain& chain, const Setup& setup, controls::Button& importButton, controls::Button& computeButton);

    /// To be called once, when all boxes are laid out: puts the grid with its heading and the buttons under them, and
    /// reads the table of the data file at `path`. A failure is reported once, when the screen first shows, and stays
    /// visible where the grid would be. Figures can still be typed.
    void addSource(const QString& path);

    /// What is to be done before the import opens, "" for nothing; beside the table's title, where a remark on the file
    /// itself goes first.
    void setHint(const QString& advice);

    /// To be called by every import that ended well: Compute is next.
    void finishImport();

    /// A cell of the grid as text.
    QString cell(int row, int column) const { return grid.TextMatrix(row, column); }

    void onFirstShown() override;
    /// Takes up another data file chosen since, as long as the screen is untouched.
    void onShownAgain() override;
    /// Nothing has been entered, imported or computed yet. What has been stays under the name and file it began with.
    bool isUntouched() const;

    controls::DataGrid grid;

private:
    void readSource(const QString& path);
    void openComputeByTyping();
    void updateMessage();
    /// What stands where the user can type or choose.
    QStringList entries() const;

    QString m_tableName;
    QString m_sourceCaption;
    controls::Button& m_import;
    bool m_opensCompute;
    bool m_computeOpened = false;
    QLabel* m_message;
    QString m_path;    // of the file that was read
    QString m_reason;  // why it could not be
    QString m_remark;  // on the file
    QString m_hint;
    QStringList m_entriesAtFirst;
    bool m_imported = false;
    bool m_needsPermission = false;  // to read the file
    bool m_isStale = false;          // the file was written to while it was read
};

}  // namespace flow
