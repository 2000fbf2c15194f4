/// What a new record holds, and the order and types of its fields.

#include "staad/model/fields.h"
#include "tests/support/model_equal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <new>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using texts = std::vector<std::string>;

/// A field of a record by its name.
struct named_field {
    const char* name;
    const void* place;
};

/// The list of the record's fields has these types, and these names and places in this order.
template<class... Types, class Record>
void expect_fields(const Record& record, const std::vector<named_field>& want)
{
    const auto fields = RecordFields<Record>::of(record);
    static_assert(std::is_same_v<decltype(fields), const std::tuple<const Types&...>>);
    ASSERT_EQ(want.size(), sizeof...(Types));
    std::size_t index = 0;
    each_field(record, [&](const char* name, const auto& field) {
        EXPECT_STREQ(name, want[index].name);
        EXPECT_EQ(static_cast<const void*>(&field), want[index].place) << name;
        ++index;
    });
}

using std::map;
using std::string;
using std::vector;

TEST(FieldOrder, OfJointsAndMembers)
{
    const SdNode joint;
    expect_fields<int, double, double, double, vector<int>>(
        joint, {{"id", &joint.id}, {"x", &joint.x}, {"y", &joint.y}, {"z", &joint.z}, {"extra_ids", &joint.extra_ids}});
    const SdOffset offset;
    expect_fields<double, double, double>(offset, {{"x", &offset.x}, {"y", &offset.y}, {"z", &offset.z}});
    const SdBeam member;
    expect_fields<int, int, int, SdOffset, SdOffset, int, double, vector<int>, string, string, string, string, string>(
        member, {{"id", &member.id},
                 {"node_start", &member.node_start},
                 {"node_end", &member.node_end},
                 {"offset_start", &member.offset_start},
                 {"offset_end", &member.offset_end},
                 {"kind_code", &member.kind_code},
                 {"beta", &member.beta},
                 {"int_list", &member.int_list},
                 {"material", &member.material},
                 {"sect_text", &member.sect_text},
                 {"sect_country", &member.sect_country},
                 {"sect_extra", &member.sect_extra},
                 {"sect_name", &member.sect_name}});
}

TEST(FieldOrder, OfShellsSurfacesAndGroups)
{
    const SdShell shell;
    expect_fields<int, vector<int>, int, string>(shell, {{"id", &shell.id},
                                                         {"node_ids", &shell.node_ids},
                                                         {"thickness", &shell.thickness},
                                                         {"material", &shell.material}});
    const SdSurface surface;
    expect_fields<int, vector<int>, int, string>(surface, {{"id", &surface.id},
                                                           {"node_ids", &surface.node_ids},
                                                           {"thickness", &surface.thickness},
                                                           {"material", &surface.material}});
    const SdGroup group;
    expect_fields<string, string, vector<int>>(group,
                                               {{"kind", &group.kind}, {"name", &group.name}, {"ids", &group.ids}});
}

TEST(FieldOrder, OfSectionsAndLoads)
{
    const Section section;
    expect_fields<int, string, string, string>(section, {{"tag", &section.tag},
                                                         {"type", &section.type},
                                                         {"material", &section.material},
                                                         {"property", &section.property}});
    const SdUserSectionTable table;
    expect_fields<string, string, map<string, string>>(
        table, {{"type", &table.type}, {"unit", &table.unit}, {"records", &table.records}});
    const LoadCase load_case;
    expect_fields<int, string, string>(
        load_case, {{"id", &load_case.id}, {"type_text", &load_case.type_text}, {"title", &load_case.title}});
    const LoadDef_raw raw;
    expect_fields<string, int>(raw, {{"text", &raw.text}, {"load_case", &raw.load_case}});
    const LoadDefination load;
    expect_fields<string, string, vector<double>, int>(load, {{"kind", &load.kind},
                                                              {"direction", &load.direction},
                                                              {"values", &load.values},
                                                              {"load_case", &load.load_case}});
}

TEST(FieldOrder, OfForces)
{
    const ForcePoint point;
    expect_fields<double, double, double, double, double, double, double>(point, {{"position", &point.position},
                                                                                  {"f1", &point.f1},
                                                                                  {"f2", &point.f2},
                                                                                  {"f3", &point.f3},
                                                                                  {"m1", &point.m1},
                                                                                  {"m2", &point.m2},
                                                                                  {"m3", &point.m3}});
    const BeamLoadCaseRecord record;
    expect_fields<int, vector<ForcePoint>, vector<ForcePoint>>(
        record, {{"load_case", &record.load_case}, {"points", &record.points}, {"pkpm_points", &record.pkpm_points}});
    const BeamForceAndMOM forces;
    expect_fields<int, map<int, BeamLoadCaseRecord>>(forces, {{"beam", &forces.beam}, {"records", &forces.records}});
    const BeamLoadList list;
    expect_fields<ForcePoint, ForcePoint, ForcePoint, ForcePoint>(
        list, {{"dead", &list.dead}, {"live", &list.live}, {"wind", &list.wind}, {"seismic", &list.seismic}});
}

