/// The listings beside the example models, whose values follow from the loads and spans they were made
/// for: fixed and simply supported beams, cantilevered and propped columns.

#include "staad/report/read_report.h"
#include "tests/support/example_files.h"
#include "tests/support/force_listing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

using listings::values;
using listings::values_of;

SdReader example(const std::string& name, ReadReport& report)
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromText(examples::content(name + ".std")));
    model.ReadForceMomentFromText(examples::content(name + ".txt"), report);
    return model;
}

SdReader example(const std::string& name)
{
    ReadReport report;
    return example(name, report);
}

const BeamForceAndMOM& member(const SdReader& model, int number)
{
    return model.beam_forces.at(model.beam_index.at(number));
}

const BeamLoadCaseRecord& record(const SdReader& model, int number, int load_case)
{
    return member(model, number).records.at(load_case);
}

/// Numbers of the members that have forces.
std::vector<int> members(const SdReader& model)
{
    std::vector<int> numbers;
    for (const auto& [position, forces] : model.beam_forces)
        numbers.push_back(model.beams.at(static_cast<std::size_t>(position - 1)).id);
    return numbers;
}

std::vector<int> cases(const SdReader& model, int number)
{
    std::vector<int> numbers;
    for (const auto& [load_case, kept] : member(model, number).records)
        numbers.push_back(load_case);
    return numbers;
}

std::size_t count(const ReadReport& report, const std::string& code)
{
    std::size_t found = 0;
    for (const Finding& finding : report.findings)
        found += finding.code == code ? finding.count : 0;
    return found;
}

/// Equal but for what units and interpolation round off.
void expect_point(const ForcePoint& point, const values& want)
{
    const values got = values_of(point);
    for (std::size_t i = 0; i < want.size(); ++i)
        EXPECT_NEAR(got[i], want[i], 1e-8) << "value " << i << " of " << testing::PrintToString(got);
}

TEST(ConcreteListing, HasTheMembersAndCasesPrinted)
{
    ReadReport report;
    const SdReader model = example("concrete-frame", report);
    EXPECT_EQ(members(model), (std::vector<int>{1, 2, 5, 201, 202, 203, 205, 208, 401, 402}));
    EXPECT_EQ(cases(model, 202), (std::vector<int>{1, 2, 3, 4, 6, 8, 101}));
    EXPECT_EQ(cases(model, 201), (std::vector<int>{1, 2, 3, 4, 6, 8, 101, 102, 103})) << "of two sections";
    EXPECT_EQ(cases(model, 208), (std::vector<int>{1, 2, 3, 4, 6, 8})) << "without the last case of its section";
    EXPECT_EQ(cases(model, 5), (std::vector<int>{1, 2, 3, 4, 6})) << "the same";
    EXPECT_EQ(cases(model, 402), (std::vector<int>{1, 2, 3, 4, 6, 8})) << "the same";
    EXPECT_EQ(count(report, "force-section"), 3U);
    EXPECT_EQ(count(report, "force-last-case"), 3U);
    EXPECT_EQ(report.findings.size(), 6U) << "and nothing else to tell";
    EXPECT_EQ(model.unit_text, "UNIT mm kN kN-m");
}

TEST(ConcreteListing, HasABeamAtNineStations)
{
    // 24 kN/m on 6 m between fixed ends: shear 72 kN, moments -24 x 36 / 12 = -72 and 24 x 36 / 24 = 36 kNm.
    const SdReader model = example("concrete-frame");
    const BeamLoadCaseRecord& dead = record(model, 201, 1);
    ASSERT_EQ(dead.points.size(), 9U);
    expect_point(dead.points[0], {0, 0, 72, 0, 0, 0, -72000});
    expect_point(dead.points[2], {1500, 0, 36, 0, 0, 0, 9000});
    expect_point(dead.points[4], {3000, 0, 0, 0, 0, 0, 36000});
    expect_point(dead.points[8], {6000, 0, -72, 0, 0, 0, -72000});
    EXPECT_EQ(listings::values_of_all(dead.pkpm_points), listings::values_of_all(dead.points));
    // 1.2 kNm of torsion on every metre, both ends held.
    expect_point(record(model, 201, 3).points[0], {0, 0, 0, 0, 3600, 0, 0});
    // Construction: 9 kN/m; its title ends in E.
    expect_point(record(model, 201, 8).points[4], {3000, 0, 0, 0, 0, 0, 13500});
    // Half the span.
    expect_point(record(model, 205, 1).points[1], {375, 0, 22.5, 0, 0, 0, -5156});
}

TEST(ConcreteListing, HasColumnsInKilogramsAtFiveStations)
{
    // 64 t at the base, and 6.25 kN/m of its own weight; 500 kg of wind, held at the base and 4 m higher up.
    const SdReader model = example("concrete-frame");
    const BeamLoadCaseRecord& dead = record(model, 1, 1);
    ASSERT_EQ(dead.points.size(), 5U);
    expect_point(dead.points[0], {0, -627.2, 0, 0, 0, 0, 0});
    ASSERT_EQ(dead.pkpm_points.size(), 9U);
    expect_point(dead.pkpm_points[1], {500, -624.0738, 0, 0, 0, 0, 0}); // of 64000 and 63362 kg the mean
    const BeamLoadCaseRecord& wind = record(model, 1, 4);
    expect_point(wind.points[0], {0, 0, 4.9, 0, 0, 0, -11760});
    expect_point(wind.pkpm_points[1], {500, 0, 4.9, 0, 0, 0, -9310});
    expect_point(wind.pkpm_points[8], {4000, 0, 4.9, 0, 0, 0, 7840});
}

