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

/// The list of the record's fields has these names and places, in this order.
template<class Record>
void expect_names(const Record& record, const std::string& names, const std::vector<const void*>& places)
{
    std::string names_found;
    std::vector<const void*> places_found;
    each_field(record, [&](const char* name, const auto& field) {
        names_found += (names_found.empty() ? "" : " ") + std::string(name);
        places_found.push_back(&field);
    });
    EXPECT_EQ(names_found, names);
    EXPECT_EQ(places_found, places) << names;
}

/// And these types.
template<class... Types, class Record>
void expect_fields(const Record& record, const std::string& names, const std::vector<const void*>& places)
{
    static_assert(std::is_same_v<decltype(RecordFields<Record>::of(record)), std::tuple<const Types&...>>);
    expect_names(record, names, places);
}

template<class... Fields>
std::vector<const void*> places(const Fields&... fields)
{
    return {&fields...};
}

using std::map;
using std::string;
using std::vector;

TEST(FieldOrder, OfJointsAndMembers)
{
    const SdNode joint;
    expect_fields<int, double, double, double, vector<int>>(
        joint, "id x y z extra_ids", places(joint.id, joint.x, joint.y, joint.z, joint.extra_ids));
    const SdOffset offset;
    expect_fields<double, double, double>(offset, "x y z", places(offset.x, offset.y, offset.z));
    const SdBeam member;
    expect_fields<int, int, int, SdOffset, SdOffset, int, double, vector<int>, string, string, string, string, string>(
        member,
        "id node_start node_end offset_start offset_end kind_code beta int_list material sect_text sect_country "
        "sect_extra sect_name",
        places(member.id, member.node_start, member.node_end, member.offset_start, member.offset_end, member.kind_code,
               member.beta, member.int_list, member.material, member.sect_text, member.sect_country, member.sect_extra,
               member.sect_name));
}

TEST(FieldOrder, OfShellsSurfacesAndGroups)
{
    const SdShell shell;
    expect_fields<int, vector<int>, int, string>(shell, "id node_ids thickness material",
                                                 places(shell.id, shell.node_ids, shell.thickness, shell.material));
    const SdSurface surface;
    expect_fields<int, vector<int>, int, string>(
        surface, "id node_ids thickness material",
        places(surface.id, surface.node_ids, surface.thickness, surface.material));
    const SdGroup group;
    expect_fields<string, string, vector<int>>(group, "kind name ids", places(group.kind, group.name, group.ids));
}

TEST(FieldOrder, OfSectionsAndLoads)
{
    const Section section;
    expect_fields<int, string, string, string>(section, "tag type material property",
                                               places(section.tag, section.type, section.material, section.property));
    const SdUserSectionTable table;
    expect_fields<string, string, map<string, string>>(table, "type unit records",
                                                       places(table.type, table.unit, table.records));
    const LoadCase load_case;
    expect_fields<int, string, string>(load_case, "id type_text title",
                                       places(load_case.id, load_case.type_text, load_case.title));
    const LoadDef_raw raw;
    expect_fields<string, int>(raw, "text load_case", places(raw.text, raw.load_case));
    const LoadDefination load;
    expect_fields<string, string, vector<double>, int>(load, "kind direction values load_case",
                                                       places(load.kind, load.direction, load.values, load.load_case));
}

TEST(FieldOrder, OfForces)
{
    const ForcePoint point;
    expect_fields<double, double, double, double, double, double, double>(
        point, "position f1 f2 f3 m1 m2 m3",
        places(point.position, point.f1, point.f2, point.f3, point.m1, point.m2, point.m3));
    const BeamLoadCaseRecord record;
    expect_fields<int, vector<ForcePoint>, vector<ForcePoint>>(
        record, "load_case points pkpm_points", places(record.load_case, record.points, record.pkpm_points));
    const BeamForceAndMOM forces;
    expect_fields<int, map<int, BeamLoadCaseRecord>>(forces, "beam records", places(forces.beam, forces.records));
    const BeamLoadList list;
    expect_fields<ForcePoint, ForcePoint, ForcePoint, ForcePoint>(
        list, "dead live wind seismic", places(list.dead, list.live, list.wind, list.seismic));
}

