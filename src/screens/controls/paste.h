#pragma once
#include <QString>

class QWidget;

/// Blocks of cells that come from a spreadsheet by way of the clipboard.
namespace controls {

/// Puts a block (cells apart by tabs, rows by line ends) into `first` and the boxes right of it and below, as the
/// screen shows them. Locked text boxes are passed over, and the cell of a locked choice is dropped. If the block has
/// more rows than are shown, a notice under the last of them says how many were left out. One cell goes in at the
/// cursor, without the line end that spreadsheets put behind it. False for a plain text: an ordinary paste.
bool pasteBlock(QWidget& first, const QString& block);

/// Whether `box` took part in the last paste of a block and all boxes of that are as the paste left them.
bool canUndoPaste(const QWidget& box);
/// Takes that paste back in all its boxes, whose changes are handled as the user's own. False if canUndoPaste is.
bool undoPaste(const QWidget& box);

}  // namespace controls
