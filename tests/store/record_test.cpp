// Records taken apart, byte by byte: which are believed, and what their values are.

#include "store/reader/record.h"

#include <string>

#include <gtest/gtest.h>

namespace store {
namespace {

using Stored = std::vector<unsigned char>;

/// Two fixed columns of 2 bytes, a Yes/No and two variable ones, in this order.
Definition table(bool isJet3)
{
    const auto fixed = [](unsigned number, unsigned place) {
        return Column{
            .name = "", .kind = Kind::Integer, .isFixed = true, .number = number, .place = place, .length = 2};
    };
    const auto variable = [](unsigned number, unsigned place) {
        return Column{.name = "", .kind = Kind::Text, .number = number, .place = place};
    };
    const Column yesNo{.name = "", .kind = Kind::YesNo, .isFixed = true, .number = 2, .place = 0, .length = 1};
    return {.columns = {fixed(0, 0), fixed(1, 2), yesNo, variable(3, 0), variable(4, 1)},
            .maxColumns = 5,
            .maxVariableColumns = 2,
            .isJet3 = isJet3};
}

/// The values of a record, "-" for none and "!" if the record is not believed.
std::string valuesOf(const Stored& bytes, const Definition& definition)
{
    Record record;
    if (!record.take(bytes, definition))
        return "!";
    std::string values;
    for (const Column& column : definition.columns) {
        const Bytes value = record.value(column);
        values += values.empty() ? "" : " ";
        if (column.isInMask())
            values += record.isNull(column) ? "no" : "yes";
        else
            values += record.isNull(column) ? "-" : std::string(value.begin(), value.end());
    }
    return values;
}

struct Case {
    const char* name;
    Stored bytes;
    const char* values;
};

class RecordOf2000 : public testing::TestWithParam<Case> {};

TEST_P(RecordOf2000, IsBelievedIfItKeepsTheRules)
{
    EXPECT_EQ(valuesOf(GetParam().bytes, table(false)), GetParam().values);
}

// Number of columns; fixed part; variable part; end of it, place of the second, of the first; their number; mask.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Records, RecordOf2000, testing::Values(
    Case{"Whole",               {5,0, 'a','b','c','d', 'x','y','z', 9,0, 8,0, 6,0, 2,0, 0x1F}, "ab cd yes xy z"},
    Case{"WithoutTexts",        {5,0, 'a','b','c','d',              6,0, 6,0, 6,0, 2,0, 0x03}, "ab cd no - -"},
    Case{"EmptyText",           {5,0, 'a','b','c','d',              6,0, 6,0, 6,0, 2,0, 0x1F}, "ab cd yes  "},
    Case{"FixedWithoutValue",   {5,0, 'a','b','c','d', 'x','y','z', 9,0, 8,0, 6,0, 2,0, 0x1E}, "- cd yes xy z"},
    Case{"BeforeTheLastColumn", {4,0, 'a','b','c','d', 'x','y','z',      9,0, 6,0, 1,0, 0x0F}, "ab cd yes xyz -"},
    Case{"BeforeAllTexts",      {2,0, 'a','b','c','d',                        6,0, 0,0, 0x03}, "ab cd no - -"},
    Case{"RoomBehindTheFixed",  {5,0, 'a','b','c','d', 0, 'x','y',  9,0, 8,0, 7,0, 2,0, 0x1F}, "ab cd yes x y"},  // of a column deleted since
    Case{"NoBytes",             {},                                                            "!"},
    Case{"OneByte",             {5},                                                           "!"},
    Case{"NoColumns",           {0,0, 'a','b','c','d', 'x','y','z', 9,0, 8,0, 6,0, 2,0, 0x1F}, "!"},
    Case{"TooManyColumns",      {6,0, 'a','b','c','d', 'x','y','z', 9,0, 8,0, 6,0, 2,0, 0x1F}, "!"},
    Case{"FarTooManyColumns",   {5,1, 'a','b','c','d', 'x','y','z', 9,0, 8,0, 6,0, 2,0, 0x1F}, "!"},
    Case{"OnlyMask",            {5,0, 0x1F},                                                   "!"},
    Case{"TooManyVariable",     {5,0, 'a','b','c','d', 'x','y','z', 9,0, 9,0, 8,0, 6,0, 3,0, 0x1F}, "!"},
    Case{"MoreThanItHasBytes",  {1,0,                                              2,0, 0x00}, "!"},
    Case{"PlacesFalling",       {5,0, 'a','b','c','d', 'x','y','z', 9,0, 6,0, 8,0, 2,0, 0x1F}, "!"},
    Case{"EndBehindThePlaces",  {5,0, 'a','b','c','d', 'x','y','z', 10,0, 8,0, 6,0, 2,0, 0x1F}, "!"},
    Case{"EndFarAway",          {5,0, 'a','b','c','d', 'x','y','z', 9,9, 8,0, 6,0, 2,0, 0x1F}, "!"},
    Case{"InTheFixedPart",      {5,0, 'a','b','c','d', 'x','y','z', 9,0, 8,0, 5,0, 2,0, 0x1F}, "!"},
    Case{"BytesWithoutValue",   {5,0, 'a','b','c','d', 'x','y','z', 9,0, 8,0, 6,0, 2,0, 0x17}, "!"},
    Case{"BytesWithoutColumn",  {4,0, 'a','b','c','d', 'x','y','z', 9,0, 8,0, 6,0, 2,0, 0x0F}, "!"},
    Case{"ValueWithoutPlace",   {5,0, 'a','b','c','d', 'x','y','z',      9,0, 6,0, 1,0, 0x1F}, "!"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(Record, WithoutVariableColumnsHasNoPlaces)
{
    Definition definition = table(false);
    definition.columns.resize(3);
    definition.maxColumns = 3;
    definition.maxVariableColumns = 0;
    EXPECT_EQ(valuesOf({3, 0, 'a', 'b', 'c', 'd', 0x07}, definition), "ab cd yes");
    EXPECT_EQ(valuesOf({3, 0, 'a', 'b', 'c', 'd', 'e', 0x07}, definition), "ab cd yes");
    EXPECT_EQ(valuesOf({3, 0, 'a', 'b', 'c', 0x07}, definition), "!");
}

class RecordOf97 : public testing::TestWithParam<Case> {};

TEST_P(RecordOf97, IsBelievedIfItKeepsTheRules)
{
    EXPECT_EQ(valuesOf(GetParam().bytes, table(true)), GetParam().values);
}

// The same with one byte for each number.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Records, RecordOf97, testing::Values(
    Case{"Whole",               {5, 'a','b','c','d', 'x','y','z', 8, 7, 5, 2, 0x1F}, "ab cd yes xy z"},
    Case{"WithoutTexts",        {5, 'a','b','c','d',              5, 5, 5, 2, 0x03}, "ab cd no - -"},
    Case{"BeforeTheLastColumn", {4, 'a','b','c','d', 'x','y','z',    8, 5, 1, 0x0F}, "ab cd yes xyz -"},
    Case{"NoBytes",             {},                                                  "!"},
    Case{"TooManyColumns",      {6, 'a','b','c','d', 'x','y','z', 8, 7, 5, 2, 0x1F}, "!"},
    Case{"TooManyVariable",     {5, 'a','b','c','d', 'x','y','z', 8, 7, 5, 3, 0x1F}, "!"},
    Case{"PlacesFalling",       {5, 'a','b','c','d', 'x','y','z', 8, 5, 7, 2, 0x1F}, "!"},
    Case{"EndBehindThePlaces",  {5, 'a','b','c','d', 'x','y','z', 9, 7, 5, 2, 0x1F}, "!"},
    Case{"InTheFixedPart",      {5, 'a','b','c','d', 'x','y','z', 8, 7, 4, 2, 0x1F}, "!"},
    Case{"BytesWithoutValue",   {5, 'a','b','c','d', 'x','y','z', 8, 7, 5, 2, 0x17}, "!"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// 300 letters in the first text: the second one begins at 5 + 300 = 305 = 256 + 49 and ends at 306 = 256 + 50. From the
// place of the second column on, number 1, 256 more are meant.
TEST(RecordOf97, LongOneHasPlacesBeyondAByte)
{
    Stored bytes{5, 'a', 'b', 'c', 'd'};
    bytes.insert(bytes.end(), 300, 'x');
    for (const int byte : {int{'z'}, 50, 49, 5, 1, 2, 0x1F})
        bytes.push_back(static_cast<unsigned char>(byte));
    EXPECT_EQ(valuesOf(bytes, table(true)), "ab cd yes " + std::string(300, 'x') + " z");
}

// 248 letters: the values end at 5 + 248 = 253, but places, numbers and mask make 259 bytes. So there is a byte for a
// jump that nobody needs.
TEST(RecordOf97, OneThatIsJustLongHasAByteTooMany)
{
    Stored bytes{5, 'a', 'b', 'c', 'd'};
    bytes.insert(bytes.end(), 248, 'x');
    for (const int byte : {253, 253, 5, 0xFF, 2, 0x1F})
        bytes.push_back(static_cast<unsigned char>(byte));
    ASSERT_EQ(bytes.size(), 259U);
    EXPECT_EQ(valuesOf(bytes, table(true)), "ab cd yes " + std::string(248, 'x') + " ");
}

}  // namespace
}  // namespace store
