#pragma once
#include "figures/figure.h"

namespace figures {

enum class StepKind : unsigned char {
    Constant,
    Rate,
    Input,
    Plus,
    Minus,
    Times,
    Over,
    Single,
    Whole,
    HalfEven,
    Least,
    Named,
    Chosen,
    Remarked,
};

/// One step of a computation: what was done to which parts, and what came of it. There are many thousands of them in a
/// division, made while the user waits: what few steps have stands apart, in the note.
struct Figure::Step {
    struct Note {
        std::string text{};      ///< a named step's name, the text of a choice
        std::string sentence{};  ///< of a choice or a remark
    };

    Step() = default;
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step();

    StepKind kind = StepKind::Constant;
    bool mixed = false;  ///< the parts are of several, or it is a total: nobody's
    double value = 0.0;
    StepPtr left{};                      ///< none of an input, a rate or a constant
    StepPtr right{};                     ///< of + - * / and least, of a choice made by a figure
    const Source* whose = nullptr;       ///< an input whose `of` all parts share, as far as they have one
    const Step* largest = nullptr;       ///< the input of the largest magnitude, the first of equals
    const char* rateName = nullptr;      ///< of a rate
    const char* norm = nullptr;          ///< of a rate: its line
    SourcePtr source{};                  ///< of an input or a choice: its box
    std::unique_ptr<const Note> note{};  ///< of a named step, a choice, a remark
};

}  // namespace figures
