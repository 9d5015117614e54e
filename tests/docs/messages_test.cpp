// docs/guide/messages.md against the program: every text that it can say stands in the guide, reads as it says there,
// and the guide tells of no text that the program does not have.

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <regex>

#include "activities/misc/misc_norms.h"
#include "activities/site/site_norms.h"
#include "docs/pages.h"
#include "docs/source_texts.h"
#include "figures/conversions.h"
#include "figures/error_of.h"
#include "figures/numeric_text.h"
#include "screens/controls/text_box.h"
#include "store/refusal.h"
#include "store/table.h"
#include "track/augmentation.h"
#include "track/main_line_norms.h"
#include "track/track_length.h"

namespace {

const char* const Page = "docs/guide/messages.md";
constexpr std::string_view Varies = "…";  // what a page writes for the part of a text that varies

/// Literals that no user meets, and why.
struct Unseen {
    const char* text;
    const char* why;
};
// clang-format off
const Unseen NobodySees[] = {
    {"Times New Roman",                      "the name of a font"},
    {"crewmark-reader 1",                    "spoken between the program and its reader"},
    {"no screen of this kind in the chain:", "a mistake of the programmer's, at the first start"},
    {"has no element",                       "a mistake of the programmer's: no screen asks for other elements"},
    {"Run-time error",                       "the compiler wants it: there is no further kind of error"},
    {"the figure to show",                   "every figure is checked before it is shown"},
    {"the number of Sr SEs",                 "cut to 15 before it is converted"},
    {"the number of shifts of level crossings", "fixed: 1, 2 and 3"},
    {"the table has no row for the index",   "the program itself counts it, from 1 to 15"},
    {"the row",                              "1 to 16 by then"},
    {"the button",                           "the number of the OK button"},
    {"the first page",                       "Print ends quietly"},
    {"the last page",                        "Print ends quietly"},
    {"the number of copies",                 "Print ends quietly"},
    {"the printer gave out",                 "Print ends quietly"},
    {"the print-out is not whole",           "Print ends quietly"},
    {"the printer did not start",            "Print ends quietly"},
    {"the printer took no further page",     "Print ends quietly"},
    {"the printer did not finish",           "Print ends quietly"},
    {"whole part of",                        "no screen shows yet how a figure came about"},
};
// clang-format on

std::vector<std::string> textsOfTheGuide()
{
    std::vector<std::string> texts;
    for (const char* page : {"docs/guide.md", "docs/guide/screens.md", Page})
        for (const std::string& text : docs::quoted(docs::fileText(page)))
            texts.push_back(text);
    return texts;
}

/// The messages of the guide's page: what stands between backquotes in the first cell of each row.
std::vector<std::string> messagesOfThePage()
{
    std::vector<std::string> texts;
    for (const docs::Row& row : docs::tableRows(docs::fileText(Page)))
        for (const std::string& text : docs::quoted(row.cells.at(0)))
            texts.push_back(text);
    return texts;
}

/// A literal as the user sees it: a button's caption without its mnemonic's mark, a kind of files without its pattern.
std::string asShown(std::string text)
{
    std::erase(text, '&');
    return docs::simplified(text.substr(0, text.find('|')));
}

/// The fixed parts of a text, around the places where another is put in: "%1" in the sources.
std::vector<std::string> fixedParts(const std::string& text)
{
    static const std::regex place("%[0-9]");
    std::vector<std::string> parts;
    for (std::sregex_token_iterator part(text.begin(), text.end(), place, -1), last; part != last; ++part)
        parts.push_back(docs::simplified(part->str()));
    return parts;
}

/// Two words at least: one word alone is a name, a file's ending, a unit.
bool isProse(const std::string& text)
{
    static const std::regex twoWords("[A-Za-z][^ ]* (.* )?[^ ]*[A-Za-z]");
    return std::regex_search(text, twoWords);
}

/// Whether a text reads as a message of the page, "…" standing for anything but nothing.
bool readsAs(std::string_view text, std::string_view message)
{
    const std::size_t place = message.find(Varies);
    if (place == std::string_view::npos)
        return text == message;
    if (text.size() <= place || text.substr(0, place) != message.substr(0, place))
        return false;
    const std::string_view rest = message.substr(place + Varies.size());
    for (std::size_t from = place + 1; from <= text.size(); ++from)
        if (readsAs(text.substr(from), rest))
            return true;
    return false;
}

std::string saidBy(const std::function<void()>& computation)
{
    return errorOf(computation).what();
}

std::string remarkOn(const QString& typed)
{
    controls::TextBox box("box");
    box.setLimit(12);
    box.setText(typed);
    return box.remark().toStdString();
}

/// Texts that the program puts together from parts, as it says them.
std::vector<std::string> composedTexts()
{
    constexpr float huge = std::numeric_limits<float>::max();
    const store::Asked asked{.file = "1-ambapur.mdb", .table = "TR"};
    const store::Table table("TR", {"ID", "NSEG"});
    const site::GangLength tiny{.poorVisibilityKm = 1.0F, .lengthKm = 1e-45F};

    std::vector<std::string> texts = {
        saidBy([] { track::augmentations(std::vector<track::SegmentGround>(1)); }),
        saidBy([] { figures::strictSingle("two", "the number of segment 2", 1); }),
        saidBy([&] { table.text(7, 1); }),
        saidBy([&] { table.text(0, 21); }),
        saidBy([] { figures::valueOf("1e999"); }),
        saidBy([] { figures::toSingle(1e300, "the rainfall of segment 1"); }),
        saidBy([] { figures::requireFinite(1e308 * 10, "the total km of segment 1"); }),
        saidBy([] { figures::toInt16(40000, "the number of men of beat length 1"); }),
        saidBy([] { site::lookOutMandays(std::vector<site::GangLength>(1)); }),
        saidBy([&] { site::lookOutMandays(std::span(&tiny, 1)); }),
        saidBy([] { track::addWeldedRail(huge, huge, 0); }),
        saidBy([] { track::ngMandays({.eqLengthKm = 1.0, .gmt = 1.0, .factor = huge, .concreteKm = 0.0}, 0); }),
        remarkOn("13"),
        remarkOn("3km"),
    };
    controls::TextBox figure("box");
    figure.setNumeric();
    figure.setText("1e999");
    texts.push_back(figure.remark().toStdString());

    for (int refusal = 1; refusal <= static_cast<int>(store::Refusal::NotStarted); ++refusal)
        texts.push_back(store::reasonFor(static_cast<store::Refusal>(refusal), asked));
    for (const store::Shortfall& shortfall : std::vector<store::Shortfall>{
             {.recordsSaid = 16, .recordsRead = 9, .columnsUnreadable = {}},
             {.recordsSaid = 16, .recordsRead = 9, .endsInsidePage = true, .columnsUnreadable = {}},
             {.recordsLost = true, .columnsUnreadable = {}},
             {.recordsLost = true, .endsInsidePage = true, .columnsUnreadable = {}},
             {.endsInsidePage = true, .columnsUnreadable = {}},
             {.changed = true},
             {.recordsDamaged = {1}},
             {.recordsDamaged = {1, 2}},
             {.recordsDamaged = {1, 2, 3, 4, 5, 6, 7}},
             {.cellsUnreadable = 1, .columnsUnreadable = {}},
             {.cellsUnreadable = 2, .columnsUnreadable = {}},
             {.columnsUnreadable = {"PICTURE"}},
             {.columnsUnreadable = {"PICTURE", "TOTAL"}},
         })
        texts.push_back(store::noticeFor(shortfall));
    return texts;
}

TEST(Messages, EveryTextOfTheSourcesStandsInTheGuide)
{
    const std::vector<std::string> guide = textsOfTheGuide();
    const auto stands = [&](const std::string& part) {
        return std::any_of(guide.begin(), guide.end(),
                           [&](const std::string& text) { return text.find(part) != std::string::npos; });
    };
    const auto nobodySees = [](const std::string& part) {
        return std::any_of(std::begin(NobodySees), std::end(NobodySees),
                           [&](const Unseen& unseen) { return part == unseen.text; });
    };
    for (const docs::SourceText& literal : docs::sourceTexts())
        for (const std::string& part : fixedParts(asShown(literal.text)))
            EXPECT_TRUE(!isProse(part) || nobodySees(part) || stands(part))
                << "the guide does not tell of `" << part << "`, " << literal.where;
}

TEST(Messages, WhatNobodySeesIsThere)
{
    const std::vector<docs::SourceText> sources = docs::sourceTexts();
    for (const Unseen& unseen : NobodySees)
        EXPECT_TRUE(
            std::any_of(sources.begin(), sources.end(),
                        [&](const docs::SourceText& literal) { return docs::simplified(literal.text) == unseen.text; }))
            << "the program has no text \"" << unseen.text << "\" any more";
}

TEST(Messages, ReadAsThePageSays)
{
    const std::vector<std::string> page = messagesOfThePage();
    for (const std::string& text : composedTexts())
        EXPECT_TRUE(
            std::any_of(page.begin(), page.end(), [&](const std::string& message) { return readsAs(text, message); }))
            << Page << " has no message that reads: " << text;
}

TEST(Messages, OfThePageAreTheProgramsOwn)
{
    std::vector<std::string> program = composedTexts();
    for (const docs::SourceText& literal : docs::sourceTexts())
        program.push_back(asShown(literal.text));
    for (const std::string& message : messagesOfThePage())
        EXPECT_TRUE(std::any_of(program.begin(), program.end(),
                                [&](const std::string& text) { return readsAs(text, message); }))
            << Page << ": the program never says `" << message << "`";
}

TEST(SourceTexts, AreLiteralsAlone)
{
    const std::string source = "#include \"no.h\"\n"
                               "// \"no\"\n"
                               "char c = '\"'; int many = 10'000;  /* \"no\" */\n"
                               "f(\"one \\\"two\\\"\"\n"
                               "  \" three\\n\");\n"
                               "g(\"four\", \"five\");\n";
    std::string found;
    for (const docs::SourceText& literal : docs::literalsOf(source, "f.cpp"))
        found += literal.where + " " + literal.text + "|";
    EXPECT_EQ(found, "f.cpp:4 one \"two\" three\n|f.cpp:6 four|f.cpp:6 five|");
}

}  // namespace