TEST(FieldOrder, OfTheModel)
{
    using pairs = map<int, int>;
    const SdReader model;
    expect_fields<double, WindLoadParam, SeismicParam, vector<SdNode>, vector<SdBeam>, vector<SdShell>,
                  vector<SdSurface>, vector<SdGroup>, map<string, vector<unsigned>>, map<string, vector<unsigned>>,
                  map<int, LoadCase>, map<int, LoadDefination>, map<int, SdUserSectionTable>, map<int, BeamForceAndMOM>,
                  map<int, LoadDef_raw>, pairs, pairs, pairs, pairs, string, double, double, double, OldProjMaps,
                  std::set<int>>(model, {{"concrete_density", &model.concrete_density},
                                         {"wl_param", &model.wl_param},
                                         {"eq_param", &model.eq_param},
                                         {"nodes", &model.nodes},
                                         {"beams", &model.beams},
                                         {"shells", &model.shells},
                                         {"surfaces", &model.surfaces},
                                         {"groups", &model.groups},
                                         {"supports", &model.supports},
                                         {"releases", &model.releases},
                                         {"load_cases", &model.load_cases},
                                         {"load_defs", &model.load_defs},
                                         {"usr_tables", &model.usr_tables},
                                         {"beam_forces", &model.beam_forces},
                                         {"raw_load_defs", &model.raw_load_defs},
                                         {"node_index", &model.node_index},
                                         {"beam_index", &model.beam_index},
                                         {"shell_index", &model.shell_index},
                                         {"surface_index", &model.surface_index},
                                         {"unit_text", &model.unit_text},
                                         {"length_factor", &model.length_factor},
                                         {"force_factor", &model.force_factor},
                                         {"force_length_factor", &model.force_length_factor},
                                         {"old_proj_maps", &model.old_proj_maps},
                                         {"brace_ids", &model.brace_ids}});
    const OldProjMaps maps;
    expect_fields<pairs, pairs, pairs, pairs, pairs, pairs>(maps, {{"joints_new_to_old", &maps.joints_new_to_old},
                                                                   {"members_new_to_old", &maps.members_new_to_old},
                                                                   {"shells_new_to_old", &maps.shells_new_to_old},
                                                                   {"joints_old_to_new", &maps.joints_old_to_new},
                                                                   {"members_old_to_new", &maps.members_old_to_new},
                                                                   {"shells_old_to_new", &maps.shells_old_to_new}});
}

TEST(FieldOrder, OfStoreys)
{
    const StoreyLayer storey;
    expect_fields<double, double, vector<LayerMember>, vector<SdShell>>(
        storey,
        {{"base", &storey.base}, {"height", &storey.height}, {"members", &storey.members}, {"shells", &storey.shells}});
    const LayerMember member;
    expect_fields<SdBeam, Section, BeamForceAndMOM>(
        member, {{"member", &member.member}, {"section", &member.section}, {"forces", &member.forces}});
    const NodeLevel level;
    expect_fields<int, int, double, double, double>(level, {{"position", &level.position},
                                                            {"level", &level.level},
                                                            {"rx", &level.rx},
                                                            {"ry", &level.ry},
                                                            {"rz", &level.rz}});
}

/// A record whose bytes held something else before it was made.
template<class Record>
class made_in_used_memory {
public:
    made_in_used_memory()
    {
        std::fill(std::begin(memory_), std::end(memory_), std::byte{0xA5});
        record_ = new (memory_) Record;
    }
    made_in_used_memory(const made_in_used_memory&) = delete;
    made_in_used_memory& operator=(const made_in_used_memory&) = delete;
    ~made_in_used_memory() { record_->~Record(); }

    const Record& operator*() const { return *record_; }

private:
    alignas(Record) std::byte memory_[sizeof(Record)];
    Record* record_;
};

template<class Record>
texts fields_set_by_default()
{
    const made_in_used_memory<Record> made;
    return filled_fields(*made);
}

