#include "figures/figure.h"

#include "figures/conversions.h"
#include "figures/numeric_text.h"
#include "figures/run_time_error.h"
#include "figures/step.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace figures {

namespace {

using Step = Figure::Step;

/// A result that is too large comes from the largest input.
SourcePtr placeOf(const Step& step)
{
    return step.largest ? step.largest->source : nullptr;
}

/// "the number of 'T' mandays of segment 3"; of a total, "the total of 'T'+'R' mandays at segment 3", where its largest
/// part is from. Without a name, the input's.
std::string called(const Step& step, const SourcePtr& place, std::string_view given)
{
    std::string name(given);
    if (name.empty())
        name = step.kind == StepKind::Named ? step.note->text : place ? place->name : "figure";
    const bool counted = name.ends_with("mandays") && !name.starts_with("total of");
    name.insert(0, counted ? "the number of " : "the ");
    if (!step.mixed)
        return step.whose ? name + " of " + step.whose->of : name;
    return place && !place->of.empty() ? name + " at " + place->of : name;
}

[[noreturn]] void tooLarge(const Step& step, std::string_view name = {}, ErrorKind kind = ErrorKind::Overflow,
                           const char* reason = "too large to compute with")
{
    const SourcePtr place = placeOf(step);
    const std::string number = std::isfinite(step.value) ? textOf(step.value) + ", " : "";
    throw RunTimeError(kind, called(step, place, name) + " is " + number + reason, place);
}

// Whose the part is, is whose the result is; of several, nobody's.
void takeIn(Step& step, const Step* part)
{
    if (!part)
        return;
    step.mixed = step.mixed || part->mixed;
    if (!step.whose)
        step.whose = part->whose;
    else if (part->whose && part->whose != step.whose && part->whose->of != step.whose->of)
        step.mixed = true;
    if (part->largest && !(step.largest && std::abs(part->largest->value) <= std::abs(step.largest->value)))
        step.largest = part->largest;
}

std::shared_ptr<Step> made(StepKind kind, double value, StepPtr left = {}, StepPtr right = {})
{
    auto step = std::make_shared<Step>();
    step->kind = kind;
    step->value = value;
    takeIn(*step, left.get());
    takeIn(*step, right.get());
    step->left = std::move(left);
    step->right = std::move(right);
    return step;
}

std::shared_ptr<Step> noted(StepKind kind, const StepPtr& of, Step::Note note)
{
    auto step = made(kind, of->value, of);
    step->note = std::make_unique<const Step::Note>(std::move(note));
    return step;
}

}  // namespace

// A total that many a Compute added to is a long chain of left parts: not to be given up one inside the other.
Step::~Step()
{
    while (left && left.use_count() == 1)
        left = std::move(const_cast<Step&>(*left).left);
}

Figure::Figure(double constant) : m_step(made(StepKind::Constant, constant))
{
}

Figure::Figure(const Rate& rate)
{
    auto step = made(StepKind::Rate, rate.value);
    step->rateName = rate.name;
    step->norm = rate.norm;
    m_step = std::move(step);
}

Figure Figure::input(double value, SourcePtr source)
{
    auto step = made(StepKind::Input, value);
    if (source && !source->of.empty())
        step->whose = source.get();
    step->source = std::move(source);
    step->largest = step.get();
    return Figure(std::move(step));
}

double Figure::value() const
{
    return m_step->value;
}

Figure Figure::named(std::string_view name) const
{
    Figure result(noted(StepKind::Named, m_step, {.text = std::string(name)}));
    if (!std::isfinite(value()))
        tooLarge(*result.m_step);
    return result;
}

Figure Figure::totalled(std::string_view name) const
{
    auto step = noted(StepKind::Named, m_step, {.text = std::string(name)});
    step->mixed = true;
    if (!std::isfinite(value()))
        tooLarge(*step);
    return Figure(std::move(step));
}

Figure Figure::chosen(const Choice& by, std::string_view sentence) const
{
    auto step = noted(StepKind::Chosen, m_step, {.text = by.text, .sentence = std::string(sentence)});
    step->source = by.source;
    return Figure(std::move(step));
}

Figure Figure::chosen(const Figure& by, std::string_view sentence) const
{
    auto step = made(StepKind::Chosen, value(), m_step, by.m_step);
    step->note = std::make_unique<const Step::Note>(Step::Note{.sentence = std::string(sentence)});
    return Figure(std::move(step));
}

Figure Figure::remarked(std::string_view sentence) const
{
    return Figure(noted(StepKind::Remarked, m_step, {.sentence = std::string(sentence)}));
}

Figure operator+(const Figure& left, const Figure& right)
{
    // A sum that starts from nothing starts with its first part.
    if (left.m_step->kind == StepKind::Constant && left.value() == 0)
        return right;
    return Figure(made(StepKind::Plus, left.value() + right.value(), left.m_step, right.m_step));
}

Figure operator-(const Figure& left, const Figure& right)
{
    return Figure(made(StepKind::Minus, left.value() - right.value(), left.m_step, right.m_step));
}

Figure operator*(const Figure& left, const Figure& right)
{
    return Figure(made(StepKind::Times, left.value() * right.value(), left.m_step, right.m_step));
}

Figure ratio(const Figure& left, const Figure& right, ErrorKind whenZero)
{
    if (right.value() == 0) {
        const SourcePtr place = placeOf(*right.m_step);
        throw RunTimeError(whenZero, called(*right.m_step, place, {}) + " is 0", place);
    }
    return Figure(made(StepKind::Over, left.value() / right.value(), left.m_step, right.m_step));
}

Figure single(const Figure& figure, std::string_view name, ErrorKind whenTooLarge)
{
    if (figure.m_step->kind == StepKind::Single)
        return figure;
    const auto value = static_cast<float>(figure.value());
    if (!std::isfinite(value))
        tooLarge(*figure.m_step, name, whenTooLarge);
    return Figure(made(StepKind::Single, value, figure.m_step));
}

Figure whole(const Figure& figure)
{
    return Figure(made(StepKind::Whole, std::floor(figure.value()), figure.m_step));
}

Figure halfEven(const Figure& figure, std::string_view name)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double value = std::nearbyint(figure.value());  // half to even, the rounding that every program starts with
    if (!(value >= Limits::min() && value <= Limits::max()))
        tooLarge(*figure.m_step, name, ErrorKind::Overflow, "beyond -32768 to 32767");
    return Figure(made(StepKind::HalfEven, value, figure.m_step));
}

Figure least(const Figure& left, const Figure& right)
{
    return Figure(made(StepKind::Least, std::min(left.value(), right.value()), left.m_step, right.m_step));
}

}  // namespace figures