TEST(FieldOrder, OfParameters)
{
    const WindLoadParam w;
    expect_names(w,
                 "title base_press soil_type structure_high is_betaz base_period aweather_width mius "
                 "intensity_number intensity_isometry intensity_floor heights intensities",
                 places(w.title, w.base_press, w.soil_type, w.structure_high, w.is_betaz, w.base_period,
                        w.aweather_width, w.mius, w.intensity_number, w.intensity_isometry, w.intensity_floor,
                        w.heights, w.intensities));
    const SeismicParam q;
    expect_names(q,
                 "dir_active dir_factor y_freedom eq_type post_method force_type eq_intensity eq_group "
                 "special_accelerate point_number damping_factor proportion_factor loadno_count loadno "
                 "loadno_factor periods spectrum_title_x spectrum_title_y spectrum_title_z spectrum_x spectrum_y "
                 "spectrum_z",
                 places(q.dir_active, q.dir_factor, q.y_freedom, q.eq_type, q.post_method, q.force_type, q.eq_intensity,
                        q.eq_group, q.special_accelerate, q.point_number, q.damping_factor, q.proportion_factor,
                        q.loadno_count, q.loadno, q.loadno_factor, q.periods, q.spectrum_title_x, q.spectrum_title_y,
                        q.spectrum_title_z, q.spectrum_x, q.spectrum_y, q.spectrum_z));
}

TEST(FieldOrder, OfTheModel)
{
    using pairs = map<int, int>;
    const SdReader model;
    expect_fields<double, WindLoadParam, SeismicParam, vector<SdNode>, vector<SdBeam>, vector<SdShell>,
                  vector<SdSurface>, vector<SdGroup>, map<string, vector<unsigned>>, map<string, vector<unsigned>>,
                  map<int, LoadCase>, map<int, LoadDefination>, map<int, SdUserSectionTable>, map<int, BeamForceAndMOM>,
                  map<int, LoadDef_raw>, pairs, pairs, pairs, pairs, string, double, double, double, OldProjMaps,
                  std::set<int>>(
        model,
        "concrete_density wl_param eq_param nodes beams shells surfaces groups supports releases load_cases load_defs "
        "usr_tables beam_forces raw_load_defs node_index beam_index shell_index surface_index unit_text length_factor "
        "force_factor force_length_factor old_proj_maps brace_ids",
        places(model.concrete_density, model.wl_param, model.eq_param, model.nodes, model.beams, model.shells,
               model.surfaces, model.groups, model.supports, model.releases, model.load_cases, model.load_defs,
               model.usr_tables, model.beam_forces, model.raw_load_defs, model.node_index, model.beam_index,
               model.shell_index, model.surface_index, model.unit_text, model.length_factor, model.force_factor,
               model.force_length_factor, model.old_proj_maps, model.brace_ids));
    const OldProjMaps maps;
    expect_fields<pairs, pairs, pairs, pairs, pairs, pairs>(
        maps,
        "joints_new_to_old members_new_to_old shells_new_to_old joints_old_to_new members_old_to_new shells_old_to_new",
        places(maps.joints_new_to_old, maps.members_new_to_old, maps.shells_new_to_old, maps.joints_old_to_new,
               maps.members_old_to_new, maps.shells_old_to_new));
}

TEST(FieldOrder, OfStoreys)
{
    const StoreyLayer storey;
    expect_fields<double, double, vector<LayerMember>, vector<SdShell>>(
        storey, "base height members shells", places(storey.base, storey.height, storey.members, storey.shells));
    const LayerMember member;
    expect_fields<SdBeam, Section, BeamForceAndMOM>(member, "member section forces",
                                                    places(member.member, member.section, member.forces));
    const NodeLevel level;
    expect_fields<int, int, double, double, double>(level, "position level rx ry rz",
                                                    places(level.position, level.level, level.rx, level.ry, level.rz));
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

template<class... Records>
void expect_zero_and_empty()
{
    for (const texts& found : {fields_set_by_default<Records>()...})
        EXPECT_EQ(found, texts());
}

TEST(Defaults, OfRecordsAreZeroAndEmpty)
{
    expect_zero_and_empty<SdNode, SdOffset, SdBeam, SdShell, SdSurface, SdGroup, Section, LoadCase, LoadDef_raw,
                          LoadDefination, ForcePoint, BeamLoadCaseRecord, BeamForceAndMOM, BeamLoadList, WindLoadParam,
                          SeismicParam, OldProjMaps>();
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
