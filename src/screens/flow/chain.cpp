#include "screens/flow/chain.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QThread>
#include <algorithm>
#include <span>
#include <stdexcept>

#include "screens/flow/placement.h"

namespace flow {

Chain::Chain(Dialogs& dialogs, store::DataFile dataFile)
    : m_dialogs(dialogs), m_dataFile(std::move(dataFile)), m_clock([this](const QString& date) { tick(date); })
{
}

Chain::~Chain()
{
    // Later screens hold on to earlier ones.
    while (!m_ended.empty())
        m_ended.pop_back();
    while (!m_links.empty())
        m_links.pop_back();
}

std::size_t Chain::indexOf(std::type_index type) const
{
    const auto link = std::find_if(m_links.begin(), m_links.end(), [&](const Link& one) { return one.type == type; });
    if (link == m_links.end())
        throw std::logic_error(std::string("no screen of this kind in the chain: ") + type.name());
    return static_cast<std::size_t>(link - m_links.begin());
}

Screen& Chain::loaded(Link& link)
{
    if (!link.screen)
        link.screen = link.create();
    return *link.screen;
}

Screen* Chain::find(const QString& name) const
{
    for (const Link& link : m_links)
        if (link.screen && link.screen->objectName() == name)
            return link.screen.get();
    return nullptr;
}

std::size_t Chain::indexOf(const Screen& screen) const
{
    const auto link =
        std::find_if(m_links.begin(), m_links.end(), [&](const Link& one) { return one.screen.get() == &screen; });
    return static_cast<std::size_t>(link - m_links.begin());
}

void Chain::showNextAfter(const Screen& screen)
{
    if (const std::size_t next = indexOf(screen) + 1; next < m_links.size())
        bringForward(loaded(m_links[next]), &screen);
}

void Chain::unload(Link& link)
{
    if (!link.screen)
        return;
    m_furthest = std::min(m_furthest, std::max<std::size_t>(indexOf(*link.screen), 1) - 1);
    link.screen->hide();
    // Its own handler may be what unloads it.
    link.screen.release()->deleteLater();
}

void Chain::end()
{
    m_clock.stop();
    m_furthest = 0;
    for (Link& link : m_links) {
        if (!link.screen)
            continue;
        link.screen->hide();
        // One of its handlers may still be inside a dialog's event loop: keep it alive as long as the chain.
        m_ended.push_back(std::move(link.screen));
    }
    // Not quit(), which would have each window close as by its X. Without a loop there is nothing to leave.
    if (QThread::currentThread()->loopLevel() > 0)
        QCoreApplication::exit(0);
}

bool Chain::mayHide(Screen& screen)
{
    const auto way = std::span(m_links).first(m_furthest + 1);
    const bool another = std::any_of(way.begin(), way.end(), [&](const Link& link) {
        return link.screen && link.screen.get() != &screen && link.screen->isVisible();
    });
    return another || endAfterQuestion(screen, screen.windowTitle());
}

bool Chain::mayEnd()
{
    Screen* const front = inFront();
    if (!front) {
        end();
        return true;
    }
    QWidget* const dialog = QApplication::activeModalWidget();
    return endAfterQuestion(dialog ? *dialog : *front, front->windowTitle());
}

// Where the user works: the active screen, or the furthest of those to be seen.
Screen* Chain::inFront() const
{
    Screen* front = nullptr;
    for (const Link& link : m_links)
        if (link.screen && link.screen->isVisible() && (!front || !front->isActiveWindow()))
            front = link.screen.get();
    return front;
}

bool Chain::endAfterQuestion(QWidget& parent, const QString& title)
{
    if (m_asking)
        return false;
    const bool anything = std::any_of(m_links.begin(), m_links.end(),
                                      [](const Link& link) { return link.screen && link.screen->holdsFigures(); });
    if (anything) {
        const QScopedValueRollback asking(m_asking, true);
        if (!m_dialogs.askYesNo(parent, title, "End the program? The figures on the screens will be lost.", false))
            return false;
    }
    end();
    return true;
}

void Chain::bringForward(Screen& screen, const Screen* before)
{
    const bool first = !screen.testAttribute(Qt::WA_WState_Created);
    place(screen, before);
    m_furthest = std::max(m_furthest, indexOf(screen));
    bringToFront(screen);
    screen.update();  // its backing store may have been freed
    if (first && screen.firstBox())
        screen.firstBox()->setFocus();
    m_clock.start();
    if (first)
        screen.onFirstShown();
    else
        screen.onShownAgain();
}

void Chain::tick(const QString& date)
{
    const Screen* const front = inFront();
    for (const Link& link : m_links) {
        if (!link.screen)
            continue;
        if (link.screen->isVisible() && !link.screen->isMinimized())
            link.screen->Timer1_Timer(date);
        if (link.screen.get() != front)
            m_backingStores.release(*link.screen);
    }
}

}  // namespace flow
