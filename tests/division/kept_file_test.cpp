#include "division/kept_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace division {

namespace {

std::string refusalOf(const QByteArray& json)
{
    try {
        parseKeptDivision(json);
    } catch (const KeptFileError& error) {
        return error.what();
    }
    return "read";
}

std::string refusalOfFile(const QString& path)
{
    try {
        readKeptFile(path);
    } catch (const KeptFileError& error) {
        return error.what();
    }
    return "read";
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray withWorkings(int count)
{
    QByteArray list;
    for (int i = 0; i < count; ++i)
        list += QByteArray(i > 0 ? "," : "") + R"({"name": "Sr SE"})";
    return R"({"crewmark": 1, "srSes": 15, "workings": [)" + list + "]}";
}

TEST(KeptFile, GivesAllThatItHolds)
{
    // clang-format off
    const KeptDivision division = parseKeptDivision(R"json(
{ "crewmark": 1,
  "railway": "Sample Railway", "division": "Süd", "srSes": 2,
  "workings": [
    { "name": "Sr SE Ambapur", "dataFile": "1-ambapur.mdb", "note": "as of March",
      "screens": [
        { "form": "frmT1", "acts": [["optBG"], ["txtGmt(0)", "42.6"], ["txtT1(2)", ""]] },
        { "form": "frmSummary", "acts": [] } ] },
    { "name": "Sr SE Eklahra", "dataFile": "", "note": "", "screens": [] } ],
  "totals": [["txtTkm(0)", "128.9"], ["cmdTotal"]],
  "results": { "txtCS(15)": "281" } })json");
    // clang-format on

    const KeptDivision expected{
        .railway = "Sample Railway",
        .division = "Süd",
        .srSes = 2,
        .workings = {{.name = "Sr SE Ambapur",
                      .dataFile = "1-ambapur.mdb",
                      .note = "as of March",
                      .screens = {{.form = "frmT1", .acts = {{"optBG"}, {"txtGmt(0)", "42.6"}, {"txtT1(2)", ""}}},
                                  {.form = "frmSummary", .acts = {}}}},
                     {.name = "Sr SE Eklahra", .dataFile = "", .note = "", .screens = {}}},
        .totals = {{"txtTkm(0)", "128.9"}, {"cmdTotal"}},
        .results = {{"txtCS(15)", "281"}},
    };
    EXPECT_TRUE(division == expected);
}

TEST(KeptFile, NeedsNothingButItsVersionAndTheNumberOfSrSes)
{
    const KeptDivision division = parseKeptDivision(R"({"crewmark": 1, "srSes": 0})");
    EXPECT_TRUE(division == KeptDivision());
}

TEST(KeptFile, MayHoldMembersThatAreNotKnown)
{
    EXPECT_EQ(refusalOf(R"({"crewmark": 1, "srSes": 1, "kept": "2008-03-31", "workings": [
        {"name": "Sr SE", "colour": 3, "screens": [{"form": "frmT1", "acts": [], "seconds": 12.5}]}]})"),
              "read");
}

TEST(KeptFile, MayHoldFifteenSrSes)
{
    EXPECT_EQ(parseKeptDivision(withWorkings(15)).workings.size(), 15U);
    EXPECT_EQ(refusalOf(withWorkings(16)), "workings: there are 16 Sr SEs, of which 15 is the most");
}

TEST(KeptFile, MayBeginWithTheMarkOfItsEncoding)
{
    EXPECT_EQ(refusalOf("\xEF\xBB\xBF{\"crewmark\": 1, \"srSes\": 1}"), "read");
}

struct Bad {
    const char* name;
    const char* json;
    const char* message;
};

class BadFile : public testing::TestWithParam<Bad> {};

