/// Stations sorted, freed of repeats, and resampled at nine stations.

#include "tests/support/force_listing.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using listings::values;
using listings::values_of;
using listings::values_of_all;

/// Points at the positions, in order, whose f1 are `marks` and whose other values are 0.
BeamLoadCaseRecord record_at(const std::vector<double>& positions, const std::vector<double>& marks)
{
    BeamLoadCaseRecord record;
    for (std::size_t i = 0; i < positions.size(); ++i)
        record.points.push_back({positions[i], marks.at(i), 0, 0, 0, 0, 0});
    return record;
}

/// Points as texts show them, positions with their f1: "0: 10; 1.5: 30".
std::string shown_points(const std::vector<ForcePoint>& points)
{
    std::vector<std::pair<double, double>> rows;
    for (const ForcePoint& point : points)
        rows.emplace_back(point.position, point.f1);
    return shown(rows);
}

BeamLoadCaseRecord record_with(const std::string& points)
{
    BeamLoadCaseRecord record;
    std::istringstream text(points);
    char mark = 0;
    for (double position = 0, f1 = 0; text >> position >> mark >> f1; text >> mark)
        record.points.push_back({position, f1, 0, 0, 0, 0, 0});
    return record;
}

struct resampling_case {
    const char* why;
    const char* given;
    const char* points;    ///< afterwards
    const char* nine = ""; ///< empty: in a test of their own
};

const char* const five_points = "0: 10; 1.5: 30; 3: 20; 4.5: -20; 6: 0";
const char* const five_to_nine = "0: 10; 0.75: 20; 1.5: 30; 2.25: 25; 3: 20; 3.75: 0; 4.5: -20; 5.25: -10; 6: 0";
const char* const line_of_nine = "0: 0; 1: 10; 2: 20; 3: 30; 4: 40; 5: 50; 6: 60; 7: 70; 8: 80";

const resampling_case resampling_cases[] = {
    {"five points: odd eighths lie halfway between their neighbours", "0: 10; 1.5: 30; 3: 20; 4.5: -20; 6: 0",
     five_points, five_to_nine},
    {"in any order", "4.5: -20; 0: 10; 6: 0; 3: 20; 1.5: 30", five_points, five_to_nine},
    {"two points: a straight line", "0: 0; 8: 80", "0: 0; 8: 80", line_of_nine},
    {"nine points stay as they are, eighths or not", "0: 1; 1: 2; 1.5: 3; 1.75: 4; 2: 5; 3: 6; 5: 7; 7: 8; 16: 9",
     "0: 1; 1: 2; 1.5: 3; 1.75: 4; 2: 5; 3: 6; 5: 7; 7: 8; 16: 9",
     "0: 1; 1: 2; 1.5: 3; 1.75: 4; 2: 5; 3: 6; 5: 7; 7: 8; 16: 9"},
    {"nine that are left of ten", "0: 0; 1: 10; 2: 20; 3: 30; 4: 40; 5: 50; 6: 60; 7: 70; 3: 99; 8: 80", line_of_nine,
     line_of_nine},
    {"ten points are resampled: the ninth of 0 to 9 at eighths of 9",
     "0: 0; 1: 8; 2: 16; 3: 24; 4: 32; 5: 40; 6: 48; 7: 56; 8: 64; 9: 72",
     "0: 0; 1: 8; 2: 16; 3: 24; 4: 32; 5: 40; 6: 48; 7: 56; 8: 64; 9: 72",
     "0: 0; 1.125: 9; 2.25: 18; 3.375: 27; 4.5: 36; 5.625: 45; 6.75: 54; 7.875: 63; 9: 72"},
    {"a repeat goes: the one that came first stays", "0: 0; 8: 80; 8: 99", "0: 0; 8: 80", line_of_nine},
    {"repeats of every point", "0: 0; 8: 80; 0: 98; 8: 99", "0: 0; 8: 80", line_of_nine},
    {"positions closer than 0.0001 are one", "0: 0; 0.00005: 99; 8: 80", "0: 0; 8: 80", line_of_nine},
    {"positions 0.0001 and more apart are two", "0: 0; 0.000125: 0; 8: 0", "0: 0; 0.000125: 0; 8: 0",
     "0: 0; 1: 0; 2: 0; 3: 0; 4: 0; 5: 0; 6: 0; 7: 0; 8: 0"},
    {"of points that are one that stays which came first, with its own position", "8: 80; 0.00005: 7; 0: 99",
     "5e-05: 7; 8: 80"},
    {"how close is measured from the first: the third here is too far from it", "8: 4; 0: 1; 0.000075: 2; 0.00015: 3",
     "0: 1; 0.00015: 3; 8: 4"},
    {"stations before the first point take its values, with their own positions", "4: 7; 8: 11", "4: 7; 8: 11",
     "4: 7; 1: 7; 2: 7; 3: 7; 4: 7; 5: 8; 6: 9; 7: 10; 8: 11"},
    {"negative positions, ending in 0: every station is 0", "-8: 1; 0: 2", "-8: 1; 0: 2",
     "-8: 1; 0: 2; 0: 2; 0: 2; 0: 2; 0: 2; 0: 2; 0: 2; 0: 2"},
    {"negative positions alone: every station lies past the last point and takes its values", "-16: 1; -8: 2",
     "-16: 1; -8: 2", "-16: 1; -1: 2; -2: 2; -3: 2; -4: 2; -5: 2; -6: 2; -7: 2; -8: 2"},
    {"from negative to positive", "-8: 0; 8: 16", "-8: 0; 8: 16",
     "-8: 0; 1: 9; 2: 10; 3: 11; 4: 12; 5: 13; 6: 14; 7: 15; 8: 16"},
};

