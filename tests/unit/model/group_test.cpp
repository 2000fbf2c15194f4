/// What the numbers of a group stand for.

#include "staad/model/group.h"

#include <gtest/gtest.h>

namespace STAAD {
namespace {

struct group_row {
    const char* why;
    const char* kind;
    SdGroup::IdType want;
};

const group_row groups[] = {
    {"joints", "JOINT", SdGroup::JointId},
    {"members", "MEMBER", SdGroup::MemberId},
    {"a geometry group holds members", "GEOMETRY", SdGroup::MemberId},
    {"elements", "ELEMENT", SdGroup::ElementId},
    {"a floor group holds elements", "FLOOR", SdGroup::ElementId},
    {"a group without a kind word before it", "", SdGroup::JointId},
    {"an unknown word", "SOLID", SdGroup::JointId},
    {"lower case is another word", "member", SdGroup::JointId},
    {"so is a longer one", "MEMBERS", SdGroup::JointId},
    {"so is one with a blank", "ELEMENT ", SdGroup::JointId},
};

TEST(Group, KnowsWhatItNumbers)
{
    for (const group_row& c : groups) {
        const SdGroup group{c.kind, "_G", {1, 2}};
        EXPECT_EQ(group.GetIdType(), c.want) << c.why;
    }
}

} // namespace
} // namespace STAAD
