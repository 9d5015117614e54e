#pragma once
#include <QDate>
#include <QTimer>
#include <functional>
#include <memory>
#include <typeindex>
#include <vector>

#include "screens/flow/dialogs.h"
#include "screens/flow/screen.h"
#include "store/data_file.h"

namespace flow {

/// The screens in their fixed order. A screen is made when it is first asked for, shown or not, and stays until it
/// is unloaded; main.cpp says which screens there are.
class Chain {
public:
    explicit Chain(Dialogs& dialogs, store::DataFile dataFile = store::DataFile());
    ~Chain();
    Chain(const Chain&) = delete;
    Chain& operator=(const Chain&) = delete;

    /// Appends a screen to the chain. `make` may ask the chain for earlier screens.
    template <class Form>
    void add(std::function<std::unique_ptr<Form>(Chain&)> make)
    {
        m_links.push_back({typeid(Form), [make](Chain& chain) -> std::unique_ptr<Screen> { return make(chain); }, {}});
    }

    template <class Form>
    Form& get()
    {
        return static_cast<Form&>(loaded(linkOf(typeid(Form))));
    }

    template <class Form>
    bool isLoaded() const
    {
        return m_links[indexOf(typeid(Form))].screen != nullptr;
    }

    /// Lets `reading` ask for screens. Those that are made for it alone are taken off again: made before their turn,
    /// they would keep what the screens before them held then.
    void lookBack(const std::function<void()>& reading);

    /// Brings the screen to the front, makes it first if need be.
    template <class Form>
    Form& show()
    {
        auto& form = get<Form>();
        bringForward(form);
        return form;
    }

    /// Next: the screen behind `screen` in the order.
    void showNextAfter(const Screen& screen);

    /// Takes the screen off with all that stands on it; the next time it is asked for it is new and empty.
    template <class Form>
    void unload()
    {
        unload(linkOf(typeid(Form)));
    }

    /// Unloads all screens in their order and ends the program with status 0.
    void end();

    /// The title bar's X: the screen is hidden, its contents kept. On the last one visible the program ends, after
    /// a question once there are figures to lose. False: the screen stays.
    bool mayHide(Screen& screen);

    /// The system wants the program to end: what the X on the last screen does, asked on the screen in front. False:
    /// the program goes on, or the question is standing there already.
    bool mayEnd();

    Dialogs& dialogs() { return m_dialogs; }
    store::DataFile& dataFile() { return m_dataFile; }

private:
    struct Link {
        std::type_index type;
        std::function<std::unique_ptr<Screen>(Chain&)> make;
        std::unique_ptr<Screen> screen;
    };

    std::size_t indexOf(std::type_index type) const;
    Link& linkOf(std::type_index type) { return m_links[indexOf(type)]; }
    Screen& loaded(Link& link);
    void unload(Link& link);
    /// A screen shown for the first time opens in the place of the one before it, wherever the user has moved that.
    void bringForward(Screen& screen, const Screen* before = nullptr);
    Screen* inFront() const;
    bool endAfterQuestion(QWidget& parent, const QString& title);
    void tick();

    Dialogs& m_dialogs;
    store::DataFile m_dataFile;
    std::vector<Link> m_links;
    std::vector<std::unique_ptr<Screen>> m_ended;  // unloaded by the end of the program
    bool m_asking = false;                         // whether to end
    QTimer m_clock;
    QDate m_day;
    QString m_date;  // m_day in the system's short form
};

}  // namespace flow
