#include <algorithm>
#include <charconv>

#include "figures/step.h"

namespace figures {

namespace {

/// How tightly an expression holds together: the operand of an operator that binds more tightly needs brackets.
enum Binding { Sum = 1, Product = 2, Whole = 3 };

/// An expression under way, in words and in figures. Their bindings differ: words leave out the rounding to single.
struct Expression {
    std::string words{};
    std::string figures{};
    int wordsBind = Whole;
    int figuresBind = Whole;
};

std::string bracketed(const std::string& text, bool needed)
{
    return needed ? "(" + text + ")" : text;
}

class Writer {
public:
    explicit Writer(const Figure::Step& step)
    {
        const Figure::Step* body = &step;
        while (body->kind == StepKind::Chosen || body->kind == StepKind::Remarked)
            body = note(*body);
        const bool mixed = body->mixed;
        if (body->kind == StepKind::Named) {
            m_working.name = nameOf(*body);
            body = body->left.get();
        }
        m_mixed = mixed;
        const Expression whole = write(*body);
        m_working.value = step.value;
        m_working.words = whole.words;
        m_working.figures = whole.figures;
    }

    Working take() { return std::move(m_working); }

private:
    static const Figure::Step& withoutNotes(const Figure::Step& step)
    {
        const Figure::Step* body = &step;
        while (body->kind == StepKind::Chosen || body->kind == StepKind::Remarked)
            body = body->left.get();
        return *body;
    }

    static std::string nameOf(const Figure::Step& step)
    {
        return wholeName(step.note->text, step.whose && !step.mixed ? step.whose->of : "");
    }

    /// What is told beside the formula; the step it is told of.
    const Figure::Step* note(const Figure::Step& step)
    {
        if (step.right)
            write(*step.right);  // what it was chosen by is listed, and stands in no formula
        if (step.source)
            add({.name = wholeName(step.source->name, step.source->of),
                 .text = step.note->text,
                 .source = step.source});
        const std::string& sentence = step.note->sentence;
        if (std::find(m_working.remarks.begin(), m_working.remarks.end(), sentence) == m_working.remarks.end())
            m_working.remarks.push_back(sentence);
        return step.left.get();
    }

    void add(Ingredient one)
    {
        const auto same = [&](const Ingredient& other) {
            return other.source == one.source && other.step == one.step && other.name == one.name &&
                   other.norm == one.norm;
        };
        if (std::none_of(m_working.ingredients.begin(), m_working.ingredients.end(), same))
            m_working.ingredients.push_back(std::move(one));
    }

    Expression leaf(Ingredient one)
    {
        Expression written{.words = one.name, .figures = exactText(one.value)};
        add(std::move(one));
        return written;
    }

    /// A named step that goes in. What is told beside it is told where it is explained itself.
    Expression earlier(const Figure::Step& named, const Figure::Step& whole)
    {
        return leaf({.name = m_mixed ? nameOf(named) : named.note->text, .value = named.value, .step = &whole});
    }

    Expression operation(const Figure::Step& step, const char* sign, int binding)
    {
        const Expression left = write(*step.left);
        const Expression right = write(*step.right);
        const std::string between = std::string(" ") + sign + " ";
        return {.words = bracketed(left.words, left.wordsBind < binding) + between +
                         bracketed(right.words, right.wordsBind <= binding),
                .figures = bracketed(left.figures, left.figuresBind < binding) + between +
                           bracketed(right.figures, right.figuresBind <= binding || right.figures.starts_with('-')),
                .wordsBind = binding,
                .figuresBind = binding};
    }

    Expression call(const Figure::Step& step, const std::string& words, const std::string& function)
    {
        Expression written = write(*step.left);
        if (step.right) {
            const Expression right = write(*step.right);
            written.words += ", " + right.words;
            written.figures += ", " + right.figures;
        }
        return {.words = words + "(" + written.words + ")", .figures = function + "(" + written.figures + ")"};
    }

    Expression write(const Figure::Step& step)
    {
        switch (step.kind) {
        case StepKind::Constant:
            return {.words = exactText(step.value), .figures = exactText(step.value)};
        case StepKind::Rate:
            return leaf({.name = step.rateName, .value = step.value, .norm = step.norm});
        case StepKind::Input:
            return leaf({.name = step.source ? wholeName(step.source->name, m_mixed ? step.source->of : "") : "figure",
                         .value = step.value,
                         .source = step.source});
        case StepKind::Named:
            return earlier(step, step);
        case StepKind::Plus:
            return operation(step, "+", Sum);
        case StepKind::Minus:
            return operation(step, "\u2212", Sum);
        case StepKind::Times:
            return operation(step, "\u00d7", Product);
        case StepKind::Over:
            return operation(step, "\u00f7", Product);
        case StepKind::Single: {
            Expression written = write(*step.left);
            written.figures = "single(" + written.figures + ")";
            written.figuresBind = Whole;
            return written;
        }
        case StepKind::Whole:
            return call(step, "whole part of ", "whole");
        case StepKind::HalfEven:
            return call(step, "rounded", "halfEven");
        case StepKind::Least:
            return call(step, "least", "least");
        case StepKind::Chosen:
        case StepKind::Remarked: {
            const Figure::Step& body = withoutNotes(step);
            return body.kind == StepKind::Named ? earlier(body, step) : write(*note(step));
        }
        }
        return {};
    }

    Working m_working;
    bool m_mixed = false;  // parts of several segments, yards, ...: their names say which
};

}  // namespace

Working workingOf(const Figure& figure)
{
    return workingOf(*figure.step());
}

Working workingOf(const Figure::Step& step)
{
    return Writer(step).take();
}

std::string exactText(double value)
{
    char text[32];
    const auto [end, error] = std::to_chars(std::begin(text), std::end(text), value);
    return {text, end};
}

}  // namespace figures
