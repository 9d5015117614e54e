// crewmark-reader FILE TABLE [--unconfined]
//
// Reads one table of an Access file and writes it on standard output in the form of store/wire.h. It is a
// program of its own, without rights, because a damaged file can bring down the library that reads such files.
// Where the system cannot confine it, it reads nothing unless --unconfined allows it.

#include <new>
#include <string_view>

#include <unistd.h>

#include "store/reader/confine.h"
#include "store/reader/opening.h"
#include "store/reader/output.h"
#include "store/reader/table_walk.h"
#include "store/wire.h"

namespace {

using namespace store;

void writeHeadings(const TableWalk& table, Output& output)
{
    output.begin(wire::Headings);
    output.number(static_cast<std::uint32_t>(table.columns().size()));
    for (const Column& column : table.columns())
        output.text(column.name);
}

void writeNumbers(const std::vector<std::uint32_t>& numbers, Output& output)
{
    output.number(static_cast<std::uint32_t>(numbers.size()));
    for (const std::uint32_t number : numbers)
        output.number(number);
}

/// What the records had that could not be read.
struct Unreadable {
    std::uint32_t cells = 0;
    std::vector<std::uint32_t> records;
};

void writeShortfall(const Source& source, const TableWalk& table, const Unreadable& unreadable, Output& output)
{
    output.begin(wire::Shortfall);
    output.number(table.recordsSaid());
    output.yesNo(table.recordsLost());
    output.yesNo(static_cast<std::size_t>(source.size) % source.pageSize() != 0);
    output.yesNo(source.hasChanged());
    output.number(unreadable.cells);
    writeNumbers(unreadable.records, output);

    std::vector<std::uint32_t> columns;
    for (std::uint32_t i = 0; i < table.columns().size(); ++i)
        if (!table.columns()[i].isReadable)
            columns.push_back(i);
    writeNumbers(columns, output);
}

void writeTable(const Source& source, const char* name, Output& output)
{
    TableWalk table(source, findTable(source, name));
    writeHeadings(table, output);

    Unreadable unreadable;
    std::string text;
    for (std::uint32_t record = 0; table.next(); ++record) {
        if (record == wire::MaxRecords)
            throw ReadError{Refusal::TooLarge};
        if (table.isDamaged())
            unreadable.records.push_back(record);
        output.begin(wire::Record);
        for (const Column& column : table.columns()) {
            if (table.cell(column, text) == TableWalk::Cell::Unreadable && !table.isDamaged())
                ++unreadable.cells;
            output.text(text);
        }
    }
    writeShortfall(source, table, unreadable, output);
}

void read(const char* file, const char* table, bool mayReadUnconfined, Output& output)
{
    const Source source = openSource(file);
    shutFiles();
    if (!allowReadingAlone() && !mayReadUnconfined)
        throw ReadError{Refusal::Unconfined};
    try {
        writeTable(source, table, output);
    } catch (const ReadError& error) {
        if (error.refusal == Refusal::Damaged && source.hasChanged())
            throw ReadError{Refusal::Changed};
        throw;
    }
}

}  // namespace

int main(int argc, char** argv)
{
    limitResources();
    const bool mayReadUnconfined = argc == 4 && argv[3] == wire::Unconfined;
    if (argc != 3 && !mayReadUnconfined)
        return 2;

    Output output;
    try {
        read(argv[1], argv[2], mayReadUnconfined, output);
    } catch (const ReadError& error) {
        output.fail(error.refusal);
    } catch (const std::bad_alloc&) {
        output.fail(Refusal::TooLarge);
    }
    output.end();
    _exit(0);  // nothing is left to put in order, and what the library would put in order may be damaged
}
