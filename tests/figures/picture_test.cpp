#include "figures/picture.h"

#include "figures/error_of.h"
#include "figures/numeric_text.h"
#include "figures/round_trip.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

using figures::picture;

namespace {

constexpr double LargestDouble = std::numeric_limits<double>::max();
const std::string Zeros292(292, '0');
const std::string Zeros300(300, '0');

struct Shown {
    double value;
    std::string whole;      ///< under "####" and "#####"
    std::string twoPlaces;  ///< under "####.##", "#####.##" and "######.##"
    std::string sixPlaces;  ///< under "#.######"
};

// clang-format off
const Shown Figures[] = {
    // value          whole           two places          six places
    {0.0,             "",             ".",                "."},
    {-0.0,            "",             ".",                "."},
    {7.0,             "7",            "7.",               "7."},
    {12.5,            "13",           "12.5",             "12.5"},
    {0.25,            "",             ".25",              ".25"},
    {0.05,            "",             ".05",              ".05"},
    {100.0,           "100",          "100.",             "100."},
    {100.1,           "100",          "100.1",            "100.1"},
    {1990.0,          "1990",         "1990.",            "1990."},
    {1.05,            "1",            "1.05",             "1.05"},
    {16.5,            "17",           "16.5",             "16.5"},

    // half away from zero
    {0.5,             "1",            ".5",               ".5"},
    {1.5,             "2",            "1.5",              "1.5"},
    {2.5,             "3",            "2.5",              "2.5"},
    {73.5,            "74",           "73.5",             "73.5"},
    {0.125,           "",             ".13",              ".125"},
    {0.0000005,       "",             ".",                ".000001"},
    {0.499999999,     "",             ".5",               ".5"},
    {0.4999,          "",             ".5",               ".4999"},

    // on the shortest decimal, though the double itself lies below the half
    {1.005,           "1",            "1.01",             "1.005"},      // 1.00499999999999989...
    {2.675,           "3",            "2.68",             "2.675"},      // 2.67499999999999982...
    {0.145,           "",             ".15",              ".145"},       // 0.14499999999999999...
    {1.0000005,       "1",            "1.",               "1.000001"},   // 1.00000049999999991...

    // carries
    {0.995,           "1",            "1.",               ".995"},
    {9.995,           "10",           "10.",              "9.995"},
    {99.996,          "100",          "100.",             "99.996"},
    {0.9999995,       "1",            "1.",               "1."},
    {1.996,           "2",            "2.",               "1.996"},
    {999999.995,      "1000000",      "1000000.",         "999999.995"},

    // what rounds to zero shows as zero does
    {0.004,           "",             ".",                ".004"},
    {0.005,           "",             ".01",              ".005"},
    {0.0000004,       "",             ".",                "."},
    {-0.004,          "",             ".",                "-.004"},
    {-0.0000004,      "",             ".",                "."},
    {5e-324,          "",             ".",                "."},

    // negative values keep their sign
    {-5.0,            "-5",           "-5.",              "-5."},
    {-0.25,           "",             "-.25",             "-.25"},
    {-0.5,            "-1",           "-.5",              "-.5"},
    {-2.5,            "-3",           "-2.5",             "-2.5"},
    {-1.005,          "-1",           "-1.01",            "-1.005"},
    {-999.999,        "-1000",        "-1000.",           "-999.999"},

    // more digits than places, and more than a double holds
    {123456789.125,   "123456789",    "123456789.13",     "123456789.125"},
    {0.1 + 0.2,       "",             ".3",               ".3"},
    {1.0 / 3.0,       "",             ".33",              ".333333"},
    {2.0 / 3.0,       "1",            ".67",              ".666667"},
    {1e15,            "1000000000000000", "1000000000000000.", "1000000000000000."},
    {1e300,           "1" + Zeros300, "1" + Zeros300 + ".", "1" + Zeros300 + "."},
    {-LargestDouble,  "-17976931348623157" + Zeros292,
                                      "-17976931348623157" + Zeros292 + ".",
                                                          "-17976931348623157" + Zeros292 + "."},

    // a single is widened first: 23.70000076293945, 1.00499999523162842, 0.10000000149011612
    {23.7F,           "24",           "23.7",             "23.700001"},
    {1.005F,          "1",            "1.",               "1.005"},
    {0.1F,            "",             ".1",               ".1"},
    {16777216.0F,     "16777216",     "16777216.",        "16777216."},
};
// clang-format on

TEST(Picture, ShowsTheFigure)
{
    for (const Shown& shown : Figures) {
        SCOPED_TRACE(figures::textOf(shown.value));
        EXPECT_EQ(picture(shown.value, "####"), shown.whole);
        EXPECT_EQ(picture(shown.value, "#####"), shown.whole);
        EXPECT_EQ(picture(shown.value, "####.##"), shown.twoPlaces);
        EXPECT_EQ(picture(shown.value, "#####.##"), shown.twoPlaces);
        EXPECT_EQ(picture(shown.value, "######.##"), shown.twoPlaces);
        EXPECT_EQ(picture(shown.value, "#.######"), shown.sixPlaces);
    }
}

TEST(Picture, RefusesWhatIsNotANumber)
{
    using Limits = std::numeric_limits<double>;
    for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity()})
        for (const std::string_view places : Pictures)
            EXPECT_EQ(errorOf([&] { picture(value, places); }).kind(), figures::ErrorKind::Overflow);
}

// The fingers' rounding: a whole number of 1/100000 shown with two places is rounded in whole numbers here.
TEST(Picture, RoundsAsOnPaper)
{
    std::mt19937_64 random(20080331);
    std::uniform_int_distribution<std::int64_t> hundredThousandths(0, 99'999'999'999'999);  // 14 digits: exact in text
    for (int run = 0; run < 100'000; ++run) {
        const std::int64_t n = hundredThousandths(random) >> (run % 45);
        const std::string fraction = std::to_string(100'000 + n % 100'000).substr(1);
        const std::string typed = std::to_string(n / 100'000) + "." + fraction;

        const std::int64_t hundredths = (n + 500) / 1000;
        std::string expected = hundredths < 100 ? "" : std::to_string(hundredths / 100);
        expected += "." + std::to_string(100 + hundredths % 100).substr(1);
        while (expected.ends_with('0'))
            expected.pop_back();

        ASSERT_EQ(picture(figures::valueOf(typed), "####.##"), expected) << typed;
    }
}

TEST(Picture, ReadsBackWithinHalfAUnit)  // slow
{
    std::mt19937_64 random(19511016);
    std::uniform_real_distribution<double> sixFigures(-999'999.0, 999'999.0);
    for (int run = 0; run < 50'000; ++run) {
        // All magnitudes, the everyday ones, and doubles within some steps of a half.
        const auto anyBits = std::bit_cast<double>(random());
        const double everyday = sixFigures(random);
        const double half = (std::floor(everyday) + 0.5) / 100;
        const double nearHalf = std::nextafter(half, run % 2 ? 1e9 : -1e9);
        for (const double value : {anyBits, everyday, everyday / 1e6, half, nearHalf}) {
            if (!std::isfinite(value))
                continue;
            for (const std::string_view places : Pictures)
                ASSERT_EQ(roundTripFault(value, places), "");
        }
    }
}

}  // namespace
