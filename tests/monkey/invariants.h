#pragma once
#include <QPointer>
#include <QRegularExpression>
#include <set>
#include <string>
#include <vector>

#include "monkey/random_dialogs.h"
#include "monkey/screens.h"

namespace monkey {

/// What must hold after every step, whatever the hands did.
class Invariants {
public:
    Invariants(flow::Chain& chain, const RandomDialogs& answers);

    /// How everything stands before a step.
    void before();
    /// What is wrong after an act of the hands on `workedOn`, a line each.
    std::vector<std::string> after(const QWidget* workedOn);

    /// How often each button's click was seen, as "frmT1.cmdNext".
    const std::map<QString, int>& pressed() const { return m_pressedEver; }

private:
    struct Box {
        QPointer<QWidget> widget;
        Place place;
        QString name;
        QString text;
        bool open = false;  ///< a user could type into it
    };
    /// Figures that later screens read from a screen itself.
    struct Published {
        Place place;
        QString name;
        double value;
    };

    void meet(Place place, flow::Screen& screen);
    bool pressed(const QString& button) const { return m_pressed.contains(button); }
    bool answered(RandomDialogs::Kind kind, const QString& text, bool yes) const;
    std::vector<Published> publishedNow();

    void checkLoaded(const Screens& now);
    void checkWindows(const Screens& now);
    void checkBoxes(const QWidget* workedOn);
    void checkLocked(const Box& box, const QString& now);
    void checkSummary(const Box& box, const QString& now, const QWidget* workedOn);
    void checkPublished();
    void checkCounts(const Screens& now);
    void checkPrinted(const Screens& now);
    void checkAsked();
    void fail(const QString& what);

    flow::Chain& m_chain;
    const RandomDialogs& m_dialogs;
    Screens m_loaded{};
    std::array<QPointer<QWidget>, Places> m_alive;
    std::array<bool, Places> m_visible{};
    std::array<int, Places> m_printed{};
    std::vector<Box> m_boxes;
    std::vector<Published> m_published;
    bool m_nothingEntered = true;
    bool m_ended = false;
    std::set<QString> m_pressed;
    std::map<QString, int> m_pressedEver;
    std::vector<std::string> m_wrong;
};

}  // namespace monkey
