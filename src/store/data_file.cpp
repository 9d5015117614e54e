#include "store/data_file.h"

#include <climits>
#include <exception>
#include <system_error>
#include <utility>

#include "figures/utf8.h"
#include "store/reader_output.h"
#include "store/reader_run.h"
#include "store/refusal.h"

namespace store {

namespace {

/// The file's name as a sentence can show it: without its folders, control characters as blanks, not endless.
std::string shownName(const std::filesystem::path& path)
{
    constexpr std::size_t maxBytes = 120;
    // A path that ends in a slash means the folder before it.
    std::string name = (path.has_filename() ? path : path.parent_path()).filename().native();
    if (name.empty())
        name = path.native();
    for (char& character : name)
        if (static_cast<unsigned char>(character) < ' ' || character == '\x7f')
            character = ' ';
    return figures::shortened(name, maxBytes);
}

/// A path that no file can have; the reader could not even be told of it.
bool isImpossible(const std::filesystem::path& path)
{
    return path.empty() || path.native().size() >= PATH_MAX || path.native().find('\0') != std::string::npos;
}

Reading readingOf(const ReaderRun& run, const Asked& asked)
{
    switch (run.ending) {
    case ReaderRun::Ending::Finished:
        return parseReaderOutput(run.output, asked);
    case ReaderRun::Ending::Failed:
        return refused(Refusal::NoProperAnswer, asked);
    case ReaderRun::Ending::Died:
        return refused(Refusal::Died, asked);
    case ReaderRun::Ending::TooSlow:
        return refused(Refusal::TooSlow, asked);
    case ReaderRun::Ending::TooMuch:
        return refused(Refusal::TooLarge, asked);
    case ReaderRun::Ending::NotStarted:
        return refused(Refusal::NotStarted, asked);
    }
    return refused(Refusal::NoProperAnswer, asked);
}

}  // namespace

DataFile::DataFile(std::filesystem::path reader, std::chrono::milliseconds deadline)
    : m_reader(std::move(reader)), m_deadline(deadline)
{
}

Reading DataFile::read(const std::filesystem::path& path, const std::string& tableName) const
{
    const Asked asked{.file = shownName(path), .table = tableName};
    if (isImpossible(path))
        return refused(Refusal::NoSuchFile, asked);
    if (tableName.find('\0') != std::string::npos)
        return refused(Refusal::NoTable, asked);
    try {
        return readingOf(runReader({m_reader.native(), path.native(), tableName}, m_deadline), asked);
    } catch (const std::exception&) {  // out of memory: a table of this size is no Sr SE's
        return refused(Refusal::TooLarge, asked);
    }
}

std::filesystem::path DataFile::installedReader()
{
    std::error_code error;
    const std::filesystem::path here = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    std::filesystem::path installed = here / ".." / "libexec" / "crewmark" / "crewmark-reader";
    if (std::filesystem::exists(installed, error))
        return installed;
    return here / "crewmark-reader";
}

}  // namespace store
