// crewmark-reader FILE TABLE
//
// Reads one table of an Access file and writes it on standard output in the form of store/wire.h. It is a
// program of its own, without rights, because a damaged file can bring down the library that reads such files.

#include <new>

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
    for (const TableWalk::Column& column : table.columns())
        output.text(column.name);
}

void writeShortfall(const Source& source, const TableWalk& table, std::uint32_t cellsUnreadable, Output& output)
{
    output.begin(wire::Shortfall);
    output.number(table.recordsSaid());
    output.yesNo(table.recordsLost());
    output.yesNo(source.size % source.pageSize() != 0);
    output.number(cellsUnreadable);

    std::vector<std::uint32_t> unreadable;
    for (std::uint32_t i = 0; i < table.columns().size(); ++i)
        if (!table.columns()[i].isReadable)
            unreadable.push_back(i);
    output.number(static_cast<std::uint32_t>(unreadable.size()));
    for (const std::uint32_t column : unreadable)
        output.number(column);
}

void writeTable(const Source& source, const char* name, Output& output)
{
    TableWalk table(source, findTable(source, name));
    writeHeadings(table, output);

    std::uint32_t cellsUnreadable = 0;
    std::string text;
    for (std::size_t records = 0; table.next(); ++records) {
        if (records == wire::MaxRecords)
            throw Refused{Refusal::TooLarge};
        output.begin(wire::Record);
        for (const TableWalk::Column& column : table.columns()) {
            if (table.cell(column, text) == TableWalk::Cell::Unreadable)
                ++cellsUnreadable;
            output.text(text);
        }
    }
    writeShortfall(source, table, cellsUnreadable, output);
}

}  // namespace

int main(int argc, char** argv)
{
    limitResources();
    if (argc != 3)
        return 2;

    Output output;
    try {
        const Source source = openSource(argv[1]);
        shutDoors();
        writeTable(source, argv[2], output);
    } catch (const Refused& refused) {
        output.refuse(refused.why);
    } catch (const std::bad_alloc&) {
        output.refuse(Refusal::TooLarge);
    }
    output.end();
    _exit(0);  // nothing is left to put in order, and what the library would put in order may be damaged
}
