#include "figures/rework.h"

#include <cfenv>
#include <cmath>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace {

class Reader {
public:
    explicit Reader(const std::string& line) : m_line(line) {}

    double whole()
    {
        const double value = sum();
        if (m_at != m_line.size())
            fail();
        return value;
    }

private:
    [[noreturn]] void fail() const
    {
        throw std::runtime_error("cannot rework \"" + m_line + "\" from \"" + m_line.substr(m_at) + "\" on");
    }

    bool take(const std::string& sign)
    {
        if (m_line.compare(m_at, sign.size(), sign) != 0)
            return false;
        m_at += sign.size();
        return true;
    }

    double sum()
    {
        double value = product();
        for (;;) {
            if (take(" + "))
                value = value + product();
            else if (take(" \u2212 "))
                value = value - product();
            else
                return value;
        }
    }

    double product()
    {
        double value = operand();
        for (;;) {
            if (take(" \u00d7 "))
                value = value * operand();
            else if (take(" \u00f7 "))
                value = value / operand();
            else
                return value;
        }
    }

    double close(double value)
    {
        if (!take(")"))
            fail();
        return value;
    }

    double operand()
    {
        if (take("("))
            return close(sum());
        if (take("single("))
            return close(static_cast<double>(static_cast<float>(sum())));
        if (take("whole("))
            return close(std::floor(sum()));
        if (take("halfEven(")) {
            const double value = sum();
            const double below = std::floor(value);
            const double over = value - below;
            const bool up = over > 0.5 || (over == 0.5 && std::fmod(below, 2.0) != 0.0);
            return close(up ? below + 1 : below);
        }
        if (take("least(")) {
            const double left = sum();
            if (!take(", "))
                fail();
            const double right = sum();
            return close(right < left ? right : left);
        }
        return number();
    }

    double number()
    {
        const std::size_t end = m_line.find_first_not_of("0123456789.eE+-", m_at);
        std::istringstream text(m_line.substr(m_at, end - m_at));
        text.imbue(std::locale::classic());
        double value = 0.0;
        if (!(text >> value) || text.peek() != std::char_traits<char>::eof())
            fail();
        m_at = end == std::string::npos ? m_line.size() : end;
        return value;
    }

    const std::string& m_line;
    std::size_t m_at = 0;
};

}  // namespace

double rework(const std::string& line)
{
    return Reader(line).whole();
}
