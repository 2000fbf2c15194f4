/// Emptying a model, how the suite compares two, and which version this is.

#include "staad/model/sd_reader.h"
#include "staad/version.h"
#include "tests/support/filled_records.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

using texts = std::vector<std::string>;

TEST(Version, IsThatOfTheMacros)
{
    const int parts[] = {STAADKIT_VERSION_MAJOR, STAADKIT_VERSION_MINOR, STAADKIT_VERSION_PATCH};
    EXPECT_STREQ(version(), STAADKIT_VERSION);
    EXPECT_EQ(version(), std::to_string(parts[0]) + "." + std::to_string(parts[1]) + "." + std::to_string(parts[2]));
}

TEST(Reset, LeavesANewModel)
{
    SdReader model = filled<SdReader>();
    ASSERT_NE(model_differences(model, SdReader()), texts());
    model.Reset();
    EXPECT_EQ(model_differences(model, SdReader()), texts());
}

TEST(ModelDifferences, NameTheFieldAndBothValues)
{
    SdReader a = filled<SdReader>();
    SdReader b = a;
    EXPECT_EQ(model_differences(a, b), texts());

    b.nodes[1].x = 300.0;
    b.beams[0].offset_end.z = -6.0;
    b.supports["PINNED"] = {3};
    b.node_index.erase(12);
    b.brace_ids.insert(9);
    b.shells.pop_back();
    b.load_cases[3].title = "WX";
    a.load_cases[3].title = "DL";
    EXPECT_EQ(model_differences(a, b),
              (texts{"nodes[1].x: 0 and 300", "beams[0].offset_end.z: 6 and -6", "shells: 2 and 1 entries",
                     "supports: only the second has \"PINNED\"", "load_cases[3].title: \"DL\" and \"WX\"",
                     "node_index: only the first has 12", "brace_ids: only the second has 9"}));
}

TEST(ModelDifferences, ComparesDoublesByTheirBits)
{
    SdReader a;
    a.nodes.resize(1);
    SdReader b = a;
    b.nodes[0].x = -0.0;
    EXPECT_EQ(model_differences(a, b), texts{"nodes[0].x: 0 and -0"});
}

TEST(ModelDifferences, CountsWhatItDoesNotList)
{
    SdReader a;
    a.nodes.resize(150);
    SdReader b = a;
    for (SdNode& node : b.nodes)
        node.id = 1;
    const texts found = model_differences(a, b);
    ASSERT_EQ(found.size(), 101u);
    EXPECT_EQ(found.back(), "and 50 more");
}

} // namespace
} // namespace STAAD
