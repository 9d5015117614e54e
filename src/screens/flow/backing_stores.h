#pragma once
#include <QObject>

class QWidget;

namespace flow {

/// Frees the backing stores of windows that stand behind another one: those of nine screens would take more memory than
/// everything else.
class BackingStores : public QObject {
public:
    /// Frees the window's backing store (4 bytes per pixel). The whole window is repainted when a covered part of it is
    /// exposed or anything on it changes.
    void release(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace flow
