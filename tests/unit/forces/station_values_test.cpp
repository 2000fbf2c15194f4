/// The seven numbers of a station, as they are printed and as they are not.

#include "tests/support/force_listing.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using listings::section;
using listings::values;

struct value_case {
    const char* why;
    const char* words;
    values want;
};

/// The record of a load case line of these words.
std::vector<values> record_of(const std::string& words)
{
    return listings::points(listings::read(section({"101 1:A " + words, "2:B @0"})), 1, 1);
}

constexpr double largest = std::numeric_limits<double>::max();

const value_case value_cases[] = {
    {"an exponent printed in two words is one number", "1.25E +02 1 2 3 4 5 6", {125, 1, 2, 3, 4, 5, 6}},
    {"with either sign", "0 -1.5E +03 2.5E -01 3 4 5 6", {0, -1500, 0.25, 3, 4, 5, 6}},
    {"without a digit after the point", "0 1.E +02 2 3 4 5 6", {0, 100, 2, 3, 4, 5, 6}},
    {"without a point", "0 15E +02 2 3 4 5 6", {0, 1500, 2, 3, 4, 5, 6}},
    {"without a sign", "0 1.5E 03 2 3 4 5 6", {0, 1500, 2, 3, 4, 5, 6}},
    {"seven of them", "1E +01 2E +01 3E +01 4E +01 5E +01 6E +01 7E +01", {10, 20, 30, 40, 50, 60, 70}},
    {"in one word as usual", "0 1.5E+03 2.5e-01 3 4 5 6", {0, 1500, 0.25, 3, 4, 5, 6}},
    {"an E that a title ends in does not touch the position", "LIVE 7 1 2 3 4 5 6", {7, 1, 2, 3, 4, 5, 6}},
    {"two blanks are not closed: two words, of which the first falls to the title",
     "0 1.5E  +03 2 3 4 5 6",
     {1.5, 3, 2, 3, 4, 5, 6}},
    {"a small e is no E", "0 1.5e +03 2 3 4 5 6", {1.5, 3, 2, 3, 4, 5, 6}},
    {"a second E has no digit before it", "0 1EE +03 2 3 4 5 6", {1, 3, 2, 3, 4, 5, 6}},
    {"an exponent at the very end lacks its digits", "0 1 2 3 4 5 6.5E", {0, 1, 2, 3, 4, 5, 6.5}},
    {"the same with a blank after", "0 1 2 3 4 5 6.5E ", {0, 1, 2, 3, 4, 5, 6.5}},
    {"points and signs", "+.5 -.5 5. -5. +0 -0.0 00.1", {0.5, -0.5, 5, -5, 0, 0, 0.1}},
    {"what is no number is 0", "x 1 ***** 3 - 5 .", {0, 1, 0, 3, 0, 5, 0}},
    {"numbers are read as far as they go", "1,5 2kN 3-4 5+6 7D3 0x10 1.2.3", {1, 2, 3, 5, 7, 0, 1.2}},
    {"neither infinity nor NaN is a number", "inf nan -inf NAN INFINITY infinity 6", {0, 0, 0, 0, 0, 0, 6}},
    {"too large, too small", "0 1E+999 -1E+999 1E-999 4 5 6", {0, largest, -largest, 0, 4, 5, 6}},
};

TEST(ForceStation, ReadsItsLastSevenWords)
{
    for (const value_case& c : value_cases)
        EXPECT_EQ(record_of(c.words), std::vector<values>({c.want})) << c.why;
}

TEST(ForceStation, ReadsExponentsOnEveryKindOfLine)
{
    const SdReader model = listings::read(section({
        "101 1:A 0.000 1.5E +03 0 0 0 0 -1.5E +03",
        "6.0E +03 1.5E +03 0 0 0 0 2.5E -01",
        "2:LIVE 1.0E +00 0 0 0 0 0 1",
        "3:C @0",
    }));
    EXPECT_EQ(listings::points(model, 1, 1),
              std::vector<values>({{0, 1500, 0, 0, 0, 0, -1500}, {6000, 1500, 0, 0, 0, 0, 0.25}}));
    EXPECT_EQ(listings::points(model, 1, 2), std::vector<values>({{1, 0, 0, 0, 0, 0, 1}}));
}

TEST(ForceStation, MayBecomeInfiniteByItsUnit)
{
    SdReader model = listings::frame();
    EXPECT_NO_THROW(model.ReadForceMomentFromText(section(
        {"101 1:A 0 1E999 0 0 0 0 0", "1E999 -1E999 0 0 0 0 0", "2E300 0 0 0 0 0 0", "2:B @0"}, "(m) (MN) (kN-m)")));
    const auto kept = listings::points(model, 1, 1);
    ASSERT_EQ(kept.size(), 3U);
    EXPECT_EQ(kept[0][1], std::numeric_limits<double>::infinity());
    EXPECT_EQ(kept[1][0], 2E303);
    EXPECT_EQ(kept[2][0], std::numeric_limits<double>::infinity());
}

} // namespace
} // namespace STAAD