TEST(Defaults, OfRecordsAreZeroAndEmpty)
{
    EXPECT_EQ(fields_set_by_default<SdNode>(), texts());
    EXPECT_EQ(fields_set_by_default<SdOffset>(), texts());
    EXPECT_EQ(fields_set_by_default<SdBeam>(), texts());
    EXPECT_EQ(fields_set_by_default<SdShell>(), texts());
    EXPECT_EQ(fields_set_by_default<SdSurface>(), texts());
    EXPECT_EQ(fields_set_by_default<SdGroup>(), texts());
    EXPECT_EQ(fields_set_by_default<Section>(), texts());
    EXPECT_EQ(fields_set_by_default<LoadCase>(), texts());
    EXPECT_EQ(fields_set_by_default<LoadDef_raw>(), texts());
    EXPECT_EQ(fields_set_by_default<LoadDefination>(), texts());
    EXPECT_EQ(fields_set_by_default<ForcePoint>(), texts());
    EXPECT_EQ(fields_set_by_default<BeamLoadCaseRecord>(), texts());
    EXPECT_EQ(fields_set_by_default<BeamForceAndMOM>(), texts());
    EXPECT_EQ(fields_set_by_default<BeamLoadList>(), texts());
    EXPECT_EQ(fields_set_by_default<WindLoadParam>(), texts());
    EXPECT_EQ(fields_set_by_default<SeismicParam>(), texts());
    EXPECT_EQ(fields_set_by_default<OldProjMaps>(), texts());
}

TEST(Defaults, OfTheModelAreOneDensityAndThreeFactors)
{
    EXPECT_EQ(fields_set_by_default<SdReader>(),
              (texts{"concrete_density", "length_factor", "force_factor", "force_length_factor"}));
    const SdReader model;
    EXPECT_EQ(model.concrete_density, 23.5615);
    EXPECT_EQ(model.length_factor, 1.0);
    EXPECT_EQ(model.force_factor, 1.0);
    EXPECT_EQ(model.force_length_factor, 1.0);
}

TEST(Defaults, OfAUserTableAreMetresAndKilonewtons)
{
    EXPECT_EQ(fields_set_by_default<SdUserSectionTable>(), texts{"unit"});
    EXPECT_EQ(SdUserSectionTable().unit, "UNIT METER KN");
}

TEST(Enumerations, AreUnscopedIntegersOfFixedValue)
{
    static_assert(std::is_same_v<std::underlying_type_t<BeamType>, int>);
    static_assert(std::is_same_v<std::underlying_type_t<UsrDefineSectionType>, int>);
    static_assert(std::is_same_v<std::underlying_type_t<LoadCase::LoadType>, int>);
    static_assert(std::is_same_v<std::underlying_type_t<SdGroup::IdType>, int>);
    static_assert(std::is_convertible_v<BeamType, int> && std::is_convertible_v<UsrDefineSectionType, int>);
    static_assert(std::is_convertible_v<LoadCase::LoadType, int> && std::is_convertible_v<SdGroup::IdType, int>);

    static_assert(Beam == 0 && Column == 1 && Brace == 2 && HorizontalBrace == 3);
    static_assert(STAAD::Column == BeamType::Column && BeamType::HorizontalBrace == 3);
    static_assert(UnknownSection == 0 && WideFlange == 1 && Channel == 2 && Angle == 3 && DoubleAngle == 4);
    static_assert(Tee == 5 && Pipe == 6 && Tube == 7 && General == 8 && ISection == 9 && Prismatic == 10);
    static_assert(UsrDefineSectionType::WideFlange == STAAD::WideFlange);
    static_assert(LoadCase::Unknown == 0 && LoadCase::Dead == 1 && LoadCase::Live == 2);
    static_assert(LoadCase::Wind == 3 && LoadCase::LoadType::Seismic == 4);
    static_assert(SdGroup::JointId == 0 && SdGroup::MemberId == 1 && SdGroup::IdType::ElementId == 2);

    int as_written_by_a_host = 0;
    switch (SdReader().GetBeamType(SdBeam())) {
    case Beam:
        as_written_by_a_host = Beam;
        break;
    default:
        as_written_by_a_host = -1;
    }
    EXPECT_EQ(as_written_by_a_host, BeamType::Beam);
}

TEST(LineConstructors, ConvertWithoutACast)
{
    static_assert(std::is_convertible_v<std::string, SdNode>);
    static_assert(std::is_convertible_v<std::string, SdBeam>);
    static_assert(std::is_convertible_v<std::string, SdShell>);
    static_assert(std::is_convertible_v<std::string, SdSurface>);
    static_assert(std::is_convertible_v<SdSurface, SdShell>);
    static_assert(std::is_convertible_v<std::string, LoadCase>);

    const SdNode node = std::string("3 1 2 4");
    EXPECT_EQ(node.id, 3);
    const Section section = {"STEEL", "PRIS YD 0.5"};
    EXPECT_EQ(section.type, "PRIS");
}

} // namespace
} // namespace STAAD
