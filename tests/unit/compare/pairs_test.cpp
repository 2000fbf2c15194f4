/// Which records of two models are the same and which have been moved, once numbers count.

#include "staad/compare/pairs.h"

#include "tests/support/placed_models.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace STAAD {
namespace {

using ints = std::vector<int>;

const double no_number = std::numeric_limits<double>::quiet_NaN();

/// A joint at `x`, or a member between two positions of the joints at 0, 1 and 2 m; 9 is no joint.
struct numbered_joint {
    int number;
    double x;
};
struct numbered_member {
    int number;
    int start;
    int end;
};

/// "moved" is how a counterpart that has been moved is listed.
constexpr int moved = 100;

ints listed(const ints& same, const ints& moved_to)
{
    ints all = same;
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] += moved_to[i] == 0 ? 0 : moved + moved_to[i];
    return all;
}

/// Both directions say the same.
void expect_pairs(const Pairs& pairs, const ints& want, const char* why)
{
    EXPECT_EQ(listed(pairs.old_of_new, pairs.moved_of_new), want) << why;
    ints inverse(pairs.new_of_old.size());
    for (std::size_t i = 0; i < want.size(); ++i) {
        const int old = want[i] % moved;
        if (old != 0)
            inverse[static_cast<std::size_t>(old) - 1] = want[i] - old + static_cast<int>(i) + 1;
    }
    EXPECT_EQ(listed(pairs.new_of_old, pairs.moved_of_old), inverse) << why;
}

ModelPairs pairs_of(const SdReader& now, const SdReader& earlier)
{
    return pair_records(now, earlier, match(now, earlier));
}

SdReader with_joints(const std::vector<numbered_joint>& joints)
{
    SdReader model;
    for (const numbered_joint& one : joints)
        model.nodes.push_back(placed::joint(one.number, {one.x}));
    return model;
}

struct joint_row {
    const char* why;
    std::vector<numbered_joint> earlier;
    std::vector<numbered_joint> now;
    ints want; ///< by joint the earlier position, `moved` + position, 0: new
};

const joint_row joint_rows[] = {
    {"renumbered and in another order", {{10, 0}, {20, 5}}, {{1, 5}, {2, 0}}, {2, 1}},
    {"moved: the number is left, the place is not", {{1, 0}, {2, 5}}, {{1, 0}, {2, 7}}, {1, moved + 2}},
    {"the place counts before the number", {{3, 0}, {4, 5}}, {{4, 0}, {3, 5}}, {1, 2}},
    {"a number that stands for another place is not moved", {{1, 0}, {2, 5}}, {{2, 0}, {1, 9}}, {1, 0}},
    {"new and gone", {{1, 0}, {2, 5}}, {{1, 0}, {3, 9}}, {1, 0}},
    {"of several moved with one number the first", {{4, 0}, {4, 1}}, {{4, 7}, {4, 8}, {4, 9}}, {101, 102, 0}},
    {"what is taken by place is passed over", {{4, 0}, {4, 1}}, {{4, 0}, {4, 8}}, {1, 102}},
    {"no place at all is one place, by number", {{1, no_number}, {2, 3}}, {{1, no_number}, {3, no_number}}, {1, 0}},
    {"to no place", {{1, 5}}, {{1, no_number}}, {101}},
};

TEST(PairedJoints, AreTheSameByPlaceAndMovedByNumber)
{
    for (const joint_row& c : joint_rows)
        expect_pairs(pairs_of(with_joints(c.now), with_joints(c.earlier)).joints, c.want, c.why);
}

SdReader with_members(const std::vector<numbered_member>& members)
{
    SdReader model = with_joints({{1, 0}, {2, 1000}, {3, 2000}});
    for (const numbered_member& one : members)
        model.beams.push_back(placed::member(one.number, one.start, one.end));
    return model;
}

struct member_row {
    const char* why;
    std::vector<numbered_member> earlier;
    std::vector<numbered_member> now;
    ints want;
};

const member_row member_rows[] = {
    {"in either direction, whatever the number", {{1, 1, 2}, {2, 2, 3}}, {{5, 3, 2}, {6, 1, 2}}, {2, 1}},
    {"several at one place: the number decides", {{3, 1, 2}, {4, 1, 2}}, {{4, 2, 1}}, {2}},
    {"and the rest go in list order", {{3, 1, 2}, {4, 1, 2}, {5, 1, 2}}, {{4, 1, 2}, {7, 1, 2}, {8, 1, 2}}, {2, 1, 3}},
    {"one more than there were is new", {{3, 1, 2}}, {{3, 1, 2}, {4, 2, 1}}, {1, 0}},
    {"with the number of one that is taken it is new, too", {{3, 1, 2}}, {{3, 1, 2}, {3, 1, 2}}, {1, 0}},
    {"a number that stands twice means its first record", {{3, 1, 3}, {3, 1, 2}}, {{3, 1, 2}}, {2}},
    {"between other joints it has been moved", {{3, 1, 2}}, {{3, 1, 3}}, {101}},
    {"what lacks a joint goes by its number", {{3, 1, 9}, {4, 1, 2}}, {{4, 1, 2}, {3, 1, 9}}, {2, 1}},
    {"whatever is in the place of the joint", {{3, 1, 0}}, {{3, 1, 9}}, {1}},
    {"but not with another number", {{3, 1, 9}}, {{4, 1, 9}}, {0}},
    {"nor with another end that is a joint: moved", {{3, 1, 9}}, {{3, 2, 9}}, {101}},
    {"nor turned round", {{3, 1, 9}}, {{3, 9, 1}}, {101}},
    {"numbers of no place that stand twice", {{3, 1, 9}, {3, 2, 9}}, {{3, 1, 9}, {3, 2, 9}, {3, 9, 9}}, {1, 2, 0}},
};

TEST(PairedMembers, AreTheSameOnTheSameJointsAsManyAsThereAre)
{
    for (const member_row& c : member_rows)
        expect_pairs(pairs_of(with_members(c.now), with_members(c.earlier)).members, c.want, c.why);
}

/// Elements and, after them, copies of surfaces; all of number 5.
SdReader with_shells(std::size_t elements, const std::vector<ints>& corners)
{
    SdReader model = placed::with_shells(with_members({}), corners);
    for (SdShell& shell : model.shells)
        shell.id = 5;
    model.surfaces.resize(corners.size() - elements);
    return model;
}

TEST(PairedShells, AreMovedOnlyAmongElementsOrAmongSurfaces)
{
    const SdReader now = with_shells(1, {{1, 2, 3}, {2, 3, 1}});
    expect_pairs(pairs_of(now, with_shells(1, {{3, 2, 1}, {1, 3, 2}})).shells, {101, 102}, "both moved");
    expect_pairs(pairs_of(now, with_shells(0, {{3, 2, 1}})).shells, {0, 101}, "there was only the surface");
    expect_pairs(pairs_of(now, with_shells(1, {{3, 2, 1}})).shells, {101, 0}, "there was only the element");
    expect_pairs(pairs_of(now, with_shells(0, {{1, 2, 3}})).shells, {1, 0}, "an element where a surface was");
    expect_pairs(pairs_of(with_shells(1, {{1, 9, 3}}), with_shells(1, {{1, 0, 3}})).shells, {1}, "lacks a joint");
    expect_pairs(pairs_of(with_shells(1, {{1, 9, 3}}), with_shells(1, {{1, 9}})).shells, {101}, "a corner less");
}

} // namespace
} // namespace STAAD
