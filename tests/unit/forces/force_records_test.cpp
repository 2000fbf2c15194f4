/// Records of one member put together.

#include "tests/support/force_listing.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// Load cases and the positions of their stations.
using case_positions = std::map<int, std::vector<double>>;

BeamLoadCaseRecord record(int load_case, const std::vector<double>& positions)
{
    BeamLoadCaseRecord made;
    made.load_case = load_case;
    for (const double position : positions)
        made.points.push_back({position, 1, 2, 3, 4, 5, 6});
    return made;
}

BeamForceAndMOM forces(int beam, const case_positions& cases)
{
    BeamForceAndMOM made;
    made.beam = beam;
    for (const auto& [load_case, positions] : cases)
        made.records[load_case] = record(load_case, positions);
    return made;
}

/// "5: 2 1; 6: 3" for load cases 5 and 6 with stations at 2 and 1 and at 3.
std::string stations_of(const BeamForceAndMOM& member)
{
    case_positions found;
    for (const auto& [load_case, kept] : member.records) {
        EXPECT_EQ(kept.load_case, load_case);
        found[load_case];
        for (const ForcePoint& point : kept.points) {
            EXPECT_EQ(listings::values_of(point), (listings::values{point.position, 1, 2, 3, 4, 5, 6}));
            found[load_case].push_back(point.position);
        }
    }
    return shown(found);
}

TEST(AddLoadCaseRecord, StoresANewOneAndAppendsToOneThatIsThere)
{
    const struct {
        const char* why;
        case_positions before;
        BeamLoadCaseRecord added;
        const char* want;
    } cases[] = {
        {"a new one, in the order given", {}, record(5, {2, 1}), "5: 2 1"},
        {"one that is there: appended", {{5, {1}}, {6, {3}}}, record(5, {3, 2, 1}), "5: 1 3 2 1; 6: 3"},
        {"an empty one is stored", {}, record(0, {}), "0: -"},
        {"and appended to", {{0, {}}}, record(0, {1}), "0: 1"},
        {"nothing appended to one", {{0, {1}}}, record(0, {}), "0: 1"},
    };
    for (const auto& c : cases) {
        BeamForceAndMOM member = forces(1, c.before);
        member.add_loadCase_record(c.added);
        EXPECT_EQ(stations_of(member), c.want) << c.why;
    }
}

TEST(AddLoadCaseRecord, TakesResampledStationsOfANewOneAlone)
{
    BeamLoadCaseRecord resampled = record(5, {1});
    resampled.pkpm_points = {{7, 1, 2, 3, 4, 5, 6}};
    BeamForceAndMOM member;
    member.add_loadCase_record(resampled);
    resampled.pkpm_points.front().position = 8;
    member.add_loadCase_record(resampled);
    ASSERT_EQ(member.records.at(5).pkpm_points.size(), 1U);
    EXPECT_EQ(member.records.at(5).pkpm_points.front().position, 7) << "what was resampled stays";
}

TEST(AddLoadCaseRecord, DoublesARecordOfItsOwn)
{
    BeamForceAndMOM member = forces(1, {{5, {1, 2, 3}}});
    for (int times = 2; times <= 16; times *= 2) // while the list has room and while it has none
        member.add_loadCase_record(member.records.at(5));
    std::vector<double> want;
    for (int i = 0; i < 16; ++i)
        want.insert(want.end(), {1, 2, 3});
    EXPECT_EQ(stations_of(member), shown(case_positions{{5, want}}));
}

TEST(MergeForces, AddsTheRecordsOfTheSameMember)
{
    const struct {
        const char* why;
        BeamForceAndMOM member;
        BeamForceAndMOM other;
        const char* want;
    } cases[] = {
        {"new cases are added, old ones appended to", forces(7, {{1, {1}}, {3, {2}}}),
         forces(7, {{2, {3}}, {3, {1, 3}}, {-1, {2}}}), "-1: 2; 1: 1; 2: 3; 3: 2 1 3"},
        {"nothing of another member", forces(7, {{1, {1}}}), forces(8, {{1, {2}}, {2, {3}}}), "1: 1"},
        {"members without numbers are the same", forces(0, {}), forces(0, {{1, {1}}}), "1: 1"},
        {"nothing to add", forces(0, {{1, {1}}}), forces(0, {}), "1: 1"},
    };
    for (const auto& c : cases) {
        BeamForceAndMOM member = c.member;
        member.merge(c.other);
        EXPECT_EQ(stations_of(member), c.want) << c.why;
        EXPECT_EQ(member.beam, c.member.beam) << c.why;
    }
}

TEST(MergeForces, WithItselfDoublesEveryRecord)
{
    BeamForceAndMOM member = forces(7, {{1, {1, 2}}, {2, {}}, {3, {3}}});
    member.merge(member);
    EXPECT_EQ(stations_of(member), "1: 1 2 1 2; 2: -; 3: 3 3");
}

TEST(MergeForces, GoesByTheNumberInTheRecord)
{
    BeamForceAndMOM other;
    other.records[9] = record(4, {1}); // a host may store a record anywhere
    BeamForceAndMOM member;
    member.merge(other);
    EXPECT_EQ(stations_of(member), "4: 1");
}

} // namespace
} // namespace STAAD
