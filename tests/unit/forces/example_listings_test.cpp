/// The listings beside the example models, whose values follow from the loads and spans they were made
/// for: fixed and simply supported beams, cantilevered and propped columns.

#include "staad/report/read_report.h"
#include "tests/support/example_files.h"
#include "tests/support/force_listing.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
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

const BeamForceAndMOM& member(const SdReader& model, int number)
{
    return model.beam_forces.at(model.beam_index.at(number));
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

/// Equal but for what units and interpolation round off.
void expect_point(const ForcePoint& point, const values& want)
{
    const values got = values_of(point);
    for (std::size_t i = 0; i < want.size(); ++i)
        EXPECT_NEAR(got[i], want[i], 1e-8) << "value " << i << " of " << testing::PrintToString(got);
}

const struct {
    const char* name;
    std::vector<int> members;
    std::vector<std::pair<int, std::vector<int>>> cases; ///< of some members
    std::map<std::string, std::size_t> findings;         ///< all there are, by code
} printed_cases[] = {
    {"concrete-frame",
     {1, 2, 5, 201, 202, 203, 205, 208, 401, 402},
     {{202, {1, 2, 3, 4, 6, 8, 101}},
      {201, {1, 2, 3, 4, 6, 8, 101, 102, 103}}, // of two sections
      {208, {1, 2, 3, 4, 6, 8}},                // the last of its section: without the last case
      {5, {1, 2, 3, 4, 6}},                     // the same
      {402, {1, 2, 3, 4, 6, 8}}},               // the same
     {{"force-section", 3}, {"force-last-case", 3}}},
    {"steel-portal",
     {1, 8, 11, 12, 33, 34, 37, 40, 46},
     {{37, {1, 2, 3, 4, 5, 101}},           // between two unknown members
      {46, {1, 2, 3, 4, 5}},                // the last of its section
      {34, {1, 2, 3, 4}},                   // the same
      {1, {1, 2, 3, 4, 5, 101, 102, 103}}}, // of two sections, the second of which ends with an unknown member
     {{"force-section", 3}, {"force-unknown-member", 3}, {"force-last-case", 2}}},
};

TEST(ExampleListings, HaveTheMembersAndCasesPrinted)
{
    for (const auto& c : printed_cases) {
        ReadReport report;
        const SdReader model = example(c.name, report);
        EXPECT_EQ(members(model), c.members) << c.name;
        for (const auto& [number, want] : c.cases)
            EXPECT_EQ(cases(model, number), want) << c.name << ", member " << number;
        std::map<std::string, std::size_t> found;
        for (const Finding& finding : report.findings)
            found[finding.code] += finding.count;
        EXPECT_EQ(found, c.findings) << c.name;
    }
}

enum stations { printed, resampled };

struct station_case {
    const char* why;
    int member;
    int load_case;
    stations of;
    std::size_t index;
    values want;
};

void expect_stations(const char* name, const std::vector<station_case>& all)
{
    ReadReport report;
    const SdReader model = example(name, report);
    for (const station_case& c : all) {
        const BeamLoadCaseRecord& record = member(model, c.member).records.at(c.load_case);
        ASSERT_EQ(record.pkpm_points.size(), 9U) << c.why;
        SCOPED_TRACE(c.why);
        expect_point(c.of == printed ? record.points.at(c.index) : record.pkpm_points[c.index], c.want);
    }
}

TEST(ExampleListings, HaveTheForcesOfTheConcreteFrame)
{
    const char* const beam = "24 kN/m, 6 m, fixed ends: 72 kN, -24 x 36 / 12 = -72 and 24 x 36 / 24 = 36 kNm";
    const char* const column = "64 t at the base, 6.25 kN/m of its own weight: the mean of 64000 and 63362 kg";
    const char* const wind = "500 kg of wind, held at the base and 4 m higher up";
    const char* const parabola = "-42 + 42 x - 7 x2 at 13 stations: the mean of -22.75 and -7";
    const char* const combination = "1.3 x 24 + 1.05 x 5 = 36.45 kN/m; 1.5 x 6 kN and 1.5 x 18 kNm of wind";
    expect_stations(
        "concrete-frame",
        {
            {beam, 201, 1, printed, 0, {0, 0, 72, 0, 0, 0, -72000}},
            {beam, 201, 1, printed, 4, {3000, 0, 0, 0, 0, 0, 36000}},
            {beam, 201, 1, resampled, 8, {6000, 0, -72, 0, 0, 0, -72000}},
            {"1.2 kNm of torsion on every metre, both ends held", 201, 3, printed, 0, {0, 0, 0, 0, 3600, 0, 0}},
            {"9 kN/m in construction; its title ends in E", 201, 8, printed, 4, {3000, 0, 0, 0, 0, 0, 13500}},
            {"half the span", 205, 1, printed, 1, {375, 0, 22.5, 0, 0, 0, -5156}},
            {column, 1, 1, printed, 0, {0, -627.2, 0, 0, 0, 0, 0}},
            {column, 1, 1, resampled, 1, {500, -624.0738, 0, 0, 0, 0, 0}},
            {wind, 1, 4, printed, 0, {0, 0, 4.9, 0, 0, 0, -11760}},
            {wind, 1, 4, resampled, 1, {500, 0, 4.9, 0, 0, 0, -9310}},
            {wind, 1, 4, resampled, 8, {4000, 0, 4.9, 0, 0, 0, 7840}},
            {parabola, 401, 1, resampled, 1, {750, 0, 31.5, 0, 0, 0, -14875}},
            {"the same at midspan", 401, 1, resampled, 4, {3000, 0, 0, 0, 0, 0, 21000}},
            {combination, 201, 102, printed, 0, {0, 0, 118.35, 0, 4680, 0, -136350}},
        });
}

TEST(ExampleListings, HaveTheForcesOfTheSteelPortal)
{
    const char* const purlin = "simply supported on 6 m: w L / 2 and w L2 / 8 for 0.224 and 3 kN/m";
    const char* const post = "propped at 6.9 m, 2.7 kN/m: 5 w L / 8 = 1.188 t, w L2 / 8 = 16.07 kNm = 1.640 tm";
    expect_stations("steel-portal",
                    {
                        {purlin, 37, 1, resampled, 0, {0, 0, 0.672, 0, 0, 0, 0}},
                        {purlin, 37, 1, resampled, 4, {3000, 0, 0, 0, 0, 0, 1008}},
                        {purlin, 37, 2, resampled, 4, {3000, 0, 0, 0, 0, 0, 13500}},
                        {"1.486 t, 0.5 t, 3 tm", 1, 1, printed, 12, {6000, -14.5628, 4.9, 0, 0, 0, 29400}},
                        {"between 1.957 and 1.914 t", 1, 1, resampled, 1, {750, -18.9679, 4.9, 0, 0, 0, 3675}},
                        {post, 33, 4, printed, 0, {0, 0, 11.6424, 0, 0, 0, -16072}},
                        {"1.0 dead and 1.5 wind, in kN", 1, 102, printed, 0, {0, -1.96, 34.3, 0, 0, 0, 0}},
                    });
}

TEST(ExampleListings, GiveLoadLists)
{
    ReadReport report;
    const SdReader model = example("concrete-frame", report);
    const auto list = member(model, 201).get_pkpm_load_on_section(model.load_cases);
    ASSERT_EQ(list.size(), 9U);
    expect_point(list[0].dead, {0, 0, 0, 0, 3600, 0, 0}); // case 3, the later of two dead ones
    expect_point(list[4].live, {3000, 0, 0, 0, 0, 0, 7500});
    expect_point(list[0].wind, {0, 0, 6, 0, 0, 0, -18000});
    expect_point(list[8].seismic, {6000, 0, 15, 0, 0, 0, 45000});
}

} // namespace
} // namespace STAAD
