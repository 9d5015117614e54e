#pragma once
class QKeyEvent;
class QWidget;

/// How one fills a screen of boxes quickly: the keys that every entry box has in common.
namespace controls {

/// Whether the user may type into the control: a text box or list that is not locked.
bool openForTyping(const QWidget& widget);

/// Enter goes on like Tab, Up and Down go between rows, Paste spreads a spreadsheet block and Undo takes it back, Alt
/// and a letter type nothing. False if not one of these.
bool handleEntryKey(QWidget& box, QKeyEvent& event);

/// Scrolls the rows, and in a very small window all above the buttons, so that the control is in view.
void bringIntoView(QWidget& box);

}  // namespace controls
