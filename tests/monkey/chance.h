#pragma once
#include <QList>
#include <QString>
#include <cstdint>
#include <random>
#include <string>

namespace monkey {

/// All that happens by chance, from one seed: the same seed is the same play.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : m_random(seed) {}

    /// 0 to count - 1.
    int below(int count) { return static_cast<int>(m_random() % static_cast<std::uint64_t>(count)); }
    int from(int least, int most) { return least + below(most - least + 1); }
    bool oneIn(int count) { return below(count) == 0; }

    template <class List>
    const auto& of(const List& list)
    {
        return list[static_cast<typename List::size_type>(below(static_cast<int>(std::size(list))))];
    }

private:
    std::mt19937_64 m_random;
};

/// A figure as a clerk types it.
QString figure(Chance& chance);

/// What a hand that slips, or a clipboard, may bring: numbers beyond every range, other scripts, control characters,
/// halves of characters, very long texts.
QString nonsense(Chance& chance);

/// A block of a spreadsheet, of figures and of nonsense.
QString block(Chance& chance);

}  // namespace monkey
