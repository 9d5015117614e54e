#pragma once
#include <functional>
#include <memory>
#include <typeindex>
#include <utility>
#include <vector>

#include "screens/flow/backing_stores.h"
#include "screens/flow/clock.h"
#include "screens/flow/dialogs.h"
#include "screens/flow/screen.h"
#include "store/data_file.h"

namespace flow {

/// The Sr SE at work and the division it belongs to, as the start screen shows them.
struct SrSe {
    QString railway;
    QString division;
    QString index;  ///< within the division, from 1
    QString name;
    QString dataFile;  ///< full path; blank if none was chosen
};

/// Owns the screens in their fixed order. A screen is created when it is first asked for, shown or not, and stays until
/// it is unloaded; `compose` says which screens there are.
class Chain {
public:
    explicit Chain(Dialogs& dialogs, store::DataFile dataFile = store::DataFile());
    ~Chain();
    Chain(const Chain&) = delete;
    Chain& operator=(const Chain&) = delete;

    /// Appends a screen to the chain. Its constructor takes the chain and the screens of `Earlier`, each of which is
    /// created first if need be.
    template <class Form, class... Earlier>
    void add()
    {
        m_links.push_back({typeid(Form),
                           [this]() -> std::unique_ptr<Screen> {
                               return std::make_unique<Form>(*this, std::as_const(get<Earlier>())...);
                           },
                           {}});
    }

    /// Creates the screen if need be.
    template <class Form>
    Form& get()
    {
        return static_cast<Form&>(loaded(m_links[indexOf(typeid(Form))]));
    }

    /// The screen if it is loaded, else nullptr.
    template <class Form>
    const Form* find() const
    {
        return static_cast<const Form*>(m_links[indexOf(typeid(Form))].screen.get());
    }

    template <class Form>
    bool isLoaded() const
    {
        return find<Form>() != nullptr;
    }

    /// The screen of this object name, nullptr if it is not loaded.
    Screen* find(const QString& name) const;

    /// Brings the screen to the front; creates it if need be. `before` is the one that the user comes from.
    template <class Form>
    Form& show(const Screen* before = nullptr)
    {
        auto& form = get<Form>();
        bringForward(form, before);
        return form;
    }

    /// Next: shows the screen that follows `screen` in the order.
    void showNextAfter(const Screen& screen);

    /// Hides and deletes the screen with its contents; the next time it is asked for it is new and empty.
    template <class Form>
    void unload()
    {
        unload(m_links[indexOf(typeid(Form))]);
    }

    /// Unloads every screen that lies between the two, in their order.
    template <class First, class Last>
    void unloadBetween()
    {
        for (std::size_t i = indexOf(typeid(First)) + 1; i < indexOf(typeid(Last)); ++i)
            unload(m_links[i]);
    }

    /// Unloads all screens in their order and ends the program with status 0.
    void end();

    /// The title bar's X: the screen is hidden, its contents kept, as long as another visible one leads on: a screen up
    /// to the furthest that this Sr SE has come to, as Proceed and Next show all the following again. On the last such
    /// screen the program ends, after a question once there are figures to lose. False: the screen stays.
    bool mayHide(Screen& screen);

    /// The system wants the program to end: what the X on the last screen does, asked on the screen in front. False:
    /// the program goes on, or the question is standing there already.
    bool mayEnd();

    /// Kept up to date by the start screen.
    void setSrSe(SrSe srSe) { m_srSe = std::move(srSe); }
    const SrSe& srSe() const { return m_srSe; }

    Dialogs& dialogs() { return m_dialogs; }
    store::DataFile& dataFile() { return m_dataFile; }

private:
    struct Link {
        std::type_index type;
        std::function<std::unique_ptr<Screen>()> create;
        std::unique_ptr<Screen> screen;
    };

    std::size_t indexOf(std::type_index type) const;
    std::size_t indexOf(const Screen& screen) const;
    static Screen& loaded(Link& link);
    void unload(Link& link);
    void bringForward(Screen& screen, const Screen* before);
    Screen* inFront() const;
    bool endAfterQuestion(QWidget& parent, const QString& title);
    void tick(const QString& date);

    Dialogs& m_dialogs;
    store::DataFile m_dataFile;
    SrSe m_srSe;
    BackingStores m_backingStores;
    std::vector<Link> m_links;
    std::size_t m_furthest = 0;  // the last screen of the way from the first that has been shown, none unloaded
    std::vector<std::unique_ptr<Screen>> m_ended;  // unloaded by the end of the program
    bool m_asking = false;                         // whether to end
    Clock m_clock;
};

}  // namespace flow
