/// Copies share nothing with their source; moves leave it empty.

#include "staad/model/sd_reader.h"
#include "tests/support/filled_records.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using texts = std::vector<std::string>;

template<class Record>
class CopyAndMove : public ::testing::Test {
protected:
    static texts changes_from_filled(const Record& record) { return record_differences(record, filled<Record>()); }
};

using records = ::testing::Types<SdOffset, SdNode, SdBeam, SdSurface, SdShell, SdGroup, Section, SdUserSectionTable,
                                 LoadCase, LoadDef_raw, LoadDefination, ForcePoint, BeamLoadCaseRecord, BeamForceAndMOM,
                                 BeamLoadList, WindLoadParam, SeismicParam, OldProjMaps, SdReader>;
TYPED_TEST_SUITE(CopyAndMove, records);

TYPED_TEST(CopyAndMove, TheFilledRecordIsNoDefaultRecord)
{
    EXPECT_NE(this->changes_from_filled(TypeParam()), texts());
}

TYPED_TEST(CopyAndMove, CopyConstructionTakesEveryField)
{
    const TypeParam source = filled<TypeParam>();
    const TypeParam copy(source);
    EXPECT_EQ(this->changes_from_filled(copy), texts());
    EXPECT_EQ(this->changes_from_filled(source), texts());
}

TYPED_TEST(CopyAndMove, CopyAssignmentReplacesEveryField)
{
    const TypeParam source = filled<TypeParam>();
    TypeParam copy;
    copy = source;
    EXPECT_EQ(this->changes_from_filled(copy), texts());
    EXPECT_EQ(this->changes_from_filled(source), texts());

    copy = TypeParam();
    EXPECT_EQ(record_differences(copy, TypeParam()), texts());
    EXPECT_EQ(this->changes_from_filled(source), texts());
}

TYPED_TEST(CopyAndMove, SelfAssignmentChangesNothing)
{
    TypeParam record = filled<TypeParam>();
    const TypeParam& itself = record;
    record = itself;
    EXPECT_EQ(this->changes_from_filled(record), texts());
}

TYPED_TEST(CopyAndMove, MoveConstructionEmptiesTheSource)
{
    TypeParam source = filled<TypeParam>();
    const TypeParam target(std::move(source));
    EXPECT_EQ(this->changes_from_filled(target), texts());
    EXPECT_EQ(filled_containers(source), texts());
}

TYPED_TEST(CopyAndMove, MoveAssignmentEmptiesTheSource)
{
    TypeParam source = filled<TypeParam>();
    TypeParam target;
    target = std::move(source);
    EXPECT_EQ(this->changes_from_filled(target), texts());
    EXPECT_EQ(filled_containers(source), texts());

    source = filled<TypeParam>();
    EXPECT_EQ(this->changes_from_filled(source), texts()) << "a moved-from record can be filled again";
}

/// Changes one value inside every container of the model, without replacing a container.
void change_in_place(SdReader& model)
{
    model.wl_param.heights[0] += 1.0;
    model.wl_param.intensities[15][0] += 1.0;
    model.eq_param.loadno[0] += 1;
    model.nodes[0].extra_ids[0] += 1;
    model.beams[0].int_list[0] += 1;
    model.beams[0].sect_name[0] = '?';
    model.shells[0].node_ids[0] += 1;
    model.surfaces[0].node_ids[0] += 1;
    model.groups[0].ids[0] += 1;
    model.supports["FIXED"][0] += 1;
    model.releases["START MZ"][0] += 1;
    model.load_cases[3].title[0] = '?';
    model.load_defs[1].values[0] += 1.0;
    model.usr_tables[1].records["C10"][0] = '?';
    model.beam_forces[7].records[2].points[0].f1 += 1.0;
    model.raw_load_defs[1].text[0] = '?';
    model.node_index[12] += 1;
    model.beam_index[7] += 1;
    model.shell_index[5] += 1;
    model.surface_index[9] += 1;
    model.unit_text[0] = '?';
    model.old_proj_maps.shells_old_to_new[6] += 1;
    model.brace_ids.insert(8);
}

TEST(CopyOfAModel, SharesNothingWithIt)
{
    const SdReader source = filled<SdReader>();
    SdReader copy(source);
    change_in_place(copy);
    EXPECT_EQ(model_differences(source, filled<SdReader>()), texts());
    EXPECT_EQ(model_differences(source, copy).size(), 23u) << "one for each value changed";

    SdReader assigned;
    assigned = source;
    change_in_place(assigned);
    EXPECT_EQ(model_differences(source, filled<SdReader>()), texts());
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