const std::vector<ForcePoint> earlier = {{1, 2, 3, 4, 5, 6, 7}};

TEST(Resampling, GivesNineStations)
{
    for (const resampling_case& c : resampling_cases) {
        BeamLoadCaseRecord record = record_with(c.given);
        record.pkpm_points = earlier;
        record.sort_pkpm_format();
        EXPECT_EQ(shown_points(record.points), c.points) << c.why;
        if (*c.nine != '\0') {
            EXPECT_EQ(shown_points(record.pkpm_points), c.nine) << c.why;
        }
        EXPECT_EQ(record.pkpm_points.size(), 9U) << c.why;
    }
}

TEST(Resampling, LeavesShortRecordsAsTheyWere)
{
    for (const auto& positions : std::vector<std::vector<double>>{{}, {3.0}, {3.0, 3.0}, {3.0, 3.00005, 2.99997}}) {
        BeamLoadCaseRecord record = record_at(positions, {1, 2, 3});
        record.pkpm_points = earlier;
        record.sort_pkpm_format();
        EXPECT_EQ(record.points.size(), positions.empty() ? 0U : 1U) << positions.size();
        EXPECT_EQ(values_of_all(record.pkpm_points), values_of_all(earlier)) << positions.size();
        if (!positions.empty()) {
            EXPECT_EQ(record.points[0].f1, 1) << "the first of the file";
        }
    }
}

TEST(Resampling, InterpolatesEveryColumn)
{
    BeamLoadCaseRecord record;
    record.points = {{0, 0, 8, -8, 16, 80, 0}, {8, 8, 0, 8, 0, 160, -1}};
    record.sort_pkpm_format();
    ASSERT_EQ(record.pkpm_points.size(), 9U);
    EXPECT_EQ(values_of(record.pkpm_points[0]), (values{0, 0, 8, -8, 16, 80, 0}));
    EXPECT_EQ(values_of(record.pkpm_points[1]), (values{1, 1, 7, -6, 14, 90, -0.125}));
    EXPECT_EQ(values_of(record.pkpm_points[4]), (values{4, 4, 4, 0, 8, 120, -0.5}));
    EXPECT_EQ(values_of(record.pkpm_points[7]), (values{7, 7, 1, 6, 2, 150, -0.875}));
    EXPECT_EQ(values_of(record.pkpm_points[8]), (values{8, 8, 0, 8, 0, 160, -1}));
}

