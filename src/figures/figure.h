#pragma once
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "figures/run_time_error.h"

namespace figures {

/// A number of the norms: its value in the unit of its declaration, what it is called, and the line of the norms that
/// it stands in.
struct Rate {
    double value;
    const char* name;  ///< "'T' per km"
    const char* norm;  ///< "Main line, broad gauge, machine packed"
};

/// What the user chose that decides how a figure is worked out: a gauge, a method, a number of rows.
struct Choice {
    std::string text;  ///< "BG"
    SourcePtr source;
};

/// A double together with how it came about. Arithmetic computes and notes in the same step, so that the explanation
/// of a figure is its computation: no formula stands anywhere a second time. Copies are cheap and share their steps.
///
/// All arithmetic is double precision. Where a norm rounds, the step says so: single() to single precision, whole() to
/// the floor, halfEven() to a whole number of 16 bits.
class Figure {
public:
    /// A constant of a formula.
    Figure(double constant = 0.0);  // NOLINT(google-explicit-constructor): formulas read as they are printed
    /// A rate of the norms.
    Figure(const Rate& rate);  // NOLINT(google-explicit-constructor)

    /// What was read from a box.
    static Figure input(double value, SourcePtr source);

    double value() const;

    /// A step that deserves a line of its own, from here on called `name` ("'T' mandays").
    /// Throws RunTimeError (overflow) if it is not finite, with the box of the largest input as the place.
    Figure named(std::string_view name) const;
    /// The same for a total over rows: it is no row's, even where there is but one. An error says at which row.
    Figure totalled(std::string_view name) const;

    /// The same figure, with what decided how it is worked out told as a sentence ("Broad gauge.").
    Figure chosen(const Choice& by, std::string_view sentence) const;
    Figure chosen(const Figure& by, std::string_view sentence) const;
    /// The same figure, with a sentence on what a reader would not expect.
    Figure remarked(std::string_view sentence) const;

    struct Step;
    /// The step that made it: the same for all copies.
    const Step* step() const { return m_step.get(); }

private:
    explicit Figure(std::shared_ptr<const Step> step) : m_step(std::move(step)) {}

    friend Figure operator+(const Figure& left, const Figure& right);
    friend Figure operator-(const Figure& left, const Figure& right);
    friend Figure operator*(const Figure& left, const Figure& right);
    friend Figure ratio(const Figure& left, const Figure& right, ErrorKind whenZero);
    friend Figure single(const Figure& figure, std::string_view name, ErrorKind whenTooLarge);
    friend Figure whole(const Figure& figure);
    friend Figure halfEven(const Figure& figure, std::string_view name);
    friend Figure least(const Figure& left, const Figure& right);

    std::shared_ptr<const Step> m_step;
};
using StepPtr = std::shared_ptr<const Figure::Step>;

Figure operator+(const Figure& left, const Figure& right);
Figure operator-(const Figure& left, const Figure& right);
Figure operator*(const Figure& left, const Figure& right);
/// `left` / `right`. Throws RunTimeError of the kind `whenZero` that names the divisor, with its box as the place.
Figure ratio(const Figure& left, const Figure& right, ErrorKind whenZero = ErrorKind::DivisionByZero);
inline Figure operator/(const Figure& left, const Figure& right)
{
    return ratio(left, right);
}
/// Rounded to single precision, half to even. Beyond a single's range throws RunTimeError of the kind `whenTooLarge`
/// that calls the figure `name` ("'T' rate"), or by the name of its input.
Figure single(const Figure& figure, std::string_view name = {}, ErrorKind whenTooLarge = ErrorKind::Overflow);
/// The largest whole number that is not above.
Figure whole(const Figure& figure);
/// The nearest whole number of 16 bits, half to even. Beyond them throws RunTimeError (overflow) as single() does.
Figure halfEven(const Figure& figure, std::string_view name = {});
Figure least(const Figure& left, const Figure& right);

/// What goes into a figure: a box, a rate, or an earlier step with a name.
struct Ingredient {
    std::string name{};  ///< "GMT", with whose it is where the figure takes those of several ("GMT of segment 2")
    double value = 0.0;
    std::string text{};                  ///< of a choice, which has no value: "BG"
    std::string norm{};                  ///< of a rate: its line of the norms
    SourcePtr source{};                  ///< of a box
    const Figure::Step* step = nullptr;  ///< of a named step: to be explained in its turn
};

/// How a figure came about, one step with a name of its own. The line in figures is exact: reworked in double from left
/// to right, with the operators + − × ÷ and the functions single, whole, halfEven and least as they are named, it gives
/// `value` to the last bit.
struct Working {
    std::string name;  ///< "'T' mandays of segment 1"
    double value = 0.0;
    std::string words;                    ///< "('T' per km + 'T' per km and GMT × GMT) × factor × equivalent length"
    std::string figures;                  ///< "(80 + 2.3 × 42.6) × single(1.031955) × 39.9"
    std::vector<Ingredient> ingredients;  ///< in the order of the formula, each once
    std::vector<std::string> remarks;
};

/// Of the figure's last named step, or of the whole of it where none has a name.
Working workingOf(const Figure& figure);
/// Of a step that goes into a figure which is still there.
Working workingOf(const Figure::Step& step);

/// The shortest text that reads back as the same double: "0.1", "1e-07".
std::string exactText(double value);

}  // namespace figures
