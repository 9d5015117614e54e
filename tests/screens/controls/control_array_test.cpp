#include "screens/controls/control_array.h"

#include <gtest/gtest.h>
#include <type_traits>
#include <utility>

#include "screens/controls/text_box.h"

using controls::ControlArray;
using controls::TextBox;
using figures::RunTimeError;

namespace {

std::string errorOf(const ControlArray<TextBox>& boxes, int index)
{
    try {
        boxes(index);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.kind(), figures::ErrorKind::SubscriptOutOfRange);
        return error.what();
    }
    return "none";
}

TEST(ControlArrayTest, ElementsBearTheArraysNameAndTheirIndex)
{
    ControlArray<TextBox> boxes("txtKmf", 16);
    EXPECT_EQ(boxes.size(), 16);
    EXPECT_EQ(boxes(0).objectName(), "txtKmf(0)");
    EXPECT_EQ(boxes(15).objectName(), "txtKmf(15)");
    boxes(3).setText("12.5");
    EXPECT_EQ(boxes(3).text(), "12.5");
    EXPECT_EQ(boxes(4).text(), "");
}

TEST(ControlArrayTest, AConstantArrayGivesItsElementsToRead)
{
    static_assert(std::is_same_v<decltype(std::declval<const ControlArray<TextBox>&>()(0)), const TextBox&>);
    ControlArray<TextBox> boxes("txtKmf", 16);
    boxes(3).setText("12.5");
    EXPECT_EQ(std::as_const(boxes)(3).text(), "12.5");
}

TEST(ControlArrayTest, AnIndexOutsideIsASubscriptErrorThatNamesTheElement)
{
    const ControlArray<TextBox> boxes("txtKmf", 16);
    EXPECT_EQ(errorOf(boxes, 16), "Subscript out of range: txtKmf has no element 16.");
    EXPECT_EQ(errorOf(boxes, -1), "Subscript out of range: txtKmf has no element -1.");
    EXPECT_FALSE(boxes.has(16) || boxes.has(-1));
}

TEST(ControlArrayTest, OfSomeArraysOnlySomeElementsExist)
{
    const ControlArray<TextBox> dates("txtRly", {2});
    EXPECT_EQ(dates.size(), 3);
    EXPECT_TRUE(dates.has(2));
    EXPECT_FALSE(dates.has(0) || dates.has(1));
    EXPECT_EQ(dates(2).objectName(), "txtRly(2)");
    EXPECT_EQ(errorOf(dates, 0), "Subscript out of range: txtRly has no element 0.");
}

}  // namespace