TEST(Resampling, TakesAPointThatIsNearlyTheStation)
{
    // 0.99995 is not less than 1 - 0.0001: the station at 1 is reached from 0 through it.
    BeamLoadCaseRecord near = record_with("0: 0; 0.99995: 99.995; 8: 0");
    near.sort_pkpm_format();
    EXPECT_NEAR(near.pkpm_points[1].f1, 100.0, 1e-9);
    EXPECT_EQ(near.pkpm_points[1].position, 1.0);
    // 0.9998 is: the station lies between it and the next one.
    BeamLoadCaseRecord short_of_it = record_with("0: 0; 0.9998: 70002; 8: 0");
    short_of_it.sort_pkpm_format();
    EXPECT_NEAR(short_of_it.pkpm_points[1].f1, 70000.0, 1e-6) << "70002 x 7 / 7.0002";
}

TEST(Resampling, MeasuresFromThePointThatStays)
{
    BeamLoadCaseRecord record = record_with("8: 80; 0.00005: 7; 0: 99");
    record.sort_pkpm_format();
    EXPECT_EQ(record.pkpm_points[0].position, 0.00005);
    EXPECT_NEAR(record.pkpm_points[4].f1, 7 + 73 * (4 - 0.00005) / (8 - 0.00005), 1e-9);
}

TEST(Resampling, SurvivesPositionsThatAreNoNumbers)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double largest = std::numeric_limits<double>::max();
    const std::vector<std::vector<double>> all = {
        {nan, nan, nan},
        {nan, 0, 8, nan, 4, nan},
        {-infinite, infinite},
        {infinite, infinite, 0, 1},
        {infinite, nan, -infinite, 0, nan, infinite},
        {-largest, largest},
        {0, largest, largest},
        {8, 7, nan, 6, 5, nan, 4, 3, nan, 2, 1, nan, 0},
    };
    for (const auto& positions : all) {
        BeamLoadCaseRecord record = record_at(positions, std::vector<double>(positions.size(), nan));
        EXPECT_NO_THROW(record.sort_pkpm_format());
        EXPECT_LE(record.points.size(), positions.size());
        EXPECT_TRUE(record.pkpm_points.empty() || record.pkpm_points.size() == 9U) << record.pkpm_points.size();
    }
}

TEST(Resampling, OfAMemberIsThatOfEveryRecord)
{
    BeamForceAndMOM forces;
    forces.records[1] = record_with("0: 0; 8: 80");
    forces.records[2] = record_with("8: 1");
    forces.records[7] = record_with("8: 80; 0: 0");
    forces.sort_pkpm_format();
    EXPECT_EQ(shown_points(forces.records[1].pkpm_points), line_of_nine);
    EXPECT_TRUE(forces.records[2].pkpm_points.empty());
    EXPECT_EQ(shown_points(forces.records[7].pkpm_points), line_of_nine);
}

TEST(Resampling, IsDoneByTheImport)
{
    const SdReader model = listings::read(listings::section(
        {"101 1:A 8 80 0 0 0 0 0", "0 0 0 0 0 0 0", "4 40 0 0 0 0 0", "8 99 0 0 0 0 0", "2:B @5", "3:C @0"}));
    const auto& records = model.beam_forces.at(1).records;
    EXPECT_EQ(shown_points(records.at(1).points), "0: 0; 4: 40; 8: 80");
    EXPECT_EQ(shown_points(records.at(1).pkpm_points), line_of_nine);
    EXPECT_TRUE(records.at(2).pkpm_points.empty()) << "a single station";
}

} // namespace
} // namespace STAAD