TEST_P(BadFile, IsRefusedAtItsPlace)
{
    EXPECT_EQ(refusalOf(GetParam().json), GetParam().message);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Kept, BadFile, testing::Values(
    Bad{"NoObject",    R"([1, 2])",                                     "this is no division of Crewmark"},
    Bad{"Other",       R"({"railway": "Sample Railway"})",              "this is no division of Crewmark"},
    Bad{"Later",       R"({"crewmark": 2, "srSes": 1})",                "crewmark: only version 1 can be read"},
    Bad{"VersionText", R"({"crewmark": "1", "srSes": 1})",              "crewmark: only version 1 can be read"},
    Bad{"Half",        R"({"crewmark": 1.5, "srSes": 1})",              "crewmark: only version 1 can be read"},
    Bad{"NoCount",     R"({"crewmark": 1})",                            "srSes: a whole number from 0 to 15 is expected"},
    Bad{"CountText",   R"({"crewmark": 1, "srSes": "5"})",              "srSes: a whole number from 0 to 15 is expected"},
    Bad{"HalfCount",   R"({"crewmark": 1, "srSes": 2.5})",              "srSes: a whole number from 0 to 15 is expected"},
    Bad{"Negative",    R"({"crewmark": 1, "srSes": -1})",               "srSes: a whole number from 0 to 15 is expected"},
    Bad{"TooMany",     R"({"crewmark": 1, "srSes": 16})",               "srSes: a whole number from 0 to 15 is expected"},
    Bad{"Huge",        R"({"crewmark": 1, "srSes": 1e300})",            "srSes: a whole number from 0 to 15 is expected"},
    Bad{"Railway",     R"({"crewmark": 1, "srSes": 1, "railway": 7})",  "railway: a text is expected"},
    Bad{"Division",    R"({"crewmark": 1, "srSes": 1, "division": null})", "division: a text is expected"},
    Bad{"Workings",    R"({"crewmark": 1, "srSes": 1, "workings": {}})", "workings: a list is expected"},
    Bad{"Working",     R"({"crewmark": 1, "srSes": 1, "workings": ["A"]})", "Sr SE 1: an object is expected"},
    Bad{"Name",        R"({"crewmark": 1, "srSes": 1, "workings": [{}, {"name": ["B"]}]})", "Sr SE 2, name: a text is expected"},
    Bad{"DataFile",    R"({"crewmark": 1, "srSes": 1, "workings": [{"dataFile": false}]})", "Sr SE 1, dataFile: a text is expected"},
    Bad{"Note",        R"({"crewmark": 1, "srSes": 1, "workings": [{"note": 1}]})", "Sr SE 1, note: a text is expected"},
    Bad{"Screens",     R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": "all"}]})", "Sr SE 1, screens: a list is expected"},
    Bad{"Screen",      R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": ["frmT1"]}]})", "Sr SE 1, screen 1: an object is expected"},
    Bad{"NoForm",      R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": [{"acts": []}]}]})", "Sr SE 1, screen 1, form: a text is expected"},
    Bad{"Unknown",     R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": [{"form": "frmT3"}]}]})", "Sr SE 1, screen 1: there is no screen \"frmT3\" to be worked"},
    Bad{"Start",       R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": [{"form": "frmStart"}]}]})", "Sr SE 1, screen 1: there is no screen \"frmStart\" to be worked"},
    Bad{"Order",       R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": [{"form": "frmT2"}, {"form": "frmT1"}]}]})", "Sr SE 1, screen 2: frmT1 cannot stand behind frmT2"},
    Bad{"Twice",       R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": [{"form": "frmY"}, {"form": "frmY"}]}]})", "Sr SE 1, screen 2: frmY cannot stand behind frmY"},
    Bad{"Acts",        R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": [{"form": "frmY", "acts": "cmdYdata"}]}]})", "Sr SE 1, frmY, acts: a list is expected"},
    Bad{"Act",         R"({"crewmark": 1, "srSes": 1, "workings": [{"screens": [{"form": "frmY", "acts": [["cmdYdata"], "cmdCOMPUTE"]}]}]})", "Sr SE 1, frmY, act 2: a list of a control's name and at most one text is expected"},
    Bad{"NoWord",      R"({"crewmark": 1, "srSes": 1, "totals": [[]]})", "totals, act 1: a list of a control's name and at most one text is expected"},
    Bad{"ThreeWords",  R"json({"crewmark": 1, "srSes": 1, "totals": [["txtTkm(0)", "1", "2"]]})json", "totals, act 1: a list of a control's name and at most one text is expected"},
    Bad{"Control",     R"({"crewmark": 1, "srSes": 1, "totals": [[1]]})", "totals, act 1: a text is expected"},
    Bad{"NumberAsText", R"json({"crewmark": 1, "srSes": 1, "totals": [["txtTkm(0)", 128.9]]})json", "totals, act 1: a text is expected"},
    Bad{"Results",     R"({"crewmark": 1, "srSes": 1, "results": []})", "results: an object is expected"}),
    [](const auto& tested) {
    return tested.param.name; });
