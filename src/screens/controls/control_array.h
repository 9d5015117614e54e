#pragma once
#include <QString>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "figures/run_time_error.h"

namespace controls {

/// Boxes of one kind under one name: txtKmf(3) in code, "txtKmf(3)" as object name.
/// Every element exists as long as the array, shown or not; the layout only lends it a parent.
template <class Box>
class ControlArray {
public:
    /// Elements 0 to count - 1.
    ControlArray(const QString& name, int count) : m_name(name)
    {
        m_boxes.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            m_boxes.push_back(make(i));
    }

    /// Of some arrays only some elements exist.
    ControlArray(const QString& name, std::initializer_list<int> indices) : m_name(name)
    {
        for (const int i : indices) {
            if (static_cast<std::size_t>(i) >= m_boxes.size())
                m_boxes.resize(static_cast<std::size_t>(i) + 1);
            m_boxes[static_cast<std::size_t>(i)] = make(i);
        }
    }

    /// Throws RunTimeError (subscript) for an element that does not exist.
    Box& operator()(int index) { return *m_boxes[checked(index)]; }
    const Box& operator()(int index) const { return *m_boxes[checked(index)]; }

    bool has(int index) const { return index >= 0 && index < size() && m_boxes[static_cast<std::size_t>(index)]; }

    /// One more than the highest index.
    int size() const { return static_cast<int>(m_boxes.size()); }

private:
    std::size_t checked(int index) const
    {
        if (!has(index))
            throw figures::RunTimeError(figures::ErrorKind::SubscriptOutOfRange,
                                        m_name.toStdString() + " has no element " + std::to_string(index));
        return static_cast<std::size_t>(index);
    }

    std::unique_ptr<Box> make(int index) const
    {
        return std::make_unique<Box>(QString("%1(%2)").arg(m_name).arg(index));
    }

    QString m_name;
    std::vector<std::unique_ptr<Box>> m_boxes;
};

}  // namespace controls
