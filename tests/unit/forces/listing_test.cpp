/// Where a listing has its sections, where one begins and ends, and in which units its numbers are.

#include "tests/support/deck.h"
#include "tests/support/force_listing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

using listings::element_forces;
using listings::lines;
using listings::member_forces;
using listings::model_units;
using listings::section;
using listings::values;

/// A section that leaves a record of load case `number` of member 101.
std::string section_of_case(int number, const std::string& title)
{
    const std::string text = std::to_string(number);
    return section({"101 " + text + ":A @0", "99:END @0"}, model_units, title);
}

std::string read_stations(const std::string& listing)
{
    return listings::stations(listings::read(listing));
}

struct listing_case {
    const char* why;
    std::string listing;
    const char* want;
};

const std::string first_gbk = element_forces.gbk;
const std::string first_utf8 = element_forces.utf8;
const std::string second_gbk = member_forces.gbk;
const std::string second_utf8 = member_forces.utf8;

const listing_case title_cases[] = {
    {"the first title in GBK", section_of_case(1, first_gbk), "1: 1(0)"},
    {"the first title in UTF-8", section_of_case(1, first_utf8), "1: 1(0)"},
    {"the second title counts where the first is missing", section_of_case(1, second_gbk), "1: 1(0)"},
    {"the same in UTF-8", section_of_case(1, second_utf8), "1: 1(0)"},
    {"with both titles only the sections of the first count",
     section_of_case(1, first_gbk) + section_of_case(2, second_gbk), "1: 1(0)"},
    {"also where the second comes first", section_of_case(2, second_gbk) + section_of_case(1, first_gbk), "1: 1(0)"},
    {"also in another encoding", section_of_case(2, second_gbk) + section_of_case(1, first_utf8), "1: 1(0)"},
    {"and the other way round", section_of_case(2, second_utf8) + section_of_case(1, first_gbk), "1: 1(0)"},
    {"one title in both encodings is one title", section_of_case(1, first_utf8) + section_of_case(2, first_gbk),
     "1: 1(0) 2(0)"},
    {"the same of the second", section_of_case(1, second_utf8) + section_of_case(2, second_gbk), "1: 1(0) 2(0)"},
    {"a first title without a section still makes the second count for nothing",
     section_of_case(1, second_gbk) + first_gbk + "\n", ""},
    {"neither title", "member forces\n\n 101 1:A 0 1 2 3 4 5 6\n", ""},
    {"a blank before the title makes another line of it", section_of_case(1, " " + first_gbk), ""},
    {"a blank after it, too", section_of_case(1, first_gbk + " "), ""},
    {"and any other text", section_of_case(1, first_gbk + " (2)"), ""},
    {"a title that is only part of a line leaves the second title its place",
     section_of_case(1, first_gbk + ":") + section_of_case(2, second_gbk), "1: 2(0)"},
    {"text around the sections does not matter",
     "analysis\n 101 7:A 0 1 2 3 4 5 6\n" + section_of_case(1, first_gbk) + "end\n", "1: 1(0)"},
    {"an empty listing", "", ""},
    {"a title alone, without a line end", first_gbk, ""},
};

TEST(ForceListing, KnowsItsTitles)
{
    for (const listing_case& c : title_cases)
        EXPECT_EQ(read_stations(c.listing), c.want) << c.why;
}

TEST(ForceListing, TakesBothLineEnds)
{
    EXPECT_EQ(read_stations(decks::with_cr(section_of_case(1, first_gbk))), "1: 1(0)");
    const std::string title_only = first_gbk + "\r\n" + section_of_case(1, "").substr(1);
    EXPECT_EQ(read_stations(title_only), "1: 1(0)") << "CR LF after the title alone";
    EXPECT_EQ(read_stations(section_of_case(1, first_gbk + "\r\r")), "") << "one CR goes with the line end, no more";
}

/// A section of which everything after the title is given; every line gets a line feed.
std::string raw_section(const lines& after_title)
{
    std::string text = first_gbk + "\n";
    for (const std::string& line : after_title)
        text += line + "\n";
    return text;
}

const std::string units = std::string(" ") + model_units;
const std::string begin = " 101 1:A 0 1 2 3 4 5 6";
const std::string station = " 5 1 2 3 4 5 6";
const std::string next = " 2:B 0 1 2 3 4 5 6";

