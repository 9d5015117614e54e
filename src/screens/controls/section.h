#pragma once
#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>

#include "screens/controls/caption.h"
#include "screens/controls/control_array.h"
#include "screens/controls/text_box.h"

namespace controls {

/// One activity on a screen of several: its heading, and under it lines of fields, rows of boxes and results.
class Section : public QWidget {
public:
    explicit Section(const QString& heading);

    /// A new line of fields.
    QHBoxLayout& line();
    void add(QWidget* rows);

    /// The activity's result at the right end of a line: locked, and named after the activity to screen readers.
    Caption& addResult(QHBoxLayout& line, const QString& caption, TextBox& box, int characters);

    /// Adds the activity to the box's accessible name, where another activity has a box of the same caption.
    void nameAfterActivity(TextBox& box) const;

    /// Enables or disables all but the heading, which says in either case what this is about.
    void setOpen(bool open);

private:
    QVBoxLayout* m_down;
    Caption* m_heading;
};

/// Lines of boxes side by side after their captions, the boxes of one gang or location under each other.
class BoxLines : public QWidget {
public:
    /// `noun` names a column of boxes to screen readers ("..., gang 3").
    explicit BoxLines(const QString& noun);

    /// Elements `first` to `last`, each `characters` wide. The caption is returned for what else is to be done with it.
    Caption& line(const QString& caption, ControlArray<TextBox>& boxes, int first, int last, int characters);

private:
    QString m_noun;
    QGridLayout* m_grid;
};

}  // namespace controls
