#include "staad/storeys/levels.h"

#include "staad/model/sd_reader.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

using STAAD::SdBeam;
using STAAD::SdNode;
using STAAD::SdReader;
using STAAD::storey_levels;

/// A model of one member per pair of ends, each on joints of its own.
SdReader members_between(const std::vector<std::vector<SdNode>>& pairs)
{
    SdReader model;
    for (const std::vector<SdNode>& ends : pairs) {
        SdBeam member;
        for (const SdNode& end : ends)
            model.nodes.push_back(end);
        member.node_start = static_cast<int>(model.nodes.size()) - 1;
        member.node_end = static_cast<int>(model.nodes.size());
        model.beams.push_back(member);
    }
    return model;
}

SdNode at(double x, double y, double z)
{
    SdNode joint;
    joint.x = x;
    joint.y = y;
    joint.z = z;
    return joint;
}

const double not_a_number = std::numeric_limits<double>::quiet_NaN();

struct level_case {
    const char* why;
    std::vector<std::vector<SdNode>> members;
    std::vector<double> levels;
};

const level_case level_cases[] = {
    {"a model without members has none", {}, {}},
    {"a column gives both ends", {{at(1, 2, 0), at(1, 2, 3000)}}, {0, 3000}},
    {"upside down as well", {{at(1, 2, 3000), at(1, 2, -500)}}, {-500, 3000}},
    {"a level member gives its height once", {{at(0, 0, 4500), at(6000, 0, 4500)}}, {4500}},
    {"a member without length is level", {{at(0, 0, 4500), at(0, 0, 4500)}}, {4500}},
    {"an inclined member gives none", {{at(0, 0, 0), at(6000, 0, 3000)}}, {}},
    {"the plan comparison is exact: a tilt of nothing to speak of makes no column",
     {{at(0, 0, 0), at(0.001, 0, 3000)}},
     {}},
    {"so is that of the heights", {{at(0, 0, 3000), at(6000, 0, 3000.001)}}, {}},
    {"heights that round to one are one",
     {{at(0, 0, 2999.6), at(6000, 0, 2999.6)}, {at(0, 0, 3000.4), at(6000, 0, 3000.4)}},
     {3000}},
    {"a half goes up, below zero too",
     {{at(0, 0, 2999.5), at(1, 0, 2999.5)}, {at(0, 0, -0.5), at(1, 0, -0.5)}},
     {0, 3000}},
    {"levels ascend whatever the order of the members",
     {{at(0, 0, 6000), at(1, 0, 6000)}, {at(0, 0, 0), at(0, 0, 3000)}},
     {0, 3000, 6000}},
    {"a height that is no number is none", {{at(0, 0, not_a_number), at(0, 0, 3000)}}, {3000}},
};

TEST(StoreyLevels, ComeFromColumnsAndLevelMembers)
{
    for (const level_case& c : level_cases)
        EXPECT_EQ(storey_levels(members_between(c.members)), c.levels) << c.why;
}

TEST(StoreyLevels, MembersWithAnEndThatIsNoJointGiveNone)
{
    for (const int position : {0, -1, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        SdReader model = members_between({{at(0, 0, 0), at(0, 0, 3000)}});
        model.beams[0].node_end = position;
        EXPECT_TRUE(storey_levels(model).empty()) << position;
    }
}

} // namespace
