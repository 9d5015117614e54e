// Runs a fuzz target without a fuzzer: over the files named, then over inputs made from a seed.
//
//   figures_fuzz [--runs N] [--seed S] [FILE ...]

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void run(const std::vector<std::uint8_t>& input)
{
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

/// Half of them any bytes, half of them made of what numbers are made of.
std::vector<std::uint8_t> madeUp(std::mt19937_64& random)
{
    static constexpr std::string_view numeral = "0123456789012345678900000..eE+-  ,x";
    std::vector<std::uint8_t> input(random() % 24);
    const bool anyBytes = random() % 2 == 0;
    for (std::uint8_t& byte : input)
        byte = static_cast<std::uint8_t>(anyBytes ? random() : numeral[random() % numeral.size()]);
    return input;
}

bool readNumber(const char* text, std::uint64_t& number)
{
    const char* const end = text + std::strlen(text);
    return std::from_chars(text, end, number).ptr == end;
}

}  // namespace

int main(int count, char** arguments)
{
    std::uint64_t runs = 0;
    std::uint64_t seed = 1;
    std::uint64_t files = 0;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--runs" || argument == "--seed") {
            if (++i == count || !readNumber(arguments[i], argument == "--runs" ? runs : seed)) {
                std::fprintf(stderr, "%s wants a number\n", arguments[i - 1]);
                return 2;
            }
            continue;
        }
        std::ifstream file(arguments[i], std::ios::binary);
        if (!file) {
            std::fprintf(stderr, "cannot read %s\n", arguments[i]);
            return 2;
        }
        run({std::istreambuf_iterator<char>(file), {}});
        ++files;
    }

    std::mt19937_64 random(seed);
    for (std::uint64_t i = 0; i < runs; ++i)
        run(madeUp(random));
    std::printf("%llu files and %llu made-up inputs (seed %llu): no fault\n", static_cast<unsigned long long>(files),
                static_cast<unsigned long long>(runs), static_cast<unsigned long long>(seed));
    return 0;
}
