#pragma once
#include <stdexcept>
#include <string>
#include <string_view>

#include "figures/source.h"

namespace figures {

enum class ErrorKind { DivisionByZero, TypeMismatch, SubscriptOutOfRange, Overflow, FloatingPoint };

/// A computation that cannot go on. what() is a sentence for the user: the kind, a colon, `detail`, a full stop
/// ("Division by zero: the equivalent length of segment 3 is 0.").
class RunTimeError : public std::runtime_error {
public:
    static constexpr int NoRow = -1;

    /// `row` is the row at fault, counted from 0, so that the screen can bring it into view.
    RunTimeError(ErrorKind kind, const std::string& detail, int row = NoRow);
    /// `source` is the box at fault.
    RunTimeError(ErrorKind kind, const std::string& detail, SourcePtr source);

    ErrorKind kind() const { return m_kind; }
    int row() const { return m_row; }
    const SourcePtr& source() const { return m_source; }

private:
    ErrorKind m_kind;
    int m_row = NoRow;
    SourcePtr m_source;
};

/// `name` with the number of the row as the screen counts it, from 1: numbered("the length of gang", 1) is
/// "the length of gang 2".
std::string numbered(std::string_view name, int row);

}  // namespace figures
