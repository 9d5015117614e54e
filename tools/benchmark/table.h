#pragma once
#include <QString>
#include <limits>

#include "samples.h"

/// The one table that comes of it all.
class Table {
public:
    explicit Table(const Samples& samples) : m_samples(samples) {}

    /// A line of the table. Without a goal the figure only explains the one above it. `factor` is multiplied to the
    /// values before they are shown in `unit`.
    void line(const QString& text, const QString& figure, const QString& unit, double goal = NoGoal,
              double factor = 1.0, int decimals = 1);
    /// The same where more is better.
    void atLeast(const QString& text, const QString& figure, const QString& unit, double goal);
    void missing(const QString& text, const QString& goal, const QString& why);
    void print() const;

    static constexpr double NoGoal = std::numeric_limits<double>::infinity();

private:
    struct Line {
        QString text, goal, measured, spread, ratio, verdict;
    };

    QList<Line> m_lines;
    const Samples& m_samples;
};
