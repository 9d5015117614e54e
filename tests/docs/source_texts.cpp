#include "docs/source_texts.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "docs/pages.h"

namespace docs {

namespace {

/// Reads C++ as far as it takes to tell literals from the rest.
class Scanner {
public:
    Scanner(const std::string& source, std::string file) : m_source(source), m_file(std::move(file)) {}

    std::vector<SourceText> literals()
    {
        while (!atEnd()) {
            if (skipSpaceAndComments())
                continue;
            if (here('"'))
                m_literals.push_back(joined());
            else if (here('\'') && !isDigitSeparator())
                quoted('\'');
            else if (here('#') && m_lineStart)
                skipLine();
            else
                step();
        }
        return m_literals;
    }

private:
    bool atEnd() const { return m_at >= m_source.size(); }
    bool here(char c) const { return !atEnd() && m_source[m_at] == c; }
    bool starts(const char* with) const { return m_source.compare(m_at, 2, with) == 0; }

    void step()
    {
        m_lineStart = here('\n') || (m_lineStart && here(' '));
        m_line += here('\n') ? 1 : 0;
        ++m_at;
    }

    void skipLine()
    {
        while (!atEnd() && !here('\n'))
            step();
    }

    bool skipSpaceAndComments()
    {
        if (starts("//")) {
            skipLine();
            return true;
        }
        if (starts("/*")) {
            while (!atEnd() && !starts("*/"))
                step();
            step();
            step();
            return true;
        }
        if (atEnd() || !std::isspace(static_cast<unsigned char>(m_source[m_at])))
            return false;
        step();
        return true;
    }

    /// The ' of 10'000.
    bool isDigitSeparator() const { return m_at > 0 && std::isalnum(static_cast<unsigned char>(m_source[m_at - 1])); }

    std::string quoted(char mark)
    {
        std::string text;
        for (step(); !atEnd() && !here(mark); step()) {
            if (!here('\\')) {
                text += m_source[m_at];
                continue;
            }
            step();
            text += here('n') ? '\n' : m_source[m_at];
        }
        step();
        return text;
    }

    SourceText joined()
    {
        SourceText literal{.text = "", .where = m_file + ":" + std::to_string(m_line)};
        while (here('"')) {
            literal.text += quoted('"');
            while (skipSpaceAndComments()) {
            }
        }
        return literal;
    }

    const std::string& m_source;
    std::string m_file;
    std::size_t m_at = 0;
    int m_line = 1;
    bool m_lineStart = true;
    std::vector<SourceText> m_literals;
};

}  // namespace

std::vector<SourceText> literalsOf(const std::string& source, const std::string& file)
{
    return Scanner(source, file).literals();
}

std::vector<SourceText> sourceTexts()
{
    const std::filesystem::path root(CREWMARK_ROOT);
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root / "src")) {
        const std::string file = entry.path().lexically_relative(root).generic_string();
        const bool says = !file.starts_with("src/store/reader/") && !file.starts_with("src/division/");
        if ((file.ends_with(".h") || file.ends_with(".cpp")) && says)
            files.push_back(file);
    }
    std::sort(files.begin(), files.end());
    std::vector<SourceText> texts;
    for (const std::string& file : files)
        for (SourceText& text : literalsOf(fileText(file), file))
            texts.push_back(std::move(text));
    return texts;
}

}  // namespace docs
