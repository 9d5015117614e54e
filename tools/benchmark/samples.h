#pragma once
#include <QMap>
#include <QString>
#include <vector>

/// What the rounds have measured, by the name of the figure.
class Samples {
public:
    void add(const QString& figure, double value) { m_values[figure].push_back(value); }
    bool has(const QString& figure) const { return m_values.contains(figure); }
    QStringList figures() const { return m_values.keys(); }

    /// Round by round, so that what slows a round down slows both its sides: one figure over or less another one.
    void addRatio(const QString& figure, const QString& over, const QString& under);
    void addDifference(const QString& figure, const QString& of, const QString& less);

    double median(const QString& figure) const { return quantile(figure, 0.5); }
    /// Between the sorted values where need be; `part` is 0 for the minimum and 1 for the maximum. A figure that was
    /// never measured is an error (std::runtime_error): no line of the table may be empty.
    double quantile(const QString& figure, double part) const;

    /// Of the figures whose names begin so, the one with the highest median, "" if there is none.
    QString worst(const QString& beginning) const;

private:
    template <class Operation>
    void combine(const QString& figure, const QString& a, const QString& b, Operation operation);

    QMap<QString, std::vector<double>> m_values;
};
