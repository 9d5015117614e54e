#pragma once
#include <QString>
#include <QWidget>

/// Works a screen as a user does: by keys and clicks on the controls, found by their names.
class Hands {
public:
    /// The screen to work on from here on.
    void takeUp(QWidget& form) { m_form = &form; }

    /// Replaces what stands in the box.
    void type(const char* box, const QString& text) const;
    void click(const char* button) const;
    QString text(const char* box) const;

    /// A picture of the screen as it stands, at its usual size on a 1366x768 screen.
    void photograph(const QString& file) const;

private:
    QWidget& find(const char* name) const;

    QWidget* m_form = nullptr;
};
