#include "screens/flow/dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>

namespace flow {

namespace {

constexpr int PathFrame = 16;  // around the text of a line edit [px]
constexpr int TitleBar = 160;  // a window manager's buttons beside the title, at a guess [px]

// A question left with Esc or by its X has its preset answer, which is the one that leaves everything as it is.
QMessageBox::StandardButton show(QWidget& parent, QMessageBox::Icon icon, const QString& title, const QString& text,
                                 QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preset)
{
    QMessageBox box(icon, title, text, buttons, &parent);
    box.setTextFormat(Qt::PlainText);  // a file's name may look like markup
    box.setDefaultButton(preset);
    box.setEscapeButton(preset);
    // The title is half of the message: the box is so wide that the title bar holds it.
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        const int wide = box.fontMetrics().horizontalAdvance(title) + TitleBar;
        grid->addItem(new QSpacerItem(wide, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

bool DesktopDialogs::askYesNo(QWidget& parent, const QString& title, const QString& prompt, bool defaultYes)
{
    return show(parent, QMessageBox::Question, title, prompt, QMessageBox::Yes | QMessageBox::No,
                defaultYes ? QMessageBox::Yes : QMessageBox::No) == QMessageBox::Yes;
}

int DesktopDialogs::showCritical(QWidget& parent, const QString& title, const QString& text)
{
    show(parent, QMessageBox::Critical, title, text, QMessageBox::Ok, QMessageBox::Ok);
    return Ok;
}

int DesktopDialogs::showMessage(QWidget& parent, const QString& title, const QString& text)
{
    show(parent, QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::Ok);
    return Ok;
}

QString DesktopDialogs::openFile(QWidget& parent, const QString& title, const QString& filter, const QString& folder)
{
    // Qt takes the pattern from the brackets in the name, "Access Files(*.mdb)".
    return QFileDialog::getOpenFileName(&parent, title, folder, filter.section('|', 0, 0));
}

std::optional<PrintChoice> DesktopDialogs::print(QWidget& parent, QPrinter& printer)
{
    QPrintDialog dialog(&printer, &parent);
    // Qt offers the home folder each time, cuts the name at its last point, and offers none on Wayland. A file name set
    // in the printer would select "Print to File" where the user has a printer.
    if (auto* file = dialog.findChild<QLineEdit*>("filename")) {
        const bool known = QFileInfo(m_printFolder).isDir();
        const QDir folder = known ? QDir(m_printFolder) : QFileInfo(file->text()).absoluteDir();
        file->setText(folder.filePath(printer.docName() + ".pdf"));
        const int whole = file->fontMetrics().horizontalAdvance(file->text()) + PathFrame;
        file->setMinimumWidth(std::min(whole, parent.width() / 2));
    }
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    if (printer.outputFormat() == QPrinter::PdfFormat)
        m_printFolder = QFileInfo(printer.outputFileName()).absolutePath();
    return PrintChoice{printer.fromPage(), printer.toPage(), printer.copyCount()};
}

}  // namespace flow
