#pragma once
#include <cstddef>
#include <string_view>

/// What the reader program writes on its standard output, and nothing else:
///
///     greeting                                            "crewmark-reader 1\n"
///     Headings   count, one text a column                 once, before the first record
///     Record     one text a column                        as often as there are records
///     Shortfall  said, lost, in page, changed, cells,     once, after the last record
///                count, records, count, columns
///     Failure    one byte, a Refusal                      instead of all these, or after any of them
///     End                                                 the last byte: without it the output was cut
///
/// Each item starts with its mark. A count or number is 4 bytes, low byte first; a text is its length in bytes,
/// then its bytes in UTF-8; `lost`, `in page` and `changed` are bytes, 0 or 1; records and columns are numbers from 0.
/// What these mean stands at store::Shortfall.
namespace store::wire {

constexpr std::string_view Greeting = "crewmark-reader 1\n";
constexpr char Headings = 'H';
constexpr char Record = 'R';
constexpr char Shortfall = 'S';
constexpr char Failure = 'X';
constexpr char End = 'E';

constexpr std::size_t MaxColumns = 255;  ///< an Access table has no more
constexpr std::size_t MaxRecords = 1'000'000;

/// Lets the reader read where the system cannot confine it: its third argument, behind the file and the table.
constexpr std::string_view Unconfined = "--unconfined";

}  // namespace store::wire
