#include "figures/workings.h"

#include "figures/rework.h"

#include <gtest/gtest.h>

using figures::Figure;
using figures::SourcePtr;
using figures::Working;

SourcePtr box(const std::string& name, const std::string& of, const std::string& control)
{
    return std::make_shared<figures::Source>(
        figures::Source{.name = name, .of = of, .form = "frmT4", .control = control.empty() ? name : control});
}

Figure typed(double value, const std::string& name, const std::string& of, const std::string& control)
{
    return Figure::input(value, box(name, of, control));
}

namespace {

void expectStepReworks(const Figure::Step& step)
{
    const Working working = workingOf(step);
    EXPECT_EQ(rework(working.figures), working.value) << working.name << " = " << working.figures;
    for (const figures::Ingredient& ingredient : working.ingredients)
        if (ingredient.step)
            expectStepReworks(*ingredient.step);
}

}  // namespace

void expectReworks(const Figure& figure)
{
    EXPECT_EQ(workingOf(figure).value, figure.value());
    expectStepReworks(*figure.step());
}
