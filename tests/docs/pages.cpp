#include "docs/pages.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace docs {

namespace {

std::vector<std::string> linesOf(std::string_view text)
{
    std::vector<std::string> lines;
    std::istringstream stream{std::string(text)};
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

bool isRuler(std::string_view line)
{
    return line.starts_with("|") && line.find_first_not_of("|-: ") == std::string_view::npos;
}

std::vector<std::string> cellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream stream(line.substr(1));
    for (std::string cell; std::getline(stream, cell, '|');)
        cells.push_back(simplified(cell));
    return cells;
}

}  // namespace

std::string fileText(const std::string& path)
{
    std::ifstream file(std::string(CREWMARK_ROOT) + "/" + path);
    EXPECT_TRUE(file) << "cannot read " << path;
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string simplified(std::string_view text)
{
    std::istringstream words{std::string(text)};
    std::string line;
    for (std::string word; words >> word;)
        line += (line.empty() ? "" : " ") + word;
    return line;
}

std::vector<std::string> quoted(std::string_view markdown)
{
    std::vector<std::string> texts;
    for (std::size_t open = markdown.find('`'); open != std::string_view::npos;) {
        const std::size_t close = markdown.find('`', open + 1);
        if (close == std::string_view::npos) {
            ADD_FAILURE() << "a backquote without its partner: " << markdown.substr(open, 60);
            break;
        }
        texts.push_back(simplified(markdown.substr(open + 1, close - open - 1)));
        open = markdown.find('`', close + 1);
    }
    return texts;
}

std::vector<Row> tableRows(std::string_view markdown)
{
    const std::vector<std::string> lines = linesOf(markdown);
    std::vector<Row> rows;
    bool below = false;  // the ruler
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (isRuler(lines[i]))
            below = true;
        else if (!lines[i].starts_with("|"))
            below = false;
        else if (below)
            rows.push_back({cellsOf(lines[i]), static_cast<int>(i) + 1});
    }
    return rows;
}

std::map<std::string, std::string> sections(std::string_view markdown)
{
    std::map<std::string, std::string> found;
    std::string heading;
    for (const std::string& line : linesOf(markdown)) {
        if (line.starts_with("## "))
            heading = simplified(line.substr(3));
        else if (!heading.empty())
            found[heading] += line + "\n";
    }
    return found;
}

}  // namespace docs
