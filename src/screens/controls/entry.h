#pragma once
#include <QString>

class QKeyEvent;
class QWidget;

/// How one fills a screen of boxes quickly: the keys that every entry box has in common.
namespace controls {

/// Enter goes on like Tab, Up and Down go between rows, Paste spreads a spreadsheet block, Alt and a letter type
/// nothing. False if not one of these.
bool handleEntryKey(QWidget& box, QKeyEvent& event);

/// Puts a block (cells apart by tabs, rows by line ends) into `first` and the boxes right of it and below, as the
/// screen shows them. Locked text boxes are passed over, and the cell of a locked choice is dropped. One cell goes in
/// at the cursor, without the line end that spreadsheets put behind it. False for a plain text: an ordinary paste.
bool pasteBlock(QWidget& first, const QString& block);

/// Scrolls the rows, and in a very small window all above the buttons, so that the control is in view.
void bringIntoView(QWidget& box);

}  // namespace controls
