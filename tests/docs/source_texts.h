#pragma once
#include <string>
#include <vector>

namespace docs {

/// A string literal of the program, adjacent pieces joined and escapes resolved.
struct SourceText {
    std::string text;
    std::string where;  ///< "src/track/frmT1.cpp:57"
};

/// Every string literal under src/, comments and #-lines left out. The reader program's own folder is left out too: it
/// says nothing to the user, its findings are put into words by the store. So is the replay of a kept division: the
/// program opens none, only the worked example does.
std::vector<SourceText> sourceTexts();

/// The same for one file's text.
std::vector<SourceText> literalsOf(const std::string& source, const std::string& file);

}  // namespace docs
