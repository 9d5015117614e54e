#include "screens/flow/backing_stores.h"

#include <QBackingStore>
#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <malloc.h>

namespace flow {

namespace {

bool isFreed(const QWidget& window)
{
    return !window.backingStore() || window.backingStore()->size().isEmpty();
}

}  // namespace

void BackingStores::release(QWidget& window)
{
    if (isFreed(window))
        return;
    window.backingStore()->resize(QSize(0, 0));
    window.windowHandle()->installEventFilter(this);
    malloc_trim(0);  // the C library would keep it for the next one
}

bool BackingStores::eventFilter(QObject* watched, QEvent* event)
{
    // Qt takes what it has painted once for painted still.
    if (auto* handle = qobject_cast<QWindow*>(watched); handle && event->type() == QEvent::Expose)
        if (QWidget* window = QWidget::find(handle->winId()); window && isFreed(*window))
            window->update();
    return QObject::eventFilter(watched, event);
}

}  // namespace flow
