/// Records of one member put together.

#include "tests/support/force_listing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

using listings::values_of;
using listings::values_of_all;

const ForcePoint a{1, 2, 3, 4, 5, 6, 7};
const ForcePoint b{11, 12, 13, 14, 15, 16, 17};
const ForcePoint c{21, 22, 23, 24, 25, 26, 27};

BeamLoadCaseRecord record(int load_case, const std::vector<ForcePoint>& points,
                          const std::vector<ForcePoint>& pkpm_points = {})
{
    BeamLoadCaseRecord made;
    made.load_case = load_case;
    made.points = points;
    made.pkpm_points = pkpm_points;
    return made;
}

BeamForceAndMOM forces(int beam, const std::vector<BeamLoadCaseRecord>& records)
{
    BeamForceAndMOM made;
    made.beam = beam;
    for (const BeamLoadCaseRecord& one : records)
        made.records[one.load_case] = one;
    return made;
}

void expect_points(const BeamForceAndMOM& of, int load_case, const std::vector<ForcePoint>& want)
{
    ASSERT_EQ(of.records.count(load_case), 1U) << load_case;
    EXPECT_EQ(of.records.at(load_case).load_case, load_case);
    EXPECT_EQ(values_of_all(of.records.at(load_case).points), values_of_all(want)) << load_case;
}

TEST(AddLoadCaseRecord, StoresANewOneWhole)
{
    BeamForceAndMOM member;
    member.add_loadCase_record(record(5, {b, a}, {c}));
    ASSERT_EQ(member.records.size(), 1U);
    expect_points(member, 5, {b, a});
    EXPECT_EQ(values_of_all(member.records.at(5).pkpm_points), values_of_all({c}));
}

TEST(AddLoadCaseRecord, AppendsThePointsOfOneThatIsThere)
{
    BeamForceAndMOM member = forces(1, {record(5, {a}, {a}), record(6, {c})});
    member.add_loadCase_record(record(5, {c, b, a}, {b}));
    ASSERT_EQ(member.records.size(), 2U);
    expect_points(member, 5, {a, c, b, a});
    EXPECT_EQ(values_of_all(member.records.at(5).pkpm_points), values_of_all({a})) << "what was resampled stays";
    expect_points(member, 6, {c});
}

TEST(AddLoadCaseRecord, TakesEmptyOnes)
{
    BeamForceAndMOM member;
    member.add_loadCase_record(record(0, {}));
    expect_points(member, 0, {});
    member.add_loadCase_record(record(0, {a}));
    expect_points(member, 0, {a});
    member.add_loadCase_record(record(0, {}));
    expect_points(member, 0, {a});
}

TEST(AddLoadCaseRecord, DoublesARecordOfItsOwn)
{
    BeamForceAndMOM member = forces(1, {record(5, {a, b, c})});
    for (int times = 2; times <= 16; times *= 2) // while the list has room and while it has none
        member.add_loadCase_record(member.records.at(5));
    ASSERT_EQ(member.records.at(5).points.size(), 48U);
    for (std::size_t i = 0; i < 48; i += 3) {
        EXPECT_EQ(values_of(member.records.at(5).points[i]), values_of(a)) << i;
        EXPECT_EQ(values_of(member.records.at(5).points[i + 2]), values_of(c)) << i;
    }
}

TEST(MergeForces, AddsNewCasesAndAppendsToOldOnes)
{
    BeamForceAndMOM member = forces(7, {record(1, {a}), record(3, {b})});
    const BeamForceAndMOM other = forces(7, {record(2, {c}), record(3, {a, c}), record(-1, {b})});
    member.merge(other);
    EXPECT_EQ(member.beam, 7);
    ASSERT_EQ(member.records.size(), 4U);
    expect_points(member, -1, {b});
    expect_points(member, 1, {a});
    expect_points(member, 2, {c});
    expect_points(member, 3, {b, a, c});
    EXPECT_EQ(other.records.size(), 3U) << "the other one stays";
    expect_points(other, 3, {a, c});
}

TEST(MergeForces, TakesNothingOfAnotherMember)
{
    BeamForceAndMOM member = forces(7, {record(1, {a})});
    member.merge(forces(8, {record(1, {b}), record(2, {c})}));
    ASSERT_EQ(member.records.size(), 1U);
    expect_points(member, 1, {a});
    EXPECT_EQ(member.beam, 7);
}

TEST(MergeForces, OfMembersWithoutNumbersIsTheSame)
{
    BeamForceAndMOM member;
    member.merge(forces(0, {record(1, {a})}));
    expect_points(member, 1, {a});
    member.merge(BeamForceAndMOM());
    expect_points(member, 1, {a});
}

TEST(MergeForces, WithItselfDoublesEveryRecord)
{
    BeamForceAndMOM member = forces(7, {record(1, {a, b}), record(2, {}), record(3, {c})});
    member.merge(member);
    ASSERT_EQ(member.records.size(), 3U);
    expect_points(member, 1, {a, b, a, b});
    expect_points(member, 2, {});
    expect_points(member, 3, {c, c});
}

TEST(MergeForces, GoesByTheNumberInTheRecord)
{
    BeamForceAndMOM other;
    other.records[9] = record(4, {a}); // a host may store a record anywhere
    BeamForceAndMOM member;
    member.merge(other);
    ASSERT_EQ(member.records.size(), 1U);
    expect_points(member, 4, {a});
}

} // namespace
} // namespace STAAD
