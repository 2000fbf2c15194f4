/// Pairs of random models, compared by the library and in the plainest way. A failure prints the arguments
/// that give the same pair again.

#include "tests/support/model_equal.h"
#include "tests/support/plain_match.h"
#include "tests/support/random_pair.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using decks::place_kind;

/// What was found in all pairs of a kind, so that none of the tests is about nothing.
struct tally {
    std::size_t joints = 0;
    std::size_t members = 0;
    std::size_t shells = 0;
};

void compare_pair(std::uint64_t seed, place_kind kind, int joints, tally& found)
{
    decks::model_pair pair = decks::make_random_pair(seed, kind, joints);
    const OldProjMaps want = plain::match(pair.now, pair.earlier);
    pair.now.MakeMap(pair.earlier);
    ASSERT_EQ(record_differences(pair.now.old_proj_maps, want), std::vector<std::string>())
        << "make_random_pair(" << seed << ", place_kind(" << static_cast<int>(kind) << "), " << joints << ")";
    found.joints += want.joints_new_to_old.size();
    found.members += want.members_new_to_old.size();
    found.shells += want.shells_new_to_old.size();
}

/// Compares the pairs of the seeds 1 to `seeds`; they have at least so much in common.
void compare_pairs(place_kind kind, std::uint64_t seeds, int joints, const tally& least)
{
    tally found;
    for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
        compare_pair(seed, kind, joints, found);
        if (testing::Test::HasFatalFailure())
            return;
    }
    EXPECT_GT(found.joints, least.joints);
    EXPECT_GT(found.members, least.members);
    EXPECT_GT(found.shells, least.shells);
}

struct kind_row {
    const char* name;
    place_kind kind;
};

void PrintTo(const kind_row& row, std::ostream* out)
{
    *out << row.name;
}

class MatchRandomPairs : public testing::TestWithParam<kind_row> {};

TEST_P(MatchRandomPairs, SmallOnesMatchAsInThePlainestWay)
{
    compare_pairs(GetParam().kind, 4000, 14, {8000, 2000, 1500});
}

TEST_P(MatchRandomPairs, LargerOnesMatchAsInThePlainestWay)
{
    compare_pairs(GetParam().kind, 40, 400, {2000, 600, 300});
}

const kind_row kinds[] = {
    {"building", place_kind::building},
    {"clusters_in_line", place_kind::clusters_in_line},
    {"clusters", place_kind::clusters},
    {"chains", place_kind::chains},
    {"crossing_chains", place_kind::crossing_chains},
    {"borders_in_line", place_kind::borders_in_line},
    {"borders", place_kind::borders},
    {"far_out_in_line", place_kind::far_out_in_line},
    {"far_out", place_kind::far_out},
};

INSTANTIATE_TEST_SUITE_P(Places, MatchRandomPairs, testing::ValuesIn(kinds),
                         [](const auto& tested) { return std::string(tested.param.name); });

} // namespace
} // namespace STAAD
