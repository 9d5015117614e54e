#include "store/reader/utf16_text.h"

#include <array>

#include <glib.h>

namespace store {

namespace {

constexpr gunichar Replacement = 0xFFFD;

/// Joins the units of UTF-16 as they come.
class Utf16Text {
public:
    explicit Utf16Text(std::string& out) : m_out(out) {}
    ~Utf16Text() { endHalf(); }
    Utf16Text(const Utf16Text&) = delete;
    Utf16Text& operator=(const Utf16Text&) = delete;

    void add(gunichar unit)
    {
        const bool isFirstHalf = unit >= 0xD800 && unit < 0xDC00;
        const bool isSecondHalf = unit >= 0xDC00 && unit < 0xE000;
        if (isSecondHalf && m_firstHalf != 0) {
            append(0x10000 + ((m_firstHalf - 0xD800) << 10) + (unit - 0xDC00));
            m_firstHalf = 0;
            return;
        }
        endHalf();
        if (isFirstHalf)
            m_firstHalf = unit;
        else
            append(isSecondHalf ? Replacement : unit);
    }

private:
    void append(gunichar code)
    {
        std::array<char, 6> bytes{};
        m_out.append(bytes.data(), static_cast<std::size_t>(g_unichar_to_utf8(code, bytes.data())));
    }

    void endHalf()
    {
        if (m_firstHalf != 0)
            append(Replacement);
        m_firstHalf = 0;
    }

    std::string& m_out;
    gunichar m_firstHalf = 0;
};

}  // namespace

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
            text.add(number16(stored, i));
            i += 2;
        } else {
            text.add(Replacement);
            ++i;
        }
    }
}

}  // namespace store
