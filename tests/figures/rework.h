#pragma once
#include <string>

/// Works a line in figures out again, as a reader with a calculator does: double precision from left to right,
/// × and ÷ before + and −, brackets, single(), whole(), halfEven() and least(,). Knows nothing of the program.
/// Throws std::runtime_error where the line is no such formula.
double rework(const std::string& line);
