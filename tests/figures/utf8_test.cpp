#include "figures/utf8.h"

#include <gtest/gtest.h>

namespace figures {
namespace {

struct Case {
    const char* name;
    std::string text;
    bool isUtf8;
};

class Utf8 : public testing::TestWithParam<Case> {};

TEST_P(Utf8, IsToldFromOtherBytes)
{
    EXPECT_EQ(isUtf8(GetParam().text), GetParam().isUtf8);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, Utf8, testing::Values(
    Case{"Nothing",          "",                         true},
    Case{"Ascii",            "Km From",                  true},
    Case{"Zero",             std::string("a\0b", 3),     true},
    Case{"Devanagari",       "केसर",                     true},
    Case{"FirstOfTwo",       "\xc2\x80",                 true},   // U+0080
    Case{"LastOfTwo",        "\xdf\xbf",                 true},   // U+07FF
    Case{"FirstOfThree",     "\xe0\xa0\x80",             true},   // U+0800
    Case{"BeforeSurrogates", "\xed\x9f\xbf",             true},   // U+D7FF
    Case{"BehindSurrogates", "\xee\x80\x80",             true},   // U+E000
    Case{"LastOfThree",      "\xef\xbf\xbf",             true},   // U+FFFF
    Case{"FirstOfFour",      "\xf0\x90\x80\x80",         true},   // U+10000
    Case{"LastOfFour",       "\xf4\x8f\xbf\xbf",         true},   // U+10FFFF
    Case{"Latin1",           "caf\xe9",                  false},
    Case{"OnlyContinuation", "\x80",                     false},
    Case{"TooManyBytes",     "\xc2\x80\x80",             false},
    Case{"CutAfterOne",      "\xc2",                     false},
    Case{"CutAfterTwo",      "\xe0\xa4",                 false},
    Case{"CutAfterThree",    "\xf0\x90\x80",             false},
    Case{"LetterInside",     "\xe0\xa4" "a",             false},
    Case{"AsciiInTwo",       "\xc1\xbf",                 false},   // longer than it need be
    Case{"TwoInThree",       "\xe0\x9f\xbf",             false},
    Case{"ThreeInFour",      "\xf0\x8f\xbf\xbf",         false},
    Case{"Surrogate",        "\xed\xa0\x80",             false},
    Case{"BeyondTheLast",    "\xf4\x90\x80\x80",         false},
    Case{"NoSuchByte",       "\xff",                     false}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(Shortened, CutsBetweenCharacters)
{
    EXPECT_EQ(shortened("", 3), "");
    EXPECT_EQ(shortened("abc", 3), "abc");
    EXPECT_EQ(shortened("abcd", 3), "abc...");
    EXPECT_EQ(shortened("abé", 3), "ab...");  // é is 2 bytes
    EXPECT_EQ(shortened("केसर", 6), "के...");   // 3 bytes each
    EXPECT_EQ(shortened("केसर", 8), "के...");
    EXPECT_EQ(shortened("\x80\x80\x80", 2), "...");  // nothing but ends of characters
}

}  // namespace
}  // namespace figures
