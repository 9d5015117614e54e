#include "store/reader/cell_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <string_view>

namespace store {

namespace {

/// `digits` with a point before the last `scale` of them and without trailing zeros behind it: "12500", 3 is "12.5".
void appendScaled(std::string& out, bool negative, std::string digits, std::size_t scale)
{
    if (digits.size() <= scale)
        digits.insert(0, scale + 1 - digits.size(), '0');
    if (scale > 0) {
        digits.insert(digits.size() - scale, 1, '.');
        digits.erase(digits.find_last_not_of('0') + 1);
        if (digits.back() == '.')
            digits.pop_back();
    }
    if (negative && digits != "0")
        out += '-';
    out += digits;
}

bool appendCurrency(std::string& out, std::uint64_t stored)
{
    const auto value = static_cast<std::int64_t>(stored);
    const std::uint64_t magnitude = value < 0 ? 0 - stored : stored;
    appendScaled(out, value < 0, std::to_string(magnitude), 4);
    return true;
}

/// Sign, then four groups of 4 bytes, the highest group first, each low byte first.
bool appendDecimal(std::string& out, Bytes stored, int scale)
{
    constexpr int maxDecimals = 28;
    if (scale < 0 || scale > maxDecimals)
        return false;
    std::array<std::uint64_t, 4> groups{};
    for (std::size_t i = 0; i < groups.size(); ++i)
        groups[i] = lowByteFirst(stored, 1 + 4 * i, 4);

    std::string digits;  // last digit first
    while (digits.empty() || groups != std::array<std::uint64_t, 4>{}) {
        std::uint64_t rest = 0;
        for (std::uint64_t& group : groups) {
            group += rest << 32;
            rest = group % 10;
            group /= 10;
        }
        digits += static_cast<char>('0' + rest);
    }
    appendScaled(out, (stored[0] & 0x80) != 0, {digits.rbegin(), digits.rend()}, static_cast<std::size_t>(scale));
    return true;
}

template <typename Real>
bool appendReal(std::string& out, Real value, int maxDigits)
{
    if (!std::isfinite(value))
        return false;
    if (value == 0)
        value = 0;  // without a sign
    std::array<char, 32> text{};
    char* const end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, maxDigits).ptr;
    out.append(text.data(), end);
    return true;
}

using std::chrono::days;
using std::chrono::sys_days;
constexpr long SecondsPerDay = 86'400;
constexpr sys_days DayZero = std::chrono::year(1899) / 12 / 30;
constexpr sys_days LastDay = std::chrono::year(9999) / 12 / 31;

void appendDate(std::string& out, sys_days day)
{
    std::array<char, 32> text{};
    const std::chrono::year_month_day date(day);
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    out += text.data();
}

void appendTime(std::string& out, long seconds)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%02ld:%02ld:%02ld", seconds / 3600, seconds / 60 % 60, seconds % 60);
    out += text.data();
}

/// Whole days and a part of a day; the part counts forward also before day 0 (-1.25 is 1899-12-29 06:00).
bool appendDateTime(std::string& out, double value)
{
    constexpr sys_days first = std::chrono::year(100) / 1 / 1;
    if (!(value >= (first - DayZero).count() - 1 && value <= (LastDay - DayZero).count() + 1))  // also not a number
        return false;
    double whole = 0.0;
    long seconds = std::lround(std::fabs(std::modf(value, &whole)) * SecondsPerDay);
    sys_days day = DayZero + days(std::lround(whole));
    if (seconds == SecondsPerDay) {
        day += days(1);
        seconds = 0;
    }
    if (day < first || day > LastDay)
        return false;

    if (day != DayZero)
        appendDate(out, day);
    if (day != DayZero && seconds != 0)
        out += ' ';
    if (day == DayZero || seconds != 0)
        appendTime(out, seconds);
    return true;
}

/// In ASCII: days from 0001-01-01 and tenths of microseconds in 19 digits each, the number of decimals of a second in
/// one, each ended by a colon or, the last one, by a zero byte.
bool appendExtendedDateTime(std::string& out, Bytes stored)
{
    constexpr std::uint64_t tenthsPerSecond = 10'000'000;
    constexpr sys_days first = std::chrono::year(1) / 1 / 1;
    const std::string_view text(reinterpret_cast<const char*>(stored.data()), stored.size());
    const auto number = [text](std::size_t offset, std::uint64_t& value) {
        const char* const end = text.data() + offset + 19;
        const auto [stop, error] = std::from_chars(text.data() + offset, end, value);
        return error == std::errc() && stop == end;
    };
    std::uint64_t day = 0;
    std::uint64_t tenths = 0;
    if (!number(0, day) || !number(20, tenths) || text[19] != ':' || text.substr(39) != std::string_view(":7\0", 3))
        return false;
    if (day > static_cast<std::uint64_t>((LastDay - first).count()) || tenths >= SecondsPerDay * tenthsPerSecond)
        return false;

    appendDate(out, first + days(static_cast<int>(day)));
    if (tenths == 0)
        return true;
    out += ' ';
    appendTime(out, static_cast<long>(tenths / tenthsPerSecond));
    if (std::string part = std::to_string(tenthsPerSecond + tenths % tenthsPerSecond); tenths % tenthsPerSecond != 0)
        out += '.' + part.substr(1, part.find_last_not_of('0'));
    return true;
}

