/// The unit line of a section, and what it does to the numbers.

#include "tests/support/force_listing.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using listings::section;
using listings::values;

std::array<double, 3> factors_of(const SdReader& model)
{
    return {model.length_factor, model.force_factor, model.force_length_factor};
}

const struct {
    const char* why;
    const char* line;
    const char* text;
    double length;
    double force;
    double moment;
} unit_cases[] = {
    {"first, second and last word count", "(m) (kN) (kN) (kN) (kN-m) (kN-m) (kN-m)", "UNIT m kN kN-m", 1000, 1, 1000},
    {"the words between may be anything", "(cm) (kN) x 7 (kN-m)", "UNIT cm kN kN-m", 10, 1, 1000},
    {"brackets of any kind: first and last character go unseen", "[m] <mton> {mton-m}", "UNIT m mton mton-m", 1000, 9.8,
     9800},
    {"also where they are no brackets", "(m) (kN) kN-m", "UNIT m kN N-", 1000, 1, 1},
    {"letter case does not matter", "(METER) (MTON) (MTON-CM)", "UNIT METER MTON MTON-CM", 1000, 9.8, 98},
    {"nothing but empty words", "a b c", "UNIT   ", 1, 1, 1},
    {"many blanks between and after", "   (m)    (kN)     (kN-m)  ", "UNIT m kN kN-m", 1000, 1, 1000},
    {"words that no table has leave their factors at 1", "(furlong) (stone) (kN-furlong)",
     "UNIT furlong stone kN-furlong", 1, 1, 1},
    {"no words at all", "   ", "UNIT   ", 1, 1, 1},
    {"the moment unit does not follow from the others", "(m) (MN) (kN)", "UNIT m MN kN", 1000, 1000, 1},
    {"two words: the second is the last as well", "(m) (kN)", "UNIT m kN kN", 1000, 1, 1},
    {"one word is first and last; the second is empty, so that the last moves to its place", "(m)", "UNIT m  m", 1000,
     1, 1},
    {"one force word alone ends up where forces stand, too", "(kN)", "UNIT kN  kN", 1, 1, 1},
    {"empty brackets are empty words: the others move up", "() (m) (MN)", "UNIT  m MN", 1000, 1000, 1},
    {"a word of one character is empty, too", "m (m) (MN)", "UNIT  m MN", 1000, 1000, 1},
    {"an empty force word moves the moment word into its place", "(m) - (kN-m)", "UNIT m  kN-m", 1000, 1, 1},
    {"an empty moment word leaves none", "(m) (MN) ()", "UNIT m MN ", 1000, 1000, 1},
};

TEST(ForceUnits, ComeFromTheUnitLine)
{
    for (const auto& c : unit_cases) {
        const SdReader model = listings::read(section({"101 1:A 2 3 5 7 11 13 17", "2:B @0"}, c.line));
        EXPECT_EQ(model.unit_text, c.text) << c.why;
        EXPECT_EQ(factors_of(model), (std::array<double, 3>{c.length, c.force, c.moment})) << c.why;
        const std::vector<values> want = {
            {2 * c.length, 3 * c.force, 5 * c.force, 7 * c.force, 11 * c.moment, 13 * c.moment, 17 * c.moment}};
        EXPECT_EQ(listings::points(model, 1, 1), want) << c.why;
    }
}

TEST(ForceUnits, AreThoseOfEachSection)
{
    const SdReader model = listings::read(section({"101 1:A @2", "2:B @0"}, "(m) (kN) (kN-m)") +
                                          section({"102 1:A @2", "2:B @0"}, "(cm) (MN) (mton-m)") +
                                          section({"103 1:A @2", "2:B @0"}, "(rod) (last) (words)"));
    EXPECT_EQ(listings::points(model, 1, 1), std::vector<values>({{2000, 1, 2, 3, 4000, 5000, 6000}}));
    EXPECT_EQ(listings::points(model, 2, 1), std::vector<values>({{20, 1000, 2000, 3000, 39200, 49000, 58800}}));
    EXPECT_EQ(listings::points(model, 3, 1), std::vector<values>({{2, 1, 2, 3, 4, 5, 6}})) << "1 again, not what was";
}

TEST(ForceUnits, AreInTheEndThoseOfTheLastSection)
{
    SdReader model = listings::frame();
    EXPECT_EQ(model.unit_text, "UNIT MMS KN");
    model.ReadForceMomentFromText(section({"101 1:A @2"}, "(m) (kN) (kN-m)") + section({}, "(cm) (MN) (mton-m)"));
    EXPECT_EQ(model.unit_text, "UNIT cm MN mton-m") << "of a section without data, too";
    EXPECT_EQ(factors_of(model), (std::array<double, 3>{10, 1000, 9800}));
}

TEST(ForceUnits, StayAsTheModelHadThemWithoutASection)
{
    const std::string title = listings::element_forces.gbk;
    for (const std::string& listing : {std::string(), title + "\n", title + "\n---\n a\n b\n\n (m) (MN) (kN-m)\n"}) {
        SdReader model = listings::frame();
        model.length_factor = 7;
        model.force_factor = 8;
        model.force_length_factor = 9;
        model.ReadForceMomentFromText(listing);
        EXPECT_EQ(model.unit_text, "UNIT MMS KN") << listing;
        EXPECT_EQ(factors_of(model), (std::array<double, 3>{7, 8, 9})) << listing;
    }
}

} // namespace
} // namespace STAAD
