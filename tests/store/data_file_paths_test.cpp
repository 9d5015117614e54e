// Whatever lies where the data file should be, and however it is called.

#include <atomic>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "store/data_file.h"
#include "store/files.h"

namespace store {
namespace {

using Clock = std::chrono::steady_clock;

/// Nothing here may be waited for; a good second is far below the reader's limits and above any slowness of a machine.
constexpr auto AtOnce = std::chrono::milliseconds(1500);

void expectRefusedAtOnce(const std::filesystem::path& path, const std::string& reason)
{
    const Clock::time_point start = Clock::now();
    const Reading reading = DataFile().read(path, "TR");
    EXPECT_LT(Clock::now() - start, AtOnce) << path;
    EXPECT_EQ(reading.reason, reason) << path;
    EXPECT_EQ(reading.table.rows(), 0) << path;
}

const std::string ChooseFile = " Choose the .mdb file of the Sr SE.";

TEST(DataFilePath, AnyNameWillDo)
{
    const Folder folder;
    for (const std::string name :
         {"two words.mdb", "it's \"quoted\".mdb", "line\nbreak.mdb", "अंबापुर.mdb", "-h.mdb", "--help", "$(id).mdb",
          "a;b&c|d.mdb", "no point", "*?[x].mdb", "back\\slash.mdb", "caf\xe9.mdb", "\x7f.mdb", "%s%n.mdb"}) {
        const std::filesystem::path copy = folder.path() / name;
        std::filesystem::copy_file(sample("1-ambapur.mdb"), copy);
        const Reading reading = DataFile().read(copy, "TR");
        EXPECT_EQ(reading.reason, "") << name;
        EXPECT_EQ(gridOf(reading.table), expectedGrid("1-ambapur", "TR")) << name;
    }
}

TEST(DataFilePath, ARelativePathMayStartWithAHyphen)
{
    const Folder folder;
    std::filesystem::copy_file(sample("1-ambapur.mdb"), folder.path() / "--version");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    const Reading reading = DataFile().read("--version", "TR");
    std::filesystem::current_path(before);
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.table.rows(), 6);  // headings + 5 segments
}

TEST(DataFilePath, ALinkLeadsToItsFile)
{
    const Folder folder;
    std::filesystem::create_symlink(std::filesystem::absolute(sample("1-ambapur.mdb")), folder.path() / "link.mdb");
    std::filesystem::create_symlink("circle.mdb", folder.path() / "circle.mdb");
    EXPECT_EQ(DataFile().read(folder.path() / "link.mdb", "TR").reason, "");
    expectRefusedAtOnce(folder.path() / "circle.mdb", "There is no file \"circle.mdb\"." + ChooseFile);
}

TEST(DataFilePath, TheNameIsShownAsItCanBe)
{
    expectRefusedAtOnce("/nowhere/two words.mdb", "There is no file \"two words.mdb\"." + ChooseFile);
    expectRefusedAtOnce("/nowhere/अंबापुर.mdb", "There is no file \"अंबापुर.mdb\"." + ChooseFile);
    expectRefusedAtOnce("/nowhere/line\nbreak.mdb", "There is no file \"line break.mdb\"." + ChooseFile);
    // 50 letters of 3 bytes: cut behind the 40th, at 120 bytes
    std::string letters;
    for (int i = 0; i < 50; ++i)
        letters += "क";
    expectRefusedAtOnce("/nowhere/" + letters, "There is no file \"" + letters.substr(0, 120) + "...\"." + ChooseFile);
    // 121 bytes, the 120th and 121st of which are one letter
    expectRefusedAtOnce("/nowhere/" + std::string(119, 'x') + "é",
                        "There is no file \"" + std::string(119, 'x') + "...\"." + ChooseFile);
}

TEST(DataFilePath, WhatNoFileCanBeCalledIsNoFile)
{
    expectRefusedAtOnce("", "There is no file \"\"." + ChooseFile);
    expectRefusedAtOnce("/" + std::string(300, 'n'),
                        "There is no file \"" + std::string(120, 'n') + "...\"." + ChooseFile);

    std::string longPath;
    while (longPath.size() <= PATH_MAX)
        longPath += "/folder";
    expectRefusedAtOnce(longPath + "/x.mdb", "There is no file \"x.mdb\"." + ChooseFile);
    std::string enormousPath;
    while (enormousPath.size() <= std::size_t{4} << 20)
        enormousPath += longPath;
    expectRefusedAtOnce(enormousPath + "/x.mdb", "There is no file \"x.mdb\"." + ChooseFile);

    const std::string sampleAndMore = sample("1-ambapur.mdb").native() + std::string("\0.mdb", 5);
    expectRefusedAtOnce(sampleAndMore, "There is no file \"1-ambapur.mdb .mdb\"." + ChooseFile);
}

TEST(DataFilePath, ATablesNameMayHoldAnything)
{
    for (const std::string& name :
         {std::string("TR\0", 3), std::string("-"), std::string("\xff"), std::string(5000, 'T')})
        EXPECT_EQ(DataFile().read(sample("1-ambapur.mdb"), name).reason,
                  std::string(R"("1-ambapur.mdb" holds no table ")").append(name).append("\"." + ChooseFile));
}

