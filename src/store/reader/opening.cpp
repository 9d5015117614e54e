#include "store/reader/opening.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "store/reader/table_walk.h"

namespace store {

namespace {

constexpr std::uint32_t CatalogPage = 2;

Refusal openingRefusal(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return Refusal::NoSuchFile;
    default:
        return Refusal::CannotOpen;
    }
}

void requireOrdinaryFile(const struct stat& about)
{
    if (S_ISDIR(about.st_mode))
        throw ReadError{Refusal::Folder};
    if (!S_ISREG(about.st_mode))
        throw ReadError{Refusal::NotAFile};
}

/// The signature says only how a refusal is worded: a file that has lost it may still be readable.
bool hasSignature(int file)
{
    std::array<char, 19> start{};
    if (pread(file, start.data(), start.size(), 0) != static_cast<ssize_t>(start.size()))
        return false;
    const std::string_view signature = std::string_view(start.data(), start.size()).substr(4);
    return signature == "Standard Jet DB" || signature == "Standard ACE DB";
}

/// Why the catalogue cannot be read.
Refusal catalogRefusal(const Source& source)
{
    if (!source.hasSignature)
        return Refusal::NotAccess;
    // Access 2007 and later know only one kind of key in the header, that of a password. The library tries it as one
    // of Access 2000's, which serves for files that are merely encoded.
    if (source.mdb->f->jet_version >= MDB_VER_ACCDB_2007 && source.mdb->f->db_key != 0)
        return Refusal::Encrypted;
    if (source.size <= static_cast<off_t>(CatalogPage) * static_cast<off_t>(source.pageSize()))
        return Refusal::OnlyHeader;
    return Refusal::Damaged;
}

bool isSameName(std::string_view one, std::string_view other)
{
    return one.size() == other.size() && g_ascii_strncasecmp(one.data(), other.data(), one.size()) == 0;
}

const Column& columnOf(const TableWalk& catalog, std::string_view name)
{
    for (const Column& column : catalog.columns())
        if (column.name == name)
            return column;
    throw ReadError{Refusal::Damaged};
}

/// The library's own catalogue also follows the properties of every table, among which it loses itself in a damaged
/// file; no property is needed here.
std::uint32_t findInCatalog(TableWalk& catalog, std::string_view name)
{
    const Column& nameColumn = columnOf(catalog, "Name");
    const Column& typeColumn = columnOf(catalog, "Type");
    const Column& idColumn = columnOf(catalog, "Id");

    std::uint32_t entries = 0;
    bool areEntriesLost = false;
    for (std::string text; catalog.next(); ++entries) {
        areEntriesLost = areEntriesLost || catalog.isDamaged();
        if (catalog.cell(nameColumn, text) != TableWalk::Cell::Text || !isSameName(text, name))
            continue;
        if (catalog.cell(typeColumn, text) != TableWalk::Cell::Text || text != std::to_string(MDB_TABLE))
            continue;  // a query, or a link to a table of another file
        std::uint32_t id = 0;
        if (catalog.cell(idColumn, text) != TableWalk::Cell::Text ||
            std::from_chars(text.data(), text.data() + text.size(), id).ec != std::errc())
            throw ReadError{Refusal::Damaged};
        return id & 0xFFFFFF;
    }
    areEntriesLost = areEntriesLost || catalog.recordsLost() || catalog.recordsSaid() > entries;
    throw ReadError{areEntriesLost ? Refusal::Damaged : Refusal::NoTable};
}

}  // namespace

Source openSource(const char* path)
{
    struct stat about = {};
    if (stat(path, &about) != 0)
        throw ReadError{openingRefusal(errno)};
    requireOrdinaryFile(about);  // before it is opened: opening a device or a pipe may wait, or do something

    const int file = open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (file < 0)
        throw ReadError{openingRefusal(errno)};
    if (fstat(file, &about) != 0)
        throw ReadError{Refusal::CannotOpen};
    requireOrdinaryFile(about);  // somebody may have put another one in its place
    if (about.st_size == 0)
        throw ReadError{Refusal::Empty};

    // The library opens by name; this is the name of the very file that was looked at.
    Source source{.mdb = mdb_open(("/proc/self/fd/" + std::to_string(file)).c_str(), MDB_NOFLAGS),
                  .file = file,
                  .size = about.st_size,
                  .changed = about.st_mtim,
                  .hasSignature = hasSignature(file)};
    if (!source.mdb && access("/proc/self/fd", X_OK) != 0)
        throw ReadError{Refusal::NoProc};
    if (!source.mdb)
        throw ReadError{source.hasSignature ? Refusal::Damaged : Refusal::NotAccess};
    return source;
}

std::uint32_t findTable(const Source& source, std::string_view name)
{
    try {
        TableWalk catalog(source, CatalogPage);
        return findInCatalog(catalog, name);
    } catch (const ReadError& error) {
        if (error.refusal != Refusal::Damaged)
            throw;
        throw ReadError{catalogRefusal(source)};
    }
}

}  // namespace store
