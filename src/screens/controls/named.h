#pragma once
#include <QString>

namespace controls {

/// A plain widget of Qt under the object name by which tests and automation tools find it.
template <class Widget>
class Named : public Widget {
public:
    explicit Named(const QString& name, const QString& caption = {})
    {
        Widget::setObjectName(name);
        if constexpr (requires { Widget::setText(caption); })
            Widget::setText(caption);
    }
};

}  // namespace controls
