#pragma once
#include <QString>
#include <QTextDocument>

namespace controls {

/// A tool tip that shows `text` as it stands. Texts of a data file may look like markup, and markup may ask for files.
inline QString plainTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

}  // namespace controls
