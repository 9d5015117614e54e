#include "figures/figure.h"

#include "figures/error_of.h"
#include "figures/rework.h"
#include "figures/workings.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

using figures::Choice;
using figures::ErrorKind;
using figures::exactText;
using figures::Figure;
using figures::halfEven;
using figures::least;
using figures::Rate;
using figures::single;
using figures::whole;
using figures::Working;
using figures::workingOf;

namespace {

constexpr Rate TPerKm = {80.0, "'T' per km", "Main line, broad gauge, machine packed"};
constexpr Rate TPerKmAndGmt = {2.3, "'T' per km and GMT", "Main line, broad gauge, machine packed"};

/// Of segment 1, where nothing else is said.
Figure typed(double value, const std::string& name, const std::string& of = "segment 1")
{
    return ::typed(value, name, of);
}

Figure tMandays(const Figure& gmt, const Figure& factor, const Figure& length)
{
    return ((TPerKm + TPerKmAndGmt * gmt) * single(factor) * length).named("'T' mandays");
}

TEST(Figure, ComputesAndTellsHow)
{
    const Figure mandays = tMandays(typed(42.6, "GMT"), typed(1.031955, "factor"), typed(39.9, "equivalent length"));
    // (80 + 97.98) x 1.031955 x 39.9 = 7328.33
    EXPECT_NEAR(mandays.value(), 7328.33, 0.01);

    const Working working = workingOf(mandays);
    EXPECT_EQ(working.name, "'T' mandays of segment 1");
    EXPECT_EQ(working.value, mandays.value());
    EXPECT_EQ(working.words, "('T' per km + 'T' per km and GMT × GMT) × factor × equivalent length");
    EXPECT_EQ(working.figures, "(80 + 2.3 × 42.6) × single(1.031955) × 39.9");
    EXPECT_EQ(rework(working.figures), mandays.value());

    ASSERT_EQ(working.ingredients.size(), 5U);
    EXPECT_EQ(working.ingredients[0].name, "'T' per km");
    EXPECT_EQ(working.ingredients[0].value, 80.0);
    EXPECT_EQ(working.ingredients[0].norm, "Main line, broad gauge, machine packed");
    EXPECT_EQ(working.ingredients[2].name, "GMT");
    EXPECT_EQ(working.ingredients[2].value, 42.6);
    EXPECT_EQ(working.ingredients[2].source->control, "GMT");
    EXPECT_EQ(working.ingredients[4].name, "equivalent length");
}

TEST(Figure, NamesAnEarlierStepAndLeadsToIt)
{
    const Figure length = typed(10, "length");
    const Figure t = (TPerKm * length).named("'T' mandays");
    const Figure r = (159 * length).named("'R' mandays");
    const Working sum = workingOf((t + r).named("'T'+'R' mandays"));

    EXPECT_EQ(sum.words, "'T' mandays + 'R' mandays");
    EXPECT_EQ(sum.figures, "800 + 1590");
    ASSERT_EQ(sum.ingredients.size(), 2U);
    ASSERT_EQ(sum.ingredients[0].step, t.step());
    EXPECT_EQ(workingOf(*sum.ingredients[0].step).figures, "80 × 10");
}

TEST(Figure, SaysWhosePartsAreWhereTheyAreOfSeveral)
{
    Figure total;
    for (const char* segment : {"segment 1", "segment 2"})
        total = single(total + (2.0 * typed(3, "length", segment)).named("mandays"));
    const Working working = workingOf(total.named("total"));

    EXPECT_EQ(working.name, "total");
    EXPECT_EQ(working.words, "mandays of segment 1 + mandays of segment 2");
    EXPECT_EQ(working.figures, "single(single(6) + 6)");
}

TEST(Figure, OfATotalIsNobodysAlsoWithOnePart)
{
    const Figure total = single(typed(3, "length", "segment 1")).totalled("total of lengths");
    EXPECT_EQ(workingOf(total).name, "total of lengths");
    EXPECT_EQ(workingOf(total).words, "length of segment 1");
    EXPECT_EQ(workingOf((2 * total).named("mandays")).name, "mandays");

    // A second Compute adds to what the first one left.
    EXPECT_EQ(workingOf((total + typed(4, "length", "segment 1")).totalled("total of lengths")).words,
              "total of lengths + length of segment 1");
}

TEST(Figure, TellsAChoiceWhereTheStepItselfIsExplained)
{
    const Choice gauge{.text = "BG", .source = box("gauge", "", "txtT1(3)")};
    const Figure mandays = (TPerKm * typed(2, "length")).named("mandays").chosen(gauge, "Broad gauge.");
    const Figure sum = (mandays + 1.0).named("more mandays");

    EXPECT_TRUE(workingOf(sum).remarks.empty());
    ASSERT_EQ(workingOf(sum).ingredients.size(), 1U);
    EXPECT_EQ(workingOf(sum).ingredients[0].name, "mandays");
    EXPECT_EQ(workingOf(*workingOf(sum).ingredients[0].step).remarks, std::vector<std::string>{"Broad gauge."});
}

TEST(Figure, TellsChoicesAndRemarks)
{
    const Choice gauge{.text = "BG", .source = box("gauge", "", "txtT1(3)")};
    const Working working = workingOf((TPerKm * typed(2, "length"))
                                          .named("mandays")
                                          .chosen(gauge, "Broad gauge.")
                                          .remarked("The factor is not limited."));
    EXPECT_EQ(working.name, "mandays of segment 1");
    EXPECT_EQ(working.words, "'T' per km × length");
    EXPECT_EQ(working.remarks, (std::vector<std::string>{"The factor is not limited.", "Broad gauge."}));
    ASSERT_EQ(working.ingredients.size(), 3U);
    EXPECT_EQ(working.ingredients[0].name, "gauge");
    EXPECT_EQ(working.ingredients[0].text, "BG");
    EXPECT_EQ(working.ingredients[0].source->control, "txtT1(3)");
}

TEST(Figure, ListsAnInputOnceHoweverOftenItGoesIn)
{
    const Figure length = typed(4, "length");
    const Working working = workingOf(length * length + length);
    EXPECT_EQ(working.words, "length × length + length");
    EXPECT_EQ(working.ingredients.size(), 1U);
}

struct Line {
    const char* name;
    Figure figure;
    double value;
    const char* figures;
};

// clang-format off
const Figure Ten = typed(10, "ten"), Four = typed(4, "four"), Minus3 = typed(-3, "minus three");

const Line Lines[] = {
    {"LeftToRight",        Ten - Four - 1.0,              5,    "10 − 4 − 1"},
    {"BracketsAtTheRight", Ten - (Four - 1.0),            7,    "10 − (4 − 1)"},
    {"SumTakenApart",      Ten + (Four + 1.0),            15,   "10 + (4 + 1)"},
    {"ProductOfSums",      (Ten + 1.0) * (Four - 1.0),    33,   "(10 + 1) × (4 − 1)"},
    {"QuotientOfProduct",  Ten * Four / 8.0,              5,    "10 × 4 ÷ 8"},
    {"QuotientByProduct",  Ten / (Four * 5.0),            .5,   "10 ÷ (4 × 5)"},
    {"NegativeAtTheLeft",  Minus3 + Ten,                  7,    "-3 + 10"},
    {"NegativeAtTheRight", Ten - Minus3,                  13,   "10 − (-3)"},
    {"NegativeFactor",     Ten * Minus3,                  -30,  "10 × (-3)"},
    {"Whole",              whole(Ten / Four),             2,    "whole(10 ÷ 4)"},
    {"WholeBelowZero",     whole(Minus3 / Four),          -1,   "whole(-3 ÷ 4)"},
    {"HalfEvenDown",       halfEven(Ten / Four),          2,    "halfEven(10 ÷ 4)"},
    {"HalfEvenUp",         halfEven(Ten + 3.5),           14,   "halfEven(10 + 3.5)"},
    {"Least",              least(Ten, Four * 2.0),        8,    "least(10, 4 × 2)"},
    {"SumFromNothing",     Figure() + Ten,                10,   "10"},
};
// clang-format on

TEST(Figure, WritesALineThatReadsAsItWasComputed)
{
    for (const Line& line : Lines) {
        SCOPED_TRACE(line.name);
        EXPECT_EQ(line.figure.value(), line.value);
        EXPECT_EQ(workingOf(line.figure).figures, line.figures);
        EXPECT_EQ(rework(line.figures), line.value);
    }
}

TEST(Figure, RoundsToSingleWhereItSaysSo)
{
    const double widened = 0.100000001490116119384765625;  // the single next to 0.1
    EXPECT_EQ(single(typed(0.1, "tenth")).value(), widened);
    EXPECT_EQ(workingOf(single(typed(0.1, "tenth"))).figures, "single(0.1)");
    EXPECT_EQ(workingOf(single(typed(0.1, "tenth"))).words, "tenth");
    EXPECT_EQ(workingOf(single(single(typed(0.1, "tenth")))).figures, "single(0.1)");
}

TEST(Figure, SaysInWordsHowItRounds)
{
    EXPECT_EQ(workingOf(whole(typed(2.5, "men") + 0.9)).words, "whole part of (men + 0.9)");
    EXPECT_EQ(workingOf(halfEven(typed(2.5, "men"))).words, "rounded(men)");
    EXPECT_EQ(workingOf(least(typed(5, "stores"), 2)).words, "least(stores, 2)");
}

// A total that every Compute adds to: given up without a call inside a call, and an error finds its place.
TEST(Figure, MayHaveCountlessSteps)
{
    Figure total = typed(1, "length");
    for (int i = 0; i < 200000; ++i)
        total = single(total + 1.0);
    EXPECT_EQ(total.value(), 200001.0);
    EXPECT_EQ(errorOf([&] { halfEven(total, "total"); }).source()->control, "length");
}

/// A formula by chance, as deep as any norm.
Figure byChance(std::mt19937_64& chance, int depth)
{
    const auto part = [&] { return byChance(chance, depth - 1); };
    const double value = std::ldexp(static_cast<double>(chance() >> 11), static_cast<int>(chance() % 40) - 60);
    switch (depth == 0 ? chance() % 2 : chance() % 12) {
    case 0:
        return typed(chance() % 2 ? value : -value, "input");
    case 1:
        return value;
    case 2:
    case 3:
        return part() + part();
    case 4:
        return part() - part();
    case 5:
    case 6:
        return part() * part();
    case 7:
        return part() / (part() * part() + 1e-9);
    case 8:
        return single(part());
    case 9:
        return whole(part());
    case 10:
        return least(part(), part());
    default:
        return part().named("step");
    }
}

TEST(Figure, EveryLineReworksToTheLastBit)  // slow
{
    std::mt19937_64 chance(17);
    int reworked = 0;
    for (int i = 0; i < 20000; ++i) {
        try {
            const Figure figure = byChance(chance, 4).named("all");
            const Working working = workingOf(figure);
            ASSERT_EQ(rework(working.figures), figure.value()) << working.figures;
            ++reworked;
        } catch (const figures::RunTimeError&) {  // divided by 0, or beyond a single
        }
    }
    EXPECT_GT(reworked, 15000);
}

TEST(Figure, DivisionByZeroNamesTheDivisorAndItsBox)
{
    const auto error = errorOf([] { typed(5, "curves", "segment 3") / typed(0, "equivalent length", "segment 3"); });
    EXPECT_EQ(error.kind(), ErrorKind::DivisionByZero);
    EXPECT_STREQ(error.what(), "Division by zero: the equivalent length of segment 3 is 0.");
    ASSERT_TRUE(error.source());
    EXPECT_EQ(error.source()->control, "equivalent length");
}

TEST(Figure, OverflowNamesTheStepAndTheLargestInputsBox)
{
    const auto error = errorOf([] {
        (typed(2e200, "GMT", "segment 2") * typed(3e200, "equivalent length", "segment 2")).named("'T' mandays");
    });
    EXPECT_EQ(error.kind(), ErrorKind::Overflow);
    EXPECT_STREQ(error.what(), "Overflow: the number of 'T' mandays of segment 2 is too large to compute with.");
    ASSERT_TRUE(error.source());
    EXPECT_EQ(error.source()->control, "equivalent length");
}

TEST(Figure, BeyondASingleNamesWhatWasRounded)
{
    const auto error = errorOf([] { single(typed(1e39, "rainfall", "segment 4")); });
    EXPECT_EQ(error.kind(), ErrorKind::Overflow);
    EXPECT_STREQ(error.what(), "Overflow: the rainfall of segment 4 is 1e+39, too large to compute with.");
}

TEST(Figure, Beyond16BitsNamesWhatWasRounded)
{
    const auto error = errorOf([] { halfEven(typed(40000, "number of men", "beat length 5")); });
    EXPECT_STREQ(error.what(), "Overflow: the number of men of beat length 5 is 40000, beyond -32768 to 32767.");
}

TEST(Figure, OverflowOfATotalSaysAtWhichPart)
{
    const Figure parts = typed(1, "men", "row 1") + typed(40000, "men", "row 2");
    const auto rows = errorOf([&] { halfEven(parts, "total of men"); });
    EXPECT_STREQ(rows.what(), "Overflow: the total of men at row 2 is 40001, beyond -32768 to 32767.");
    EXPECT_EQ(rows.source()->of, "row 2");

    // A box that stands alone is nobody's.
    const auto alone = errorOf([&] { halfEven(parts + typed(50000, "gangs", ""), "total of men"); });
    EXPECT_STREQ(alone.what(), "Overflow: the total of men is 90001, beyond -32768 to 32767.");

    const auto mandays = errorOf([] { single(typed(1e39, "length"), "total of mandays"); });
    EXPECT_STREQ(mandays.what(), "Overflow: the total of mandays of segment 1 is 1e+39, too large to compute with.");
}

}  // namespace