// clang-format on

struct Broken {
    const char* name;
    QByteArray json;
    const char* place;
};

class BrokenFile : public testing::TestWithParam<Broken> {};

TEST_P(BrokenFile, IsRefusedAtItsLine)
{
    EXPECT_EQ(refusalOf(GetParam().json).substr(0, 8), GetParam().place);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Kept, BrokenFile, testing::Values(
    Broken{"Nothing",   "",                                             "line 1: "},
    Broken{"Prose",     "Dear Sir,",                                    "line 1: "},
    Broken{"CutOff",    "{ \"crewmark\": 1,\n  \"srSes\": 5,\n",        "line 3: "},
    Broken{"NotUtf8",   "{ \"crewmark\": 1,\n  \"railway\": \"S\xFC" "d\" }", "line 2: "},
    Broken{"Behind",    "{ \"crewmark\": 1,\n  \"srSes\": 5 }\n\n}",    "line 4: "},
    Broken{"Deep",      QByteArray(5000, '['),                          "line 1: "}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

class KeptFilePath : public testing::Test {
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

TEST_F(KeptFilePath, DataFilesAreFoundFromWhereTheKeptFileLies)
{
    write(path("division.crewmark"), R"({"crewmark": 1, "srSes": 3, "workings": [
        {"dataFile": "1.mdb"}, {"dataFile": "../old/2.mdb"}, {"dataFile": "/srv/3.mdb"}, {"dataFile": ""}]})");
    const KeptDivision division = readKeptFile(path("division.crewmark"));
    EXPECT_EQ(division.workings[0].dataFile, path("1.mdb"));
    EXPECT_EQ(division.workings[1].dataFile, QDir::cleanPath(path("../old/2.mdb")));
    EXPECT_EQ(division.workings[2].dataFile, "/srv/3.mdb");
    EXPECT_EQ(division.workings[3].dataFile, "") << "no data file";
}

TEST_F(KeptFilePath, ThatIsRelativeGivesRelativePaths)
{
    const QString relative = QDir::current().relativeFilePath(path("division.crewmark"));
    write(relative, R"({"crewmark": 1, "srSes": 1, "workings": [{"dataFile": "1.mdb"}]})");
    EXPECT_EQ(readKeptFile(relative).workings[0].dataFile, QDir::current().relativeFilePath(path("1.mdb")));
}

TEST_F(KeptFilePath, OfWhatIsNoFileIsRefused)
{
    EXPECT_EQ(refusalOfFile(path("none")), path("none").toStdString() + ": there is no such file");
    EXPECT_EQ(refusalOfFile(path("")), path("").toStdString() + ": there is no such file") << "a folder";
    EXPECT_EQ(refusalOfFile("/dev/zero"), "/dev/zero: there is no such file") << "it would never end";
}

TEST_F(KeptFilePath, MayHoldFourMebibytes)
{
    QByteArray json = R"({"crewmark": 1, "srSes": 1})";
    json += QByteArray(4 * 1024 * 1024 - json.size(), ' ');
    write(path("largest"), json);
    EXPECT_EQ(refusalOfFile(path("largest")), "read");
    write(path("larger"), json + ' ');
    EXPECT_EQ(refusalOfFile(path("larger")), path("larger").toStdString() + ": the file has more than 4 MiB");
}

}  // namespace

}  // namespace division
