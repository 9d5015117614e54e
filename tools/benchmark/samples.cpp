#include "samples.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <stdexcept>

template <class Operation>
void Samples::combine(const QString& figure, const QString& a, const QString& b, Operation operation)
{
    const std::vector<double>& left = m_values[a];
    const std::vector<double>& right = m_values[b];
    for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i)
        add(figure, operation(left[i], right[i]));
}

void Samples::addRatio(const QString& figure, const QString& over, const QString& under)
{
    combine(figure, over, under, std::divides<>());
}

void Samples::addDifference(const QString& figure, const QString& of, const QString& less)
{
    combine(figure, of, less, std::minus<>());
}

double Samples::quantile(const QString& figure, double part) const
{
    std::vector<double> sorted = m_values[figure];
    if (sorted.empty())
        throw std::runtime_error("nothing was measured of: " + figure.toStdString());
    std::sort(sorted.begin(), sorted.end());
    const double place = part * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    return sorted[below] + (sorted[above] - sorted[below]) * (place - std::floor(place));
}

QString Samples::worst(const QString& beginning) const
{
    QString worst;
    for (const QString& figure : m_values.keys())
        if (figure.startsWith(beginning) && (worst.isEmpty() || median(figure) > median(worst)))
            worst = figure;
    return worst;
}
