#pragma once
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The pages of docs/ as the tests need them: plain Markdown, tables of one line a row, texts between backquotes.
namespace docs {

/// The whole of a file, by its path from the root of the repository.
std::string fileText(const std::string& path);

/// Without blanks at the ends, runs of blanks and line ends as one blank: as a page shows a text.
std::string simplified(std::string_view text);

/// Every text between backquotes, simplified.
std::vector<std::string> quoted(std::string_view markdown);

/// The tables' rows, cell by cell as they stand, headings and rulers left out. `line` counts from 1.
struct Row {
    std::vector<std::string> cells;
    int line = 0;
};
std::vector<Row> tableRows(std::string_view markdown);

/// What stands under each heading of the second level, by the heading's text.
std::map<std::string, std::string> sections(std::string_view markdown);

}  // namespace docs
