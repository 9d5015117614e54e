#pragma once
#include <QString>
#include <QWidget>

#include "monkey/chance.h"
#include "monkey/random_dialogs.h"
#include "monkey/screens.h"

class QWindow;

namespace monkey {

/// Works the screens as a user's hands could, by the windows' own key and mouse events.
class RandomUser {
public:
    RandomUser(Chance& chance, flow::Chain& chain, RandomDialogs& answers);
    ~RandomUser();

    /// One act, with all that it sets off.
    void act();

    /// What the last act was, for the log.
    const QString& told() const { return m_told; }
    /// On which screen, if on one.
    QWidget* workedOn() const { return m_form; }

private:
    void chooseAndAct();
    void goOn();
    void pressAButton();
    void clickAnywhere();
    void type();
    void paste();
    void keys();
    void drop();
    void closeAWindow();
    void moveAWindow();
    void restyle();
    void askToEnd();

    bool pressFirst(std::initializer_list<const char*> names);
    void press(QWidget& button);
    QWidget* aBox();
    void key(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
    void write(const QString& text);
    QWindow* window() const;
    void workMenu(int choice) const;

    Chance& m_chance;
    flow::Chain& m_chain;
    RandomDialogs& m_dialogs;
    QWidget* m_form = nullptr;
    QString m_told;
    bool m_mnemonic = false;  ///< the act had a key with Alt
};

}  // namespace monkey