TEST(ConcreteListing, HasBeamsAtThirteenStations)
{
    // 14 kN/m on 6 m: shear 42 - 14 x, moment -42 + 42 x - 7 x2; an eighth lies between two stations, where
    // the moment is the mean of -22.75 and -7.
    const SdReader model = example("concrete-frame");
    const BeamLoadCaseRecord& dead = record(model, 401, 1);
    ASSERT_EQ(dead.points.size(), 13U);
    ASSERT_EQ(dead.pkpm_points.size(), 9U);
    expect_point(dead.pkpm_points[1], {750, 0, 31.5, 0, 0, 0, -14875});
    expect_point(dead.pkpm_points[4], {3000, 0, 0, 0, 0, 0, 21000});
    // Member 201 again: 1.3 x 24 + 1.05 x 5 = 36.45 kN/m, and 1.5 x 6 kN and 1.5 x 18 kNm of wind.
    const BeamLoadCaseRecord& wind = record(model, 201, 102);
    ASSERT_EQ(wind.points.size(), 13U);
    expect_point(wind.points[0], {0, 0, 118.35, 0, 4680, 0, -136350});
}

TEST(ConcreteListing, GivesLoadLists)
{
    const SdReader model = example("concrete-frame");
    const auto list = member(model, 201).get_pkpm_load_on_section(model.load_cases);
    ASSERT_EQ(list.size(), 9U);
    expect_point(list[0].dead, {0, 0, 0, 0, 3600, 0, 0}); // case 3, the later of two dead ones
    expect_point(list[4].live, {3000, 0, 0, 0, 0, 0, 7500});
    expect_point(list[0].wind, {0, 0, 6, 0, 0, 0, -18000});
    expect_point(list[8].seismic, {6000, 0, 15, 0, 0, 0, 45000});
}

TEST(SteelListing, HasTheMembersAndCasesPrinted)
{
    ReadReport report;
    const SdReader model = example("steel-portal", report);
    EXPECT_EQ(members(model), (std::vector<int>{1, 8, 11, 12, 33, 34, 37, 40, 46}));
    EXPECT_EQ(cases(model, 37), (std::vector<int>{1, 2, 3, 4, 5, 101})) << "between two unknown members";
    EXPECT_EQ(cases(model, 46), (std::vector<int>{1, 2, 3, 4, 5})) << "without the last case of its section";
    EXPECT_EQ(cases(model, 34), (std::vector<int>{1, 2, 3, 4})) << "the same";
    EXPECT_EQ(cases(model, 1), (std::vector<int>{1, 2, 3, 4, 5, 101, 102, 103}))
        << "of two sections, the second of which ends with an unknown member";
    EXPECT_EQ(count(report, "force-section"), 3U);
    EXPECT_EQ(count(report, "force-unknown-member"), 3U);
    EXPECT_EQ(count(report, "force-last-case"), 2U);
    EXPECT_EQ(report.findings.size(), 8U) << "and nothing else to tell";
}

TEST(SteelListing, HasPurlins)
{
    // Simply supported on 6 m: w L / 2 and w L2 / 8 for 0.224 and 3 kN/m.
    const SdReader model = example("steel-portal");
    expect_point(record(model, 37, 1).pkpm_points[0], {0, 0, 0.672, 0, 0, 0, 0});
    expect_point(record(model, 37, 1).pkpm_points[4], {3000, 0, 0, 0, 0, 0, 1008});
    expect_point(record(model, 37, 2).pkpm_points[4], {3000, 0, 0, 0, 0, 0, 13500});
    const auto list = member(model, 37).get_pkpm_load_on_section(model.load_cases);
    ASSERT_EQ(list.size(), 9U);
    expect_point(list[4].wind, {3000, 0, 0, 0, 0, 0, -8100}); // case 4, the later of two
    expect_point(list[4].live, {3000, 0, 0, 0, 0, 0, 13500});
    expect_point(list[4].seismic, {});
}

TEST(SteelListing, HasColumnsAndPostsInTons)
{
    const SdReader model = example("steel-portal");
    const BeamLoadCaseRecord& dead = record(model, 1, 1);
    ASSERT_EQ(dead.points.size(), 13U);
    expect_point(dead.points[12], {6000, -14.5628, 4.9, 0, 0, 0, 29400});   // 1.486 t, 0.5 t, 3 tm
    expect_point(dead.pkpm_points[1], {750, -18.9679, 4.9, 0, 0, 0, 3675}); // between 1.957 and 1.914 t
    // Fixed at the base, propped at 6.9 m, 2.7 kN/m of wind: 5 w L / 8 = 11.64 kN = 1.188 t,
    // w L2 / 8 = 16.07 kNm = 1.640 tm.
    expect_point(record(model, 33, 4).points[0], {0, 0, 11.6424, 0, 0, 0, -16072});
    // 1.0 dead and 1.5 wind, of the section in kN.
    expect_point(record(model, 1, 102).points[0], {0, -1.96, 34.3, 0, 0, 0, 0});
}

} // namespace
} // namespace STAAD
