#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace store {

/// How Access stores the values of a column, by its own numbers. Other kinds (attachments, calculated columns,
/// pictures, whole numbers of 64 bits, ...) are not read.
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
};

using Bytes = std::span<const unsigned char>;

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
///
/// False, and nothing appended, if the bytes are no such value.
bool appendNumber(std::string& out, Kind kind, Bytes stored, int scale);

/// Appends in UTF-8 what Access 2000 and later store as text: UTF-16, low byte first, or its compressed form. A half
/// character (a lone surrogate, an odd byte at the end) becomes U+FFFD.
void appendText(std::string& out, Bytes stored);

/// Number of `count` bytes (8 at most), low byte first.
std::uint64_t lowByteFirst(Bytes stored, std::size_t offset, std::size_t count);

}  // namespace store
