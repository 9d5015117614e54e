#pragma once
#include <memory>
#include <string>

namespace figures {

/// The box that an input stands in. Kept by the box; all that is read from it shares it.
struct Source {
    std::string name;     ///< as a sentence says it: "equivalent length"
    std::string of;       ///< whose: "segment 3", or "" where there is but one
    std::string form;     ///< object name of the screen: "frmT1"
    std::string control;  ///< object name of the box: "txtEqtkm(2)"
};
using SourcePtr = std::shared_ptr<const Source>;

/// "equivalent length of segment 3".
inline std::string wholeName(const std::string& name, const std::string& of)
{
    return of.empty() ? name : name + " of " + of;
}

}  // namespace figures