TEST(DataFilePath, AFolderIsNoFile)
{
    const Folder folder;
    const std::string name = folder.path().filename();
    expectRefusedAtOnce(folder.path(), "\"" + name + "\" is a folder." + ChooseFile);
    expectRefusedAtOnce(folder.path() / "", "\"" + name + "\" is a folder." + ChooseFile);
    expectRefusedAtOnce("/", "\"/\" is a folder." + ChooseFile);
}

TEST(DataFilePath, APipeIsNotWaitedFor)
{
    const Folder folder;
    const std::filesystem::path pipe = folder.path() / "pipe.mdb";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectRefusedAtOnce(pipe, "\"pipe.mdb\" is a device, not a file." + ChooseFile);
}

TEST(DataFilePath, ADeviceIsNotRead)
{
    expectRefusedAtOnce("/dev/zero", "\"zero\" is a device, not a file." + ChooseFile);
    expectRefusedAtOnce("/dev/null", "\"null\" is a device, not a file." + ChooseFile);
    expectRefusedAtOnce("/dev/stdin", DataFile().read("/dev/stdin", "TR").reason);  // whatever it is
}

TEST(DataFilePath, AHugeFileIsAnsweredAtOnce)
{
    const Folder folder;
    const std::filesystem::path zeros = folder.path() / "zeros.mdb";
    std::ofstream(zeros).put('\0');
    std::filesystem::resize_file(zeros, std::uintmax_t{2} << 30);
    expectRefusedAtOnce(zeros, "\"zeros.mdb\" is not an Access data file." + ChooseFile);

    // A good file with a long tail: nothing of the tail belongs to its tables.
    const std::filesystem::path tail = folder.path() / "tail.mdb";
    std::filesystem::copy_file(sample("1-ambapur.mdb"), tail);
    std::filesystem::permissions(tail, std::filesystem::perms::owner_all);
    std::filesystem::resize_file(tail, std::uintmax_t{2} << 30);
    const Clock::time_point start = Clock::now();
    const Reading reading = DataFile().read(tail, "TR");
    EXPECT_LT(Clock::now() - start, AtOnce);
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(gridOf(reading.table), expectedGrid("1-ambapur", "TR"));
}