const listing_case body_cases[] = {
    {"the line after the title may be empty", raw_section({"", " a", " b", units, begin, station, next}), "1: 1(0 5)"},
    {"or begin with a blank", raw_section({" a", " b", " c", units, begin, station, next}), "1: 1(0 5)"},
    {"or be a line of any other kind", raw_section({"---", " b", " c", units, begin, station, next}), "1: 1(0 5)"},
    {"heading lines of nothing but a blank belong to the section",
     raw_section({"---", " ", " ", units, begin, station, next}), "1: 1(0 5)"},
    {"an empty second line leaves no section", raw_section({"---", "", " b", units, begin, station, next}), ""},
    {"nor does one of a CR alone", raw_section({"---", "\r", " b", units, begin, station, next}), ""},
    {"a second line that begins with a letter leaves no section", raw_section({"---", "a", " b", units, begin, next}),
     ""},
    {"nor does a third", raw_section({"---", " a", "b", units, begin, next}), ""},
    {"nor a unit line without its blank", raw_section({"---", " a", " b", model_units, begin, next}), ""},
    {"a tab is no blank", raw_section({"---", " a", "\tb", units, begin, next}), ""},
    {"an empty line ends the data",
     raw_section({"---", " a", " b", units, begin, next, "", " 3:C 0 1 2 3 4 5 6", next}), "1: 1(0)"},
    {"a line that begins with a letter ends them",
     raw_section({"---", " a", " b", units, begin, next, "page 2", " 3:C 0 1 2 3 4 5 6", next}), "1: 1(0)"},
    {"so does a digit, even of a data line",
     raw_section({"---", " a", " b", units, begin, next, "3:C 0 1 2 3 4 5 6", next}), "1: 1(0)"},
    {"so does a tab", raw_section({"---", " a", " b", units, begin, next, "\t3:C 0 1 2 3 4 5 6", next}), "1: 1(0)"},
    {"a line of blanks does not: it is not empty", raw_section({"---", " a", " b", units, begin, "   ", station, next}),
     "1: 1(0 5)"},
    {"a comment of generated data ends them like any other line",
     raw_section({"---", " a", " b", units, begin, next, "*{ note", " 3:C 0 1 2 3 4 5 6", next}), "1: 1(0)"},
    {"a mark at the end of a line joins nothing: it is a seventh word that counts as 0",
     raw_section({"---", " a", " b", units, begin, " 5 1 2 3 4 5 -", next}), "1: 1(0 5)"},
    {"a section of units alone", raw_section({"---", " a", " b", units}), ""},
    {"the last line needs no line end", raw_section({"---", " a", " b", units, begin, station}) + next, "1: 1(0 5)"},
    {"data may follow the title of a section that is too short",
     first_gbk + "\n---\n a\n" + section_of_case(1, first_gbk), "1: 1(0)"},
    {"a title where the second heading line is due begins a section of its own",
     first_gbk + "\n---\n" + section_of_case(1, first_gbk), "1: 1(0)"},
    {"a title among the data ends them",
     raw_section({"---", " a", " b", units, begin, next}) + section_of_case(3, first_gbk), "1: 1(0) 3(0)"},
};

TEST(ForceListing, KnowsWhereASectionBeginsAndEnds)
{
    for (const listing_case& c : body_cases)
        EXPECT_EQ(read_stations(c.listing), c.want) << c.why;
}

TEST(ForceListing, TwoTitlesInARowAreTwoSectionsALineApart)
{
    // The unit line of the first is a heading line of the second; its first data line, which is too short
    // to count, is the unit line of the second.
    const std::string after = " (cm) (kN) (N-m)\n (m) (MN) (kN-m)\n" + begin + "\n 2 1 2 3 4 5 6\n" + next + "\n";
    const SdReader model = listings::read(first_gbk + "\n" + first_gbk + "\n a\n b\n" + after);
    const std::vector<values> want = {
        {0, 1, 2, 3, 4, 5, 6}, {20, 1, 2, 3, 4, 5, 6}, {2000, 1000, 2000, 3000, 4000, 5000, 6000}};
    EXPECT_EQ(listings::points(model, 1, 1), want) << "in cm, then in m; the second 0 is a repeat of the first";
    EXPECT_EQ(model.unit_text, "UNIT m MN kN-m");

    EXPECT_EQ(read_stations(first_gbk + "\n" + first_gbk + "\n---\n a\n" + after), "1: 1(0 2000)")
        << "a ruler after the second title is no line of the first one's section";
}

} // namespace
} // namespace STAAD
