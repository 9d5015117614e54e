#pragma once
#include <optional>
#include <string>

#include "store/reader/bytes.h"

namespace store {

/// How Access stores the values of a column, by its own numbers. Other kinds (attachments, pictures, ...) are not read.
enum class Kind {
    YesNo = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    DateTime = 8,
    Text = 10,
    Memo = 12,
    Decimal = 16,
    BigInteger = 19,        ///< since Access 2016
    ExtendedDateTime = 20,  ///< since Access 2019
};

/// False for the kinds that are not read.
bool hasText(Kind kind);

/// Appends the text of a stored number or date, the way the user sees it in the file, always with a decimal point:
///
/// | kind       | bytes | text                                                                                |
/// |------------|-------|-------------------------------------------------------------------------------------|
/// | Byte       | 1     | digits, 0 to 255                                                                    |
/// | Integer    | 2     | digits                                                                              |
/// | Long       | 4     | digits                                                                              |
/// | Currency   | 8     | ten thousandths of the unit, without trailing zeros                                 |
/// | Single     | 4     | the shortest form, 7 significant digits at most                                     |
/// | Double     | 8     | the shortest form, 15 significant digits at most                                    |
/// | DateTime   | 8     | days from 1899-12-30 as 2008-03-31, with 14:05:09 unless midnight; day 0: time alone |
/// | Decimal    | 17    | sign and 16 bytes of digits, `scale` decimals, without trailing zeros               |
/// | BigInteger | 8     | digits                                                                              |
/// | ExtendedDateTime | 42 | as DateTime, the date always, with .1234567 parts of a second                     |
///
/// False, and nothing appended, if the bytes are no such value.
bool appendNumber(std::string& out, Kind kind, Bytes stored, int scale);

/// The value of a calculated column in its form for storing; none if the bytes have not that form.
std::optional<Bytes> calculatedValue(Bytes stored);

/// Appends the text of such a value, of any kind but Text and Memo. A value of one byte is a Yes/No, whatever kind the
/// column has. False, and nothing appended, if the bytes are no such value.
bool appendCalculated(std::string& out, Kind kind, Bytes value);

}  // namespace store
