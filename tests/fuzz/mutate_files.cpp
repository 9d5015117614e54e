// Damages good data files in many ways and reads them as the program does: it must neither die nor wait, and a file
// that was only cut may not pass for a whole one.
//
//   mutate_files [--files N] [--seed S] [--first I] [--jobs J] [--save FILE]
//
// Reads the damaged files number I to I + N - 1 of the seed; J of them at a time. The files are in memory only, unless
// one is saved to look at it.

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

#include "fuzz/damage.h"
#include "store/data_file.h"
#include "store/files.h"
#include "store/refusal.h"

namespace {

using namespace store;
using Clock = std::chrono::steady_clock;
using Random = std::mt19937_64;

constexpr std::size_t PageSize = 4096;
constexpr auto Deadline = std::chrono::seconds(5);
constexpr auto Slack = std::chrono::seconds(1);

/// A file in memory, which the reader program finds by a path as any other.
class MemoryFile {
public:
    explicit MemoryFile(const std::string& bytes) : m_number(memfd_create("crewmark", MFD_CLOEXEC))
    {
        for (std::string_view rest = bytes; !rest.empty();) {
            const ssize_t count = write(m_number, rest.data(), rest.size());
            if (count <= 0) {
                std::perror("no file in memory");
                std::exit(2);
            }
            rest.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    ~MemoryFile() { close(m_number); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::filesystem::path path() const
    {
        return "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(m_number);
    }

private:
    int m_number;
};

/// One table of a good or already damaged file, and what is read from it.
struct Original {
    std::string table;
    bool isWhole = false;  // opened without a notice
    Grid grid;
};

struct Source {
    std::string name;
    std::string bytes;
    std::vector<Original> tables;
};

/// All files of the test data that the library can get at, with the tables that they hold.
std::vector<Source> loadSources()
{
    std::vector<Source> sources;
    for (const auto& entry : std::filesystem::directory_iterator(CREWMARK_TEST_DATA)) {
        const std::string extension = entry.path().extension();
        if ((extension != ".mdb" && extension != ".accdb") || entry.file_size() < 3 * PageSize)
            continue;
        Source source{.name = entry.path().filename(), .bytes = bytesOf(entry.path()), .tables = {}};
        for (const char* table : AllTables) {
            const Reading reading = DataFile().read(entry.path(), table);
            if (!reading.reason.ends_with("Choose the .mdb file of the Sr SE."))  // it holds such a table
                source.tables.push_back(
                    {table, reading.reason.empty() && reading.notice.empty(), gridOf(reading.table)});
        }
        if (source.tables.empty())
            source.tables.push_back({"TR", false, {}});
        sources.push_back(std::move(source));
    }
    std::sort(sources.begin(), sources.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return sources;
}

std::size_t below(Random& random, std::size_t limit)
{
    return static_cast<std::size_t>(random() % limit);
}

struct Counts {
    std::atomic<std::uint64_t> cut, opened, noticed, refused, died, stopped, faults;
};

/// Tables that are read from files damaged in one way, and those of them that show something else without a word.
struct Silence {
    std::atomic<std::uint64_t> tables, changed;
};

/// Reads the tables of one damaged file and counts what became of them.
class Campaign {
public:
    Campaign(std::vector<Source> sources, std::uint64_t seed, std::string saveAs)
        : m_sources(std::move(sources)), m_seed(seed), m_saveAs(std::move(saveAs))
    {
    }

    void tryFile(std::uint64_t index)
    {
        std::seed_seq seed{m_seed, m_seed >> 32, index, index >> 32};
        Random random(seed);
        const Source& source = m_sources[below(random, m_sources.size())];
        const auto damage = static_cast<Damage>(below(random, DamageNames.size()));
        const std::string bytes = damaged(source.bytes, damage, random);
        if (isCut(damage))
            ++m_counts.cut;
        if (!m_saveAs.empty())
            std::ofstream(m_saveAs, std::ios::binary) << bytes;

        const MemoryFile file(bytes);
        for (const Original& original : source.tables) {
            const Clock::time_point start = Clock::now();
            const Reading reading = DataFile().read(file.path(), original.table);
            const bool isStuck = Clock::now() - start > Deadline + Slack;
            const std::string fault = isStuck ? "took too long" : count(reading, file, original, damage);
            if (original.isWhole)
                ++m_silence[static_cast<std::size_t>(damage)].tables;
            if (fault.empty())
                continue;
            ++m_counts.faults;
            const std::lock_guard lock(m_printing);
            std::printf("file %llu (%s, %s), table %s: %s\n", static_cast<unsigned long long>(index),
                        source.name.c_str(), DamageNames[static_cast<std::size_t>(damage)], original.table.c_str(),
                        fault.c_str());
        }
    }

    const Counts& counts() const { return m_counts; }

    void printSilence() const
    {
        std::uint64_t tables = 0;
        std::uint64_t changed = 0;
        const auto print = [](const char* name, std::uint64_t all, std::uint64_t silent) {
            std::printf("%-20s %8llu of %9llu  %6.3f %%\n", name, static_cast<unsigned long long>(silent),
                        static_cast<unsigned long long>(all),
                        all == 0 ? 0.0 : 100.0 * static_cast<double>(silent) / static_cast<double>(all));
        };
        std::printf("Tables that show something else without a word:\n");
        for (std::size_t i = 0; i < DamageNames.size(); ++i) {
            print(DamageNames[i], m_silence[i].tables, m_silence[i].changed);
            tables += m_silence[i].tables;
            changed += m_silence[i].changed;
        }
        print("all", tables, changed);
    }

private:
    /// Counts the reading; what is wrong with it, "" if nothing.
    std::string count(const Reading& reading, const MemoryFile& file, const Original& original, Damage damage)
    {
        if (reading.reason.empty() != (reading.table.rows() > 0))
            return "neither a table nor a reason, or both";
        if (reading.reason.empty() && !reading.notice.empty()) {
            ++m_counts.noticed;
            return "";
        }
        if (reading.reason.empty()) {
            ++m_counts.opened;
            const bool hasChanged = original.isWhole && gridOf(reading.table) != original.grid;
            if (hasChanged)
                ++m_silence[static_cast<std::size_t>(damage)].changed;
            return hasChanged && isCut(damage) ? "the file was cut, but no notice says so" : "";
        }
        const Asked asked{.file = file.path().filename(), .table = original.table};
        for (const Refusal refusal : {Refusal::NoProperAnswer, Refusal::NotStarted})
            if (reading.reason == reasonFor(refusal, asked))
                return reading.reason;
        // The system also stops a library that ends itself: to do so it is not allowed.
        if (reading.reason == reasonFor(Refusal::Died, asked) ||
            reading.reason == reasonFor(Refusal::Overstepped, asked))
            ++m_counts.died;
        else if (reading.reason == reasonFor(Refusal::TooSlow, asked))
            ++m_counts.stopped;
        else
            ++m_counts.refused;
        return "";
    }

    const std::vector<Source> m_sources;
    const std::uint64_t m_seed;
    const std::string m_saveAs;
    Counts m_counts{};
    std::array<Silence, DamageNames.size()> m_silence{};
    std::mutex m_printing;
};

std::optional<std::uint64_t> numberIn(const char* text)
{
    std::uint64_t number = 0;
    const char* const end = text + std::strlen(text);
    return std::from_chars(text, end, number).ptr == end ? std::optional(number) : std::nullopt;
}

}  // namespace

int main(int count, char** arguments)
{
    std::uint64_t files = 300;
    std::uint64_t seed = 1;
    std::uint64_t first = 0;
    std::uint64_t jobs = 1;
    std::string saveAs;
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string_view option = arguments[i];
        const std::optional<std::uint64_t> number = numberIn(arguments[i + 1]);
        if (option == "--save")
            saveAs = arguments[i + 1];
        else if (number && option == "--files")
            files = *number;
        else if (number && option == "--seed")
            seed = *number;
        else if (number && option == "--first")
            first = *number;
        else if (number && option == "--jobs")
            jobs = std::max<std::uint64_t>(*number, 1);
        else
            count = 0;
    }
    if (count % 2 == 0) {
        std::fprintf(stderr, "mutate_files [--files N] [--seed S] [--first I] [--jobs J] [--save FILE]\n");
        return 2;
    }

    Campaign campaign(loadSources(), seed, saveAs);
    const Clock::time_point start = Clock::now();
    std::atomic<std::uint64_t> next = first;
    std::vector<std::thread> threads;
    for (std::uint64_t job = 0; job < jobs; ++job)
        threads.emplace_back([&] {
            for (std::uint64_t index = next++; index < first + files; index = next++)
                campaign.tryFile(index);
        });
    for (std::thread& thread : threads)
        thread.join();

    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    const Counts& counts = campaign.counts();
    std::printf(
        "%llu files, %llu of them cut short, in %.1f s; tables: %llu opened, %llu opened with a notice, %llu refused, "
        "%llu killed the reader, %llu stopped by its limits; %llu faults\n",
        static_cast<unsigned long long>(files), static_cast<unsigned long long>(counts.cut), seconds,
        static_cast<unsigned long long>(counts.opened), static_cast<unsigned long long>(counts.noticed),
        static_cast<unsigned long long>(counts.refused), static_cast<unsigned long long>(counts.died),
        static_cast<unsigned long long>(counts.stopped), static_cast<unsigned long long>(counts.faults));
    campaign.printSilence();
    return counts.faults == 0 ? 0 : 1;
}
