#include "store/data_file.h"

#include <climits>
#include <exception>
#include <system_error>
#include <utility>
#include <vector>

#include <unistd.h>

#include "figures/utf8.h"
#include "store/reader_output.h"
#include "store/reader_run.h"
#include "store/refusal.h"
#include "store/wire.h"

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

/// What is to blame for a run that gave nothing.
Refusal refusalOf(const ReaderRun& run)
{
    using Ending = ReaderRun::Ending;
    switch (run.ending) {
    case Ending::Died:
        // The greeting comes before the file is touched: without it the program itself is broken.
        return run.output.starts_with(wire::Greeting) ? Refusal::Died : Refusal::NotStarted;
    case Ending::Overstepped:
        return Refusal::Overstepped;
    case Ending::TooSlow:
        return Refusal::TooSlow;
    case Ending::TooMuch:
        return Refusal::TooLarge;
    case Ending::NotStarted:
        return access("/proc/self/exe", F_OK) == 0 ? Refusal::NotStarted : Refusal::NoProc;
    case Ending::Finished:
    case Ending::Failed:
        break;
    }
    return Refusal::NoProperAnswer;
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
        return failedReading(Refusal::NoSuchFile, asked);
    if (tableName.find('\0') != std::string::npos)
        return failedReading(Refusal::NoTable, asked);
    std::vector<std::string> arguments{m_reader.native(), path.native(), tableName};
    if (m_isUnconfinedAllowed.value_or(false))
        arguments.emplace_back(wire::Unconfined);
    try {
        const ReaderRun run = runReader(arguments, m_deadline);
        if (run.ending != ReaderRun::Ending::Finished)
            return failedReading(refusalOf(run), asked);
        Reading reading = parseReaderOutput(run.output, asked);
        reading.needsPermission = reading.needsPermission && !m_isUnconfinedAllowed;
        return reading;
    } catch (const std::exception&) {  // out of memory: a table of this size is no Sr SE's
        return failedReading(Refusal::TooLarge, asked);
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
