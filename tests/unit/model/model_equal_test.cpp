/// How models are compared, and that copies of them share nothing.

#include "staad/model/fields.h"
#include "tests/support/filled_records.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using texts = std::vector<std::string>;

TEST(CopyOfAModel, SharesNothingWithIt)
{
    SdReader source = filled<SdReader>();
    const SdReader copy(source);
    EXPECT_EQ(model_differences(source, copy), texts());
    source.nodes[0].extra_ids[0] += 1;
    source.beams[0].sect_name[0] = '?';
    source.beam_forces.begin()->second.records.begin()->second.points[0].f1 += 1.0;
    EXPECT_EQ(model_differences(source, copy).size(), 3U);
}

TEST(MovedModel, LeavesNothingBehind)
{
    SdReader source = filled<SdReader>();
    const SdReader target(std::move(source));
    EXPECT_EQ(model_differences(target, filled<SdReader>()), texts());
    EXPECT_EQ(filled_containers(source), texts());
}

TEST(FilledModel, HasSomethingInEveryField)
{
    const SdReader model = filled<SdReader>();
    std::set<std::string> names;
    for (const std::string& name : filled_fields(model))
        names.insert(name.substr(0, name.find('.')));
    each_field(model, [&names](const char* name, const auto&) { EXPECT_EQ(names.count(name), 1U) << name; });
}

TEST(ModelDifferences, NameTheFieldAndBothValues)
{
    SdReader a;
    a.nodes.resize(2);
    a.beams.resize(1);
    a.shells.resize(2);
    a.load_cases[3].title = "DL";
    a.node_index = {{12, 1}};
    SdReader b = a;
    EXPECT_EQ(model_differences(a, b), texts());

    b.nodes[1].x = 300.0;
    b.beams[0].offset_end.z = -6.0;
    b.supports["PINNED"] = {3};
    b.node_index.erase(12);
    b.brace_ids.insert(9);
    b.shells.pop_back();
    b.load_cases[3].title = "WX";
    EXPECT_EQ(model_differences(a, b),
              (texts{"nodes[1].x: 0 and 300", "beams[0].offset_end.z: 0 and -6", "shells: 2 and 1 entries",
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
