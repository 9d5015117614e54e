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
    constexpr int mostDecimals = 28;
    if (scale < 0 || scale > mostDecimals)
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
bool appendReal(std::string& out, Real value, int mostDigits)
{
    if (!std::isfinite(value))
        return false;
    if (value == 0)
        value = 0;  // without a sign
    std::array<char, 32> text{};
    char* const end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, mostDigits).ptr;
    out.append(text.data(), end);
    return true;
}

/// Whole days and a part of a day; the part counts forward also before day 0 (-1.25 is 1899-12-29 06:00).
bool appendDateTime(std::string& out, double value)
{
    using std::chrono::days;
    using std::chrono::sys_days;
    constexpr sys_days dayZero = std::chrono::year(1899) / 12 / 30;
    constexpr sys_days first = std::chrono::year(100) / 1 / 1;
    constexpr sys_days last = std::chrono::year(9999) / 12 / 31;
    constexpr long secondsPerDay = 86'400;

    if (!(value >= (first - dayZero).count() - 1 && value <= (last - dayZero).count() + 1))  // also not a number
        return false;
    double whole = 0.0;
    long seconds = std::lround(std::fabs(std::modf(value, &whole)) * secondsPerDay);
    sys_days day = dayZero + days(std::lround(whole));
    if (seconds == secondsPerDay) {
        day += days(1);
        seconds = 0;
    }
    if (day < first || day > last)
        return false;

    std::array<char, 32> text{};
    if (day != dayZero) {
        const std::chrono::year_month_day date(day);
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                      static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
        out += text.data();
    }
    if (day == dayZero || seconds != 0) {
        std::snprintf(text.data(), text.size(), "%s%02ld:%02ld:%02ld", day == dayZero ? "" : " ", seconds / 3600,
                      seconds / 60 % 60, seconds % 60);
        out += text.data();
    }
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
        return 8;
    case Kind::Decimal:
        return 17;
    case Kind::YesNo:
    case Kind::Text:
    case Kind::Memo:
        break;
    }
    return 0;
}

void appendUtf8(std::string& out, char32_t code)
{
    const auto add = [&out](char32_t byte) { out += static_cast<char>(byte); };
    const auto tail = [&add, code](int shift) { add(0x80 | ((code >> shift) & 0x3F)); };
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xC0 | (code >> 6));
        tail(0);
    } else if (code < 0x10000) {
        add(0xE0 | (code >> 12));
        tail(6);
        tail(0);
    } else {
        add(0xF0 | (code >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

/// Joins the units of UTF-16 as they come.
class Utf16Text {
public:
    explicit Utf16Text(std::string& out) : m_out(out) {}
    ~Utf16Text() { endHalf(); }
    Utf16Text(const Utf16Text&) = delete;
    Utf16Text& operator=(const Utf16Text&) = delete;

    void add(unsigned unit)
    {
        const bool isFirstHalf = unit >= 0xD800 && unit < 0xDC00;
        const bool isSecondHalf = unit >= 0xDC00 && unit < 0xE000;
        if (isSecondHalf && m_firstHalf != 0) {
            appendUtf8(m_out, 0x10000 + ((m_firstHalf - 0xD800) << 10) + (unit - 0xDC00));
            m_firstHalf = 0;
            return;
        }
        endHalf();
        if (isFirstHalf)
            m_firstHalf = unit;
        else
            appendUtf8(m_out, isSecondHalf ? Replacement : unit);
    }

    void addHalf() { add(Replacement); }

private:
    static constexpr unsigned Replacement = 0xFFFD;

    void endHalf()
    {
        if (m_firstHalf != 0)
            appendUtf8(m_out, Replacement);
        m_firstHalf = 0;
    }

    std::string& m_out;
    unsigned m_firstHalf = 0;
};

}  // namespace

std::uint64_t lowByteFirst(Bytes stored, std::size_t offset, std::size_t count)
{
    std::uint64_t value = 0;
    for (std::size_t i = count; i > 0; --i)
        value = value << 8 | stored[offset + i - 1];
    return value;
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
    case Kind::Currency:
        return appendCurrency(out, bits);
    case Kind::Single:
        return appendReal(out, std::bit_cast<float>(static_cast<std::uint32_t>(bits)), 7);
    case Kind::Double:
        return appendReal(out, std::bit_cast<double>(bits), 15);
    case Kind::DateTime:
        return appendDateTime(out, std::bit_cast<double>(bits));
    case Kind::Decimal:
        return appendDecimal(out, stored, scale);
    case Kind::YesNo:
    case Kind::Text:
    case Kind::Memo:
        break;
    }
    return false;
}

void appendText(std::string& out, Bytes stored)
{
    Utf16Text text(out);
    // The compressed form starts with FF FE; then a byte is a character below 256, and a zero byte switches to whole
    // characters of two bytes and back.
    const bool isCompressed = stored.size() >= 2 && stored[0] == 0xFF && stored[1] == 0xFE;
    bool oneByte = isCompressed;
    for (std::size_t i = isCompressed ? 2 : 0; i < stored.size();) {
        if (isCompressed && stored[i] == 0) {
            oneByte = !oneByte;
            ++i;
        } else if (oneByte) {
            text.add(stored[i++]);
        } else if (i + 1 < stored.size()) {
            text.add(static_cast<unsigned>(lowByteFirst(stored, i, 2)));
            i += 2;
        } else {
            text.addHalf();
            ++i;
        }
    }
}

}  // namespace store
