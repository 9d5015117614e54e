// Every link of the repository's pages leads to a file that is there, and to a heading that it has.

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <set>

#include "docs/pages.h"

namespace {

std::vector<std::string> pages()
{
    const std::filesystem::path root(CREWMARK_ROOT);
    std::vector<std::string> found;
    const auto take = [&](const std::filesystem::path& file) {
        if (file.extension() == ".md")
            found.push_back(file.lexically_relative(root).generic_string());
    };
    for (const auto& entry : std::filesystem::directory_iterator(root))
        take(entry.path());
    for (const char* folder : {"docs", "samples", "tests"})
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder))
            take(entry.path());
    return found;
}

/// The name by which a link finds a heading: small letters, blanks as hyphens, without punctuation.
std::string anchorOf(const std::string& heading)
{
    std::string anchor;
    for (const char c : heading) {
        if (c == ' ')
            anchor += '-';
        else if (std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_')
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return anchor;
}

std::set<std::string> anchorsOf(const std::string& page)
{
    static const std::regex heading("(?:^|\n)#+ ([^\n]*)");
    const std::string text = docs::fileText(page);
    std::set<std::string> anchors;
    for (std::sregex_iterator found(text.begin(), text.end(), heading), last; found != last; ++found)
        anchors.insert(anchorOf((*found)[1]));
    return anchors;
}

TEST(Links, LeadSomewhere)
{
    static const std::regex link(R"(\]\(([^)#]*)#?([^)]*)\))");
    const std::filesystem::path root(CREWMARK_ROOT);
    for (const std::string& page : pages()) {
        const std::string text = docs::fileText(page);
        for (std::sregex_iterator found(text.begin(), text.end(), link), last; found != last; ++found) {
            const std::string target = (*found)[1];
            const std::string anchor = (*found)[2];
            if (target.starts_with("http"))
                continue;
            const std::string file =
                target.empty() ? page
                               : (std::filesystem::path(page).parent_path() / target).lexically_normal().string();
            const bool there = std::filesystem::exists(root / file);
            EXPECT_TRUE(there) << page << " points to " << target << ", which is not there";
            const bool toHeading = there && !anchor.empty() && file.ends_with(".md");
            EXPECT_TRUE(!toHeading || anchorsOf(file).contains(anchor))
                << page << ": " << file << " has no heading #" << anchor;
        }
    }
}

}  // namespace
