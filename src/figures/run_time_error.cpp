#include "figures/run_time_error.h"

#include <utility>

namespace figures {

namespace {

const char* nameOf(ErrorKind kind)
{
    switch (kind) {
    case ErrorKind::DivisionByZero:
        return "Division by zero";
    case ErrorKind::TypeMismatch:
        return "Type mismatch";
    case ErrorKind::SubscriptOutOfRange:
        return "Subscript out of range";
    case ErrorKind::Overflow:
        return "Overflow";
    case ErrorKind::FloatingPoint:
        return "Floating-point error";
    }
    return "Run-time error";
}

}  // namespace

RunTimeError::RunTimeError(ErrorKind kind, const std::string& detail, int row)
    : std::runtime_error(std::string(nameOf(kind)) + ": " + detail + "."), m_kind(kind), m_row(row)
{
}

RunTimeError::RunTimeError(ErrorKind kind, const std::string& detail, SourcePtr source)
    : std::runtime_error(std::string(nameOf(kind)) + ": " + detail + "."), m_kind(kind), m_source(std::move(source))
{
}

std::string numbered(std::string_view name, int row)
{
    return std::string(name) + " " + std::to_string(row + 1);
}

}  // namespace figures