/// For as long as this lives the program may read only what everybody may read. Root has to give up its rights.
class AsNobody {
public:
    AsNobody() : m_given(geteuid() != 0 || seteuid(65534) == 0) {}
    ~AsNobody()
    {
        if (getuid() == 0 && seteuid(0) != 0)
            std::abort();
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

    bool given() const { return m_given; }

private:
    bool m_given;
};

TEST(DataFilePath, AFileThatMayNotBeReadSaysSo)
{
    const Folder folder;
    const std::filesystem::path copy = folder.path() / "secret.mdb";
    std::filesystem::copy_file(sample("1-ambapur.mdb"), copy);
    std::filesystem::permissions(copy, std::filesystem::perms::none);
    std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
    // A reader that everybody may start, wherever the build lies.
    const Folder open;
    const std::filesystem::path reader = open.path() / "crewmark-reader";
    std::filesystem::copy_file(DataFile::installedReader(), reader);
    std::filesystem::permissions(open.path(), std::filesystem::perms::all);
    const DataFile dataFile(reader);
    Reading unreadable;
    Reading inClosedFolder;
    {
        const AsNobody nobody;
        if (!nobody.given() || faccessat(AT_FDCWD, reader.c_str(), X_OK, AT_EACCESS) != 0)
            GTEST_SKIP() << "no user here who may start the reader but not read the file";
        unreadable = dataFile.read(copy, "TR");
    }
    EXPECT_EQ(unreadable.reason,
              "\"secret.mdb\" cannot be opened. Check that you may read it and that its disk is at hand.");
    std::filesystem::permissions(folder.path(), std::filesystem::perms::none);
    {
        const AsNobody nobody;
        inClosedFolder = dataFile.read(copy, "TR");
    }
    std::filesystem::permissions(folder.path(), std::filesystem::perms::owner_all);
    EXPECT_EQ(inClosedFolder.reason, unreadable.reason);
}

/// For as long as this lives the file's time of change does not stand still: at least now and then, on a busy machine.
class Touching {
public:
    explicit Touching(std::filesystem::path path)
        : m_thread([this, path = std::move(path)] {
              for (auto time = std::filesystem::file_time_type::clock::now(); !m_done; time += std::chrono::seconds(1))
                  std::filesystem::last_write_time(path, time);
          })
    {
    }
    ~Touching()
    {
        m_done = true;
        m_thread.join();
    }
    Touching(const Touching&) = delete;
    Touching& operator=(const Touching&) = delete;

private:
    std::atomic<bool> m_done = false;
    std::thread m_thread;
};

/// What is said of a file that is touched all the time, and that said `before` as long as it was left alone.
Reading readWhileTouched(const std::filesystem::path& path, const std::string& before)
{
    const Touching touching(path);
    for (int tries = 0; tries < 100; ++tries)
        if (Reading reading = DataFile().read(path, "TR"); reading.reason + reading.notice != before)
            return reading;
    return DataFile().read(path, "TR");
}

TEST(DataFilePath, AFileThatIsWrittenToWhileItIsReadSaysSo)
{
    const Folder folder;
    const std::filesystem::path path = folder.path() / "file.mdb";
    std::ofstream(path, std::ios::binary) << bytesOf(dataFile("many-records.mdb"));
    EXPECT_EQ(DataFile().read(path, "TR").notice, "");
    EXPECT_FALSE(DataFile().read(path, "TR").isStale);
    const Reading reading = readWhileTouched(path, "");
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.notice, "The file was written to while it was read: import again.");
    EXPECT_TRUE(reading.isStale);
    EXPECT_EQ(reading.table.rows(), 20001);
    EXPECT_EQ(DataFile().read(path, "TR").notice, "");
}

TEST(DataFilePath, AFileThatCannotBeReadWhileItIsWrittenToIsNotCalledDamaged)
{
    const Folder folder;
    const std::filesystem::path path = folder.path() / "file.mdb";
    std::ofstream(path, std::ios::binary) << bytesOf(dataFile("damaged-endless.mdb"));
    const std::string damaged = DataFile().read(path, "TR").reason;
    EXPECT_TRUE(damaged.starts_with("\"file.mdb\" is damaged")) << damaged;
    EXPECT_EQ(readWhileTouched(path, damaged).reason,
              "\"file.mdb\" was written to while it was read. Wait until it is saved, then choose it again.");
}

TEST(DataFilePath, AFileThatChangesMeanwhileIsReadOrRefused)
{
    const Folder folder;
    const std::filesystem::path path = folder.path() / "changing.mdb";
    const std::string good = bytesOf(dataFile("records-200.mdb"));
    // Somebody copies the file over itself, from nothing to its whole length, again and again.
    std::ofstream writer;
    std::size_t written = good.size();
    for (int round = 0; round < 60; ++round) {
        if (written >= good.size()) {
            writer = std::ofstream(path, std::ios::binary);
            written = 0;
        }
        const std::size_t piece = std::min<std::size_t>(good.size() - written, 9001);
        writer.write(good.data() + written, static_cast<std::streamsize>(piece)).flush();
        written += piece;

        const Reading reading = DataFile().read(path, "TR");
        const bool isWhole = written == good.size();
        EXPECT_EQ(reading.reason.empty() && reading.notice.empty(), isWhole)
            << written << " bytes: " << reading.reason << reading.notice;
    }
    std::filesystem::remove(path);
    expectRefusedAtOnce(path, "There is no file \"changing.mdb\"." + ChooseFile);
}

}  // namespace
}  // namespace store
