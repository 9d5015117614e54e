// The two pure functions that every figure goes through on its way in and out of a box.
#include <array>
#include <benchmark/benchmark.h>
#include <string>

#include "figures/numeric_text.h"
#include "figures/picture.h"

namespace {

// Lengths, mandays and totals as they occur on the screens; the last needs all its digits and a carry.
constexpr std::array Figures = {0.0, 12.5, 107.84, 1989.9966666666667, 0.045, 23.700000762939453, -3.1, 999.995};

// The same as texts, and what clerks type instead.
const std::array<std::string, 8> Texts = {"", "12.5", "107.84", "1990.", "  .05", "23.7", "12km", "1.5e3"};

void valueOf(benchmark::State& state)
{
    std::size_t i = 0;
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(figures::valueOf(Texts[i++ % Texts.size()]));
}
BENCHMARK(valueOf);

void picture(benchmark::State& state)
{
    std::size_t i = 0;
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(figures::picture(Figures[i++ % Figures.size()], "####.##"));
}
BENCHMARK(picture);

}  // namespace
