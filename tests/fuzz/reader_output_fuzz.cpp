// Whatever the reader writes, there is either an open table or a reason, and no table that was not written.
//
// The bytes are tried as they are, behind a greeting, and as the recipe for a whole output that is then cut, changed
// or left as it is.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "figures/utf8.h"
#include "store/reader_output.h"
#include "store/wire_output.h"

namespace {

using namespace store;

const Asked AskedFor{.file = "x.mdb", .table = "TR"};

void hold(bool claim, const char* what)
{
    if (claim)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

/// Reads every cell, too: a table must be good for all that it says it holds.
Reading tryParsing(std::string_view bytes)
{
    Reading reading = parseReaderOutput(bytes, AskedFor);
    hold(reading.reason.empty() == (reading.table.rows() > 0), "neither a table nor a reason, or both");
    hold(reading.notice.empty() || reading.reason.empty(), "a notice without a table");
    hold(reading.table.name() == "TR", "the table has lost its name");
    std::size_t size = 0;
    for (int row = 0; row < reading.table.rows(); ++row)
        for (int column = 0; column < reading.table.columns(); ++column)
            size += reading.table.text(row, column).size();
    hold(size <= bytes.size(), "the cells hold more than was written");
    hold(figures::isUtf8(reading.notice) && figures::isUtf8(reading.reason), "what is said is no UTF-8");
    return reading;
}

/// A table made up from numbers at random; one of some is no UTF-8.
struct Recipe {
    std::vector<WireOutput::Cells> rows;  // headings first
    WireOutput output;
};

Recipe makeUp(std::mt19937& random)
{
    const auto text = [&random] {
        std::string made(random() % 5, ' ');
        for (char& character : made)
            character = static_cast<char>(random() % 16 == 0 ? random() : random() % 128);
        return made;
    };
    Recipe recipe;
    const std::size_t columns = 1 + random() % 4;
    const std::size_t rows = 1 + random() % 4;
    for (std::size_t row = 0; row < rows; ++row) {
        WireOutput::Cells& cells = recipe.rows.emplace_back();
        for (std::size_t column = 0; column < columns; ++column)
            cells.push_back(text());
        row == 0 ? recipe.output.headings(cells) : recipe.output.record(cells);
    }
    recipe.output.shortfall(static_cast<std::uint32_t>(random() % 4)).end();
    return recipe;
}

void tryRecipe(std::mt19937& random)
{
    const Recipe recipe = makeUp(random);
    const Reading reading = tryParsing(recipe.output.bytes());
    const bool isUtf8 = std::all_of(recipe.rows.begin(), recipe.rows.end(), [](const WireOutput::Cells& cells) {
        return std::all_of(cells.begin(), cells.end(), figures::isUtf8);
    });
    hold(reading.reason.empty() == isUtf8, "an output is read that is no UTF-8, or a whole one is not");
    if (!isUtf8)
        return;
    hold(reading.table.rows() == static_cast<int>(recipe.rows.size()), "a whole output is not read");
    for (std::size_t row = 0; row < recipe.rows.size(); ++row)
        for (std::size_t column = 0; column < recipe.rows[row].size(); ++column)
            hold(reading.table.text(static_cast<int>(row), static_cast<int>(column) + 1) == recipe.rows[row][column],
                 "a cell is not what was written");

    std::string bytes = recipe.output.bytes();
    const std::string_view cut = std::string_view(bytes).substr(0, random() % bytes.size());
    hold(!tryParsing(cut).reason.empty(), "an output that was cut is taken for a whole one");
    hold(!tryParsing(bytes + static_cast<char>(random())).reason.empty(), "bytes behind the end are overlooked");

    for (std::size_t changes = 1 + random() % 4; changes > 0; --changes) {
        const std::size_t at = random() % bytes.size();
        bytes[at] = static_cast<char>(random() % 2 == 0 ? random() : "\0\1\xff\x7fHRSXE"[random() % 9]);
    }
    tryParsing(bytes);
}

}  // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    tryParsing(bytes);
    tryParsing(std::string(wire::Greeting) + bytes);

    std::seed_seq seed(data, data + size);
    std::mt19937 random(seed);
    tryRecipe(random);
    return 0;
}
