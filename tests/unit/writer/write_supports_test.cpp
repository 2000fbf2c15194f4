/// Supports and releases.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using by_description = std::map<std::string, std::vector<unsigned>>;

std::string supports_text(const by_description& supports)
{
    SdReader model;
    model.supports = supports;
    return written::constants_to_loads(model);
}

std::string releases_text(const by_description& releases)
{
    SdReader model;
    model.releases = releases;
    return written::constants_to_loads(model);
}

TEST(WriteSupports, WritesNothingWithoutSupportsAndReleases)
{
    EXPECT_EQ(written::constants_to_loads(SdReader()), "");
    EXPECT_EQ(written::supports_to_loads(written::row_of_members(2)), "");
}

TEST(WriteSupports, HasTheSupportsBeforeTheReleases)
{
    SdReader model;
    model.supports["FIXED"] = {1};
    model.releases["START MZ"] = {2};
    EXPECT_EQ(written::constants_to_loads(model), "SUPPORTS\n1 FIXED\nMEMBER RELEASE\n2 START MZ\n");
}

struct description_row {
    const char* why;
    by_description entries;
    std::string want;
};

std::vector<unsigned> every_second_from_11(unsigned count)
{
    std::vector<unsigned> numbers;
    for (unsigned i = 0; i < count; ++i)
        numbers.push_back(11 + 2 * i);
    return numbers;
}

const std::string long_text(90, 'T');

const description_row description_rows[] = {
    {"one entry", {{"FIXED", {1, 2, 3, 7}}}, "1 TO 3 7 FIXED\n"},
    {"descriptions in order",
     {{"PINNED", {4}}, {"FIXED BUT MX", {3}}, {"FIXED", {9}}, {"\xB9\xCC", {2}}, {"fixed", {1}}},
     "9 FIXED\n3 FIXED BUT MX\n4 PINNED\n1 fixed\n2 \xB9\xCC\n"},
    {"any order of the numbers, repeats as ranges of their own", {{"FIXED", {5, 4, 4}}}, "4 4 TO 5 FIXED\n"},
    {"no description: the blank in front of it stands", {{"", {1}}}, "1 \n"},
    {"no numbers: an empty line", {{"FIXED", {}}, {"PINNED", {1}}}, "\n1 PINNED\n"},
    {"numbers of nothing in the model, 0 among them", {{"FIXED", {900000, 0}}}, "0 900000 FIXED\n"},
    {"numbers past the signed ones",
     {{"FIXED", {4294967295U, 2147483648U, 2147483647U}}},
     "2147483647 TO 2147483648 4294967295 FIXED\n"},
    {"the largest number twice",
     {{"FIXED", {4294967295U, 4294967295U, 4294967294U}}},
     "4294967294 TO 4294967295 4294967295 FIXED\n"},
    {"exactly 79 characters with the description",
     {{"FIXED BUT KFX 10000", every_second_from_11(20)}},
     "11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 49 FIXED BUT KFX 10000\n"},
    {"one more takes the last number along",
     {{"FIXED BUT KFX 100000", every_second_from_11(20)}},
     "11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 -\n49 FIXED BUT KFX 100000\n"},
    {"a mark at the 79th character",
     {{"FIXED", every_second_from_11(28)}},
     "11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 49 51 53 55 57 59 61 -\n63 65 FIXED\n"},
    {"a long description takes the last range along", {{long_text, {1, 5}}}, "1 -\n5 " + long_text + "\n"},
    {"one range and a long description: a line of the mark alone",
     {{long_text, {1, 2}}},
     " -\n1 TO 2 " + long_text + "\n"},
};

TEST(WriteSupports, WritesTheNumbersBeforeEachDescription)
{
    for (const description_row& row : description_rows)
        EXPECT_EQ(supports_text(row.entries), "SUPPORTS\n" + row.want) << row.why;
}

TEST(WriteReleases, WritesTheNumbersBeforeEachDescription)
{
    for (const description_row& row : description_rows)
        EXPECT_EQ(releases_text(row.entries), "MEMBER RELEASE\n" + row.want) << row.why;
}

TEST(WriteReleases, KeepsTheOldNumbersOfRenumberedMembers)
{
    SdReader model = written::row_of_members(1);
    model.nodes[0].id = 55;
    model.beams[0].id = 101;
    model.supports["FIXED"] = {55};
    model.releases["START MZ"] = {101};
    EXPECT_EQ(written::supports_to_loads(model), "SUPPORTS\n55 FIXED\nMEMBER RELEASE\n101 START MZ\n");
}

} // namespace
} // namespace STAAD
