#include "table.h"

#include <array>
#include <cmath>
#include <cstdio>

void Table::line(const QString& text, const QString& figure, const QString& unit, double goal, double factor,
                 int decimals)
{
    const auto written = [&](double value) { return QString::number(value * factor, 'f', decimals); };
    const double measured = m_samples.median(figure) * factor;
    Line line{.text = text,
              .goal = "",
              .measured = written(m_samples.median(figure)) + " " + unit,
              .spread = written(m_samples.quantile(figure, 0.0)) + " .. " + written(m_samples.quantile(figure, 1.0)),
              .ratio = "",
              .verdict = ""};
    if (std::isfinite(goal)) {
        line.goal = QString("<= %1 %2").arg(goal).arg(unit);
        line.ratio = goal > 0.0 ? QString::number(measured / goal, 'f', 2) : QString();
        line.verdict = measured <= goal ? "met" : "MISSED";
    }
    m_lines.append(line);
}

void Table::atLeast(const QString& text, const QString& figure, const QString& unit, double goal)
{
    line(text, figure, unit);
    const double measured = m_samples.median(figure);
    m_lines.last().goal = QString(">= %1 %2").arg(goal).arg(unit);
    m_lines.last().ratio = QString::number(measured / goal, 'f', 2);
    m_lines.last().verdict = measured >= goal ? "met" : "MISSED";
}

void Table::missing(const QString& text, const QString& goal, const QString& why)
{
    m_lines.append({text, goal, "", "", "", why});
}

void Table::print() const
{
    QList<Line> lines = m_lines;
    lines.prepend({"figure", "goal", "measured", "spread", "ratio", "verdict"});
    const std::array columns = {&Line::text, &Line::goal, &Line::measured, &Line::spread, &Line::ratio, &Line::verdict};
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString row = "|";
        QString rule = "|";
        for (const auto column : columns) {
            qsizetype width = 0;
            for (const Line& line : lines)
                width = std::max(width, (line.*column).size());
            row += " " + (lines[i].*column).leftJustified(width) + " |";
            rule += QString(width + 2, '-') + "|";
        }
        std::printf("%s\n", row.toUtf8().constData());
        if (i == 0)
            std::printf("%s\n", rule.toUtf8().constData());
    }
}
