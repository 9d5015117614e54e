#include "screens/flow/data_screen.h"

#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <utility>

#include "screens/flow/chain.h"

namespace flow {

bool DataScreen::mayLeave()
{
    if (Printed == 1)
        return true;
    const bool stay = chain.dialogs().askYesNo(*this, "Forgot to take a print of the Form !",
                                               "Do you want to take a print of the form ?", true);
    if (stay)
        focusDefault(cmdPrint);
    return !stay;
}

StepScreen::StepScreen(Chain& owner, const QString& name, const QString& caption, controls::Button& computeButton)
    : DataScreen(owner, name, caption), compute(computeButton)
{
    for (controls::Button* button : {&cmdNext, &cmdPrint}) {
        button->setEnabled(false);
        button->setToolTip(LockTip);
    }
    onPress(cmdNext, &StepScreen::cmdNext_Click);
}

void StepScreen::finishCompute()
{
    cmdNext.setEnabled(true);
    cmdPrint.setEnabled(true);
    focusDefault(cmdPrint);
    compute.setEnabled(false);
}

void StepScreen::onPrinted()
{
    DataScreen::onPrinted();
    focusDefault(cmdNext);
}

void StepScreen::cmdNext_Click()
{
    if (mayLeave())
        chain.showNextAfter(*this);
}

ImportScreen::ImportScreen(Chain& owner, const Setup& setup, controls::Button& importButton,
                           controls::Button& computeButton)
    : StepScreen(owner, setup.form, setup.caption, computeButton),
      grid(setup.grid, setup.records, setup.columns),
      m_tableName(setup.table),
      m_sourceCaption(setup.source),
      m_import(importButton),
      m_opensCompute(setup.opensCompute),
      m_message(new QLabel(this))
{
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    grid.setAccessibleName(m_sourceCaption);
}

void ImportScreen::addSource(const QString& path)
{
    if (m_opensCompute)
        openComputeByTyping();
    connect(&m_import, &QAbstractButton::pressed, this, [this] {  // before the click that imports
        if (m_isStale)
            readSource(m_path);
    });
    auto* panel = new QWidget;
    auto* down = new QVBoxLayout(panel);
    down->setContentsMargins(0, 0, 0, 0);
    down->setSpacing(2);
    auto* line = new QHBoxLayout;
    auto* title = new controls::Caption(m_sourceCaption);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    line->addWidget(title);
    line->addWidget(m_message, 1);
    down->addLayout(line);
    down->addWidget(&grid, 1);
    down->addStretch();  // the table stands right under its title, however much room there is
    QSizePolicy rest = panel->sizePolicy();
    rest.setVerticalStretch(1);  // what the rows leave is the table's
    panel->setSizePolicy(rest);
    form.addBelow(panel, &grid);
    form.buttons({&m_import, &compute, &cmdPrint, &cmdNext});
    compute.setEnabled(false);
    readSource(path);
}

void ImportScreen::readSource(const QString& path)
{
    m_path = path;
    m_reason.clear();
    m_needsPermission = false;
    m_isStale = false;
    grid.setTable(store::Table(m_tableName.toStdString(), {}));  // an import names what is missing
    if (path.trimmed().isEmpty()) {                              // the box starts with blanks
        m_remark = "No data file chosen";
        grid.hide();
        updateMessage();
        return;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    store::Reading reading = chain.dataFile().read(QFile::encodeName(path).toStdString(), m_tableName.toStdString());
    QGuiApplication::restoreOverrideCursor();
    m_needsPermission = reading.needsPermission;
    m_isStale = reading.isStale;
    m_reason = QString::fromStdString(reading.reason);
    m_remark = m_reason.isEmpty() ? QString::fromStdString(reading.notice) : m_reason;
    updateMessage();
    grid.setVisible(m_reason.isEmpty());
    if (!m_reason.isEmpty())
        return;
    grid.setTable(std::move(reading.table));
    setDefaultButton(&m_import);
}

void ImportScreen::setHint(const QString& advice)
{
    m_hint = advice;
    updateMessage();
}

void ImportScreen::updateMessage()
{
    m_message->setText(m_remark.isEmpty() ? m_hint : m_remark);
}

void ImportScreen::onFirstShown()
{
    m_entriesAtFirst = entries();
    if (m_needsPermission) {
        const bool isAllowed = chain.dialogs().askYesNo(*this, m_sourceCaption,
                                                        "This system cannot confine the program that reads data files: "
                                                        "a file made to do harm could do whatever you "
                                                        "can do. Read data files all the same, until Crewmark ends?",
                                                        false);
        chain.dataFile().allowUnconfined(isAllowed);
        if (!isAllowed)
            return;
        readSource(m_path);
    }
    if (!m_reason.isEmpty())
        chain.dialogs().showCritical(*this, m_sourceCaption, m_reason);
}

void ImportScreen::onShownAgain()
{
    if (!isUntouched() || chain.srSe().dataFile == m_path)
        return;
    readSource(chain.srSe().dataFile);
    onFirstShown();
}

bool ImportScreen::isUntouched() const
{
    return !m_imported && !cmdNext.isEnabled() && entries() == m_entriesAtFirst;
}

QStringList ImportScreen::entries() const
{
    QStringList all;
    for (const auto* line : findChildren<const QLineEdit*>())  // a list to choose from has one
        if (!line->isReadOnly())
            all += line->text();
    for (const auto* button : findChildren<const QAbstractButton*>())
        if (button->isChecked())
            all += button->objectName();
    all.removeAll("");
    return all;
}

void ImportScreen::finishImport()
{
    m_imported = true;
    if (m_opensCompute) {
        m_computeOpened = true;
        compute.setEnabled(true);
    }
    focusDefault(compute);
}

// The first keystroke in any box, unless an import has opened Compute already: typing never opens it a second time,
// when the figures have been computed.
void ImportScreen::openComputeByTyping()
{
    for (const auto* box : findChildren<QLineEdit*>())
        connect(box, &QLineEdit::textEdited, this, [this] {
            if (m_computeOpened)
                return;
            m_computeOpened = true;
            compute.setEnabled(true);
            setDefaultButton(&compute);
        });
}

}  // namespace flow