std::size_t sizeOf(Kind kind)
{
    switch (kind) {
    case Kind::Byte:
        return 1;
    case Kind::Integer:
        return 2;
    case Kind::Long:
    case Kind::Single:
        return 4;
    case Kind::Currency:
    case Kind::Double:
    case Kind::DateTime:
    case Kind::BigInteger:
        return 8;
    case Kind::ExtendedDateTime:
        return 42;
    case Kind::Decimal:
        return 17;
    case Kind::YesNo:
    case Kind::Text:
    case Kind::Memo:
        break;
    }
    return 0;
}

}  // namespace

bool hasText(Kind kind)
{
    switch (kind) {
    case Kind::YesNo:
    case Kind::Text:
    case Kind::Memo:
        return true;
    default:
        return sizeOf(kind) != 0;
    }
}

bool appendNumber(std::string& out, Kind kind, Bytes stored, int scale)
{
    if (stored.size() != sizeOf(kind))
        return false;
    const std::uint64_t bits = lowByteFirst(stored, 0, std::min<std::size_t>(stored.size(), 8));
    switch (kind) {
    case Kind::Byte:
        out += std::to_string(static_cast<std::uint8_t>(bits));
        return true;
    case Kind::Integer:
        out += std::to_string(static_cast<std::int16_t>(bits));
        return true;
    case Kind::Long:
        out += std::to_string(static_cast<std::int32_t>(bits));
        return true;
    case Kind::BigInteger:
        out += std::to_string(static_cast<std::int64_t>(bits));
        return true;
    case Kind::Currency:
        return appendCurrency(out, bits);
    case Kind::Single:
        return appendReal(out, std::bit_cast<float>(static_cast<std::uint32_t>(bits)), 7);
    case Kind::Double:
        return appendReal(out, std::bit_cast<double>(bits), 15);
    case Kind::DateTime:
        return appendDateTime(out, std::bit_cast<double>(bits));
    case Kind::ExtendedDateTime:
        return appendExtendedDateTime(out, stored);
    case Kind::Decimal:
        return appendDecimal(out, stored, scale);
    case Kind::YesNo:
    case Kind::Text:
    case Kind::Memo:
        break;
    }
    return false;
}

std::optional<Bytes> calculatedValue(Bytes stored)
{
    constexpr std::size_t lengthOffset = 16;
    constexpr std::size_t valueOffset = lengthOffset + 4;
    if (stored.size() < valueOffset || number32(stored, lengthOffset) > stored.size() - valueOffset)
        return std::nullopt;
    return stored.subspan(valueOffset, number32(stored, lengthOffset));
}

bool appendCalculated(std::string& out, Kind kind, Bytes value)
{
    if (kind == Kind::YesNo || (value.size() == 1 && kind != Kind::Byte)) {
        if (value.size() != 1)
            return false;
        out += value[0] != 0 ? "True" : "False";
        return true;
    }
    if (kind != Kind::Decimal)
        return appendNumber(out, kind, value, 0);

    // Length, decimals, sign, then digits in groups of 4 bytes: the highest one, if their number is odd, before pairs
    // that are turned round.
    if (value.size() < 8 || value.size() > 20)
        return false;
    const Bytes digits = value.subspan(4, (value.size() - 4) / 4 * 4);
    std::array<unsigned char, 17> plain{};
    plain[0] = value[3] != 0 ? 0x80 : 0;
    const std::size_t groups = digits.size() / 4;
    for (std::size_t group = 0; group < groups; ++group) {
        const bool isAlone = groups % 2 == 1 && group == 0;
        const std::size_t from = isAlone ? 0 : groups % 2 + ((group - groups % 2) ^ 1);
        std::copy_n(digits.begin() + static_cast<std::ptrdiff_t>(4 * from), 4,
                    plain.begin() + static_cast<std::ptrdiff_t>(1 + 4 * (4 - groups + group)));
    }
    return appendDecimal(out, plain, value[2]);
}

}  // namespace store
