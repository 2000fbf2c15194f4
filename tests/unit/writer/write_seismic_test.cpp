/// The parameters of the generated seismic case; the golden files have the block as a whole.

#include "staad/model/sd_reader.h"
#include "tests/support/chinese_texts.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

SdReader with(const SeismicParam& parameters)
{
    SdReader model;
    model.eq_param = parameters;
    return model;
}

/// What stands between two lines of the case.
std::string between(const SeismicParam& parameters, const std::string& first, const std::string& last)
{
    return written::between(written::seismic(with(parameters)), first, last);
}

struct word_row {
    chinese::encoded text;
    const char* type;  ///< the line if it is the earthquake type
    const char* group; ///< the line if it is the design group
};

const word_row word_rows[] = {
    {chinese::far, "*{ EQ TYPE : 1\n", ""},
    {chinese::near, "*{ EQ TYPE : 2\n", ""},
    {chinese::frequent, "*{ EQ TYPE : 3\n", ""},
    {chinese::rare, "*{ EQ TYPE : 4\n", ""},
    {chinese::first_group, "", "*{ EQ GROUP : 1\n"},
    {chinese::second_group, "", "*{ EQ GROUP : 2\n"},
    {chinese::third_group, "", "*{ EQ GROUP : 3\n"},
    {{"1", "FAR"}, "", ""},
    {{" \xD4\xB6", "\xD4\xB6 "}, "", ""},           // a blank beside the word
    {{"\xB6\xE0", "\xB6\xE0\xD3\xF6\xD3"}, "", ""}, // half a word, and more than one
};

TEST(WriteSeismic, KnowsTypesAndGroupsInBothEncodings)
{
    for (const word_row& row : word_rows) {
        for (const char* const bytes : {row.text.gbk, row.text.utf8}) {
            SeismicParam parameters;
            parameters.eq_type = bytes;
            parameters.eq_group = bytes;
            EXPECT_EQ(between(parameters, chinese::eq_type, chinese::post_method), row.type) << bytes;
            EXPECT_EQ(between(parameters, chinese::eq_group, chinese::special_accelerate), row.group) << bytes;
        }
    }
}

TEST(WriteSeismic, HasAFactorOrTheNeutralOneForEachDirection)
{
    struct row {
        std::array<bool, 3> active;
        std::array<int, 3> factor;
        const char* want;
    };
    const row rows[] = {
        {{false, true, false}, {9, 1, 9}, "*{ DIRECTION FACTOR : 0 1.00 1 1 0 1.00\n"},
        {{true, true, true}, {1, 2, 3}, "*{ DIRECTION FACTOR : 1 1 1 2 1 3\n"},
        {{true, false, false}, {INT_MIN, 1, 1}, "*{ DIRECTION FACTOR : 1 -2147483648 0 1.00 0 1.00\n"},
        {{false, false, true}, {1, 1, INT_MAX}, "*{ DIRECTION FACTOR : 0 1.00 0 1.00 1 2147483647\n"},
    };
    for (const row& c : rows) {
        SeismicParam parameters;
        parameters.dir_active = c.active;
        parameters.dir_factor = c.factor;
        EXPECT_EQ(between(parameters, chinese::direction_factor, chinese::y_freedom), c.want);
    }
}

TEST(WriteSeismic, WritesNumbersOfAnySize)
{
    SeismicParam large;
    large.force_type = true;
    large.eq_intensity = INT_MIN;
    large.point_number = -1;
    large.damping_factor = 1.23456789e-5;
    large.proportion_factor = 1e300;
    EXPECT_EQ(between(large, chinese::force_type, chinese::eq_intensity), "*{ FORCE TYPE : 1\n");
    EXPECT_EQ(between(large, chinese::eq_intensity, chinese::eq_group), "*{ EQ INTENSITY : -2147483648\n");
    EXPECT_EQ(between(large, chinese::point_number, chinese::damping_factor), "*{ POINT NUMBER : -1\n");
    EXPECT_EQ(between(large, chinese::damping_factor, chinese::proportion_factor), "*{ DAMPING FACTOR : 1.23457e-05\n");
    EXPECT_EQ(between(large, chinese::proportion_factor, chinese::loadno_factor), "*{ PROPORTION FACTOR : 1e+300\n");
}

} // namespace
} // namespace STAAD
