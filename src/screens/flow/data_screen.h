#pragma once
#include <cstdint>

#include "screens/controls/data_grid.h"
#include "screens/flow/screen.h"

class QLabel;

namespace flow {

/// A screen with figures on it: it knows whether it has been printed, and reminds the user of it.
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
    StepScreen(Chain& chain, const QString& name, const QString& caption);

    /// A Compute that ended well: Next and Print are open, Compute is done for this Sr SE, and the user goes on to
    /// print.
    void finishCompute(controls::Button& compute);

    /// With the sheet printed, the user goes on to Next.
    void onPrinted() override;

    void cmdNext_Click();
};

/// A step whose boxes can be filled from the Sr SE's data file.
class ImportScreen : public StepScreen {
protected:
    /// `tableName` in the data file, shown under `sourceCaption` in the grid `gridName`.
    ImportScreen(Chain& chain, const QString& name, const QString& caption, const QString& tableName,
                 const QString& sourceCaption, const QString& gridName);

    /// Puts the grid with its heading under the rows; `import` takes its figures over.
    void addGrid(controls::Button& import);

    /// Reads the table of the data file at `path` into the grid. What goes wrong is told once, when the screen is there
    /// to be seen, and stays to be read in the grid's place: the boxes can be typed all the same.
    void openSource(const QString& path);

    /// What is to be done before the import opens, "" for nothing; beside the table's title, where a remark on the file
    /// itself goes first.
    void setHint(const QString& advice);

    /// The first keystroke in one of the boxes opens Compute, unless an import has done so already: typing never
    /// opens it a second time, when the figures have been computed.
    void enableByTyping(controls::Button& compute, std::initializer_list<controls::TextBox*> boxes);
    void enableByTyping(controls::Button& compute, const controls::ControlArray<controls::TextBox>& boxes);

    /// To be called by every import that ended well.
    void finishImport();
    /// The same where Compute waits for it: Compute is next.
    void finishImport(controls::Button& compute);

    /// A cell of the grid as text.
    QString cell(int row, int column) const { return grid.TextMatrix(row, column); }

    void onFirstShown() override;
    /// Reads the table of another data file, if the user has chosen another one before Compute; the boxes stay as they
    /// are. A screen that is computed keeps its table too: the summary takes figures from it.
    void onShownAgain() override;

    controls::DataGrid grid;

private:
    void updateMessage();

    QString m_tableName;
    QString m_sourceCaption;
    QLabel* m_message;
    QString m_path;    // of the file that was read
    QString m_reason;  // why it could not be
    QString m_remark;  // on the file
    QString m_hint;
    QString m_importedFrom;
    const controls::Button* m_import = nullptr;
    bool m_needsPermission = false;  // to read the file
    bool m_isStale = false;          // the file was written to while it was read
    bool m_computeOpened = false;
};

}  // namespace flow
