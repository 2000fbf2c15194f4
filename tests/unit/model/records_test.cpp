/// What a new record holds, and the order and types of its fields.

#include "staad/model/sd_reader.h"
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

/// True if both are the same objects in the same order. `Types` is the list of field types wanted.
template<class... Types, std::size_t... I>
bool same_objects(const std::tuple<const Types&...>& a, const std::tuple<const Types&...>& b, std::index_sequence<I...>)
{
    return ((static_cast<const void*>(&std::get<I>(a)) == static_cast<const void*>(&std::get<I>(b))) && ...);
}

template<class... Types>
void expect_order(const std::tuple<const Types&...>& by_position, const std::tuple<const Types&...>& by_name)
{
    EXPECT_TRUE(same_objects(by_position, by_name, std::index_sequence_for<Types...>()));
}

// A structured binding names the fields of a record by their position and compiles only if it names
// every one.

TEST(FieldOrder, OfJointsAndMembers)
{
    const SdNode n;
    const auto& [n1, n2, n3, n4, n5] = n;
    expect_order<int, double, double, double, std::vector<int>>(std::tie(n1, n2, n3, n4, n5),
                                                                std::tie(n.id, n.x, n.y, n.z, n.extra_ids));
    const SdOffset o;
    const auto& [o1, o2, o3] = o;
    expect_order<double, double, double>(std::tie(o1, o2, o3), std::tie(o.x, o.y, o.z));

    const SdBeam b;
    const auto& [b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11, b12, b13] = b;
    using std::string;
    expect_order<int, int, int, SdOffset, SdOffset, int, double, std::vector<int>, string, string, string, string,
                 string>(std::tie(b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11, b12, b13),
                         std::tie(b.id, b.node_start, b.node_end, b.offset_start, b.offset_end, b.kind_code, b.beta,
                                  b.int_list, b.material, b.sect_text, b.sect_country, b.sect_extra, b.sect_name));
}

TEST(FieldOrder, OfShellsSurfacesAndGroups)
{
    const SdShell e;
    const auto& [e1, e2, e3, e4] = e;
    expect_order<int, std::vector<int>, int, std::string>(std::tie(e1, e2, e3, e4),
                                                          std::tie(e.id, e.node_ids, e.thickness, e.material));
    const SdSurface s;
    const auto& [s1, s2, s3, s4] = s;
    expect_order<int, std::vector<int>, int, std::string>(std::tie(s1, s2, s3, s4),
                                                          std::tie(s.id, s.node_ids, s.thickness, s.material));
    const SdGroup g;
    const auto& [g1, g2, g3] = g;
    expect_order<std::string, std::string, std::vector<int>>(std::tie(g1, g2, g3), std::tie(g.kind, g.name, g.ids));
}

TEST(FieldOrder, OfSectionsAndLoads)
{
    using std::string;
    const Section s;
    const auto& [s1, s2, s3, s4] = s;
    expect_order<int, string, string, string>(std::tie(s1, s2, s3, s4),
                                              std::tie(s.tag, s.type, s.material, s.property));
    const SdUserSectionTable t;
    const auto& [t1, t2, t3] = t;
    expect_order<string, string, std::map<string, string>>(std::tie(t1, t2, t3), std::tie(t.type, t.unit, t.records));

    const LoadCase c;
    const auto& [c1, c2, c3] = c;
    expect_order<int, string, string>(std::tie(c1, c2, c3), std::tie(c.id, c.type_text, c.title));

    const LoadDef_raw r;
    const auto& [r1, r2] = r;
    expect_order<string, int>(std::tie(r1, r2), std::tie(r.text, r.load_case));

    const LoadDefination d;
    const auto& [d1, d2, d3, d4] = d;
    expect_order<string, string, std::vector<double>, int>(std::tie(d1, d2, d3, d4),
                                                           std::tie(d.kind, d.direction, d.values, d.load_case));
}

TEST(FieldOrder, OfForces)
{
    const ForcePoint p;
    const auto& [p1, p2, p3, p4, p5, p6, p7] = p;
    expect_order<double, double, double, double, double, double, double>(
        std::tie(p1, p2, p3, p4, p5, p6, p7), std::tie(p.position, p.f1, p.f2, p.f3, p.m1, p.m2, p.m3));

    const BeamLoadCaseRecord r;
    const auto& [r1, r2, r3] = r;
    expect_order<int, std::vector<ForcePoint>, std::vector<ForcePoint>>(std::tie(r1, r2, r3),
                                                                        std::tie(r.load_case, r.points, r.pkpm_points));

    const BeamForceAndMOM f;
    const auto& [f1, f2] = f;
    expect_order<int, std::map<int, BeamLoadCaseRecord>>(std::tie(f1, f2), std::tie(f.beam, f.records));

    const BeamLoadList l;
    const auto& [l1, l2, l3, l4] = l;
    expect_order<ForcePoint, ForcePoint, ForcePoint, ForcePoint>(std::tie(l1, l2, l3, l4),
                                                                 std::tie(l.dead, l.live, l.wind, l.seismic));
}

TEST(FieldOrder, OfTheModel)
{
    using std::map;
    using std::string;
    using std::vector;
    const SdReader m;
    const auto& [f1, f2, f3, f4, f5, f6, f7, f8, f9, f10, f11, f12, f13, f14, f15, f16, f17, f18, f19, f20, f21, f22,
                 f23, f24, f25] = m;
    expect_order<double, WindLoadParam, SeismicParam, vector<SdNode>, vector<SdBeam>, vector<SdShell>,
                 vector<SdSurface>, vector<SdGroup>, map<string, vector<unsigned>>, map<string, vector<unsigned>>,
                 map<int, LoadCase>, map<int, LoadDefination>, map<int, SdUserSectionTable>, map<int, BeamForceAndMOM>,
                 map<int, LoadDef_raw>, map<int, int>, map<int, int>, map<int, int>, map<int, int>, string, double,
                 double, double, OldProjMaps, std::set<int>>(
        std::tie(f1, f2, f3, f4, f5, f6, f7, f8, f9, f10, f11, f12, f13, f14, f15, f16, f17, f18, f19, f20, f21, f22,
                 f23, f24, f25),
        std::tie(m.concrete_density, m.wl_param, m.eq_param, m.nodes, m.beams, m.shells, m.surfaces, m.groups,
                 m.supports, m.releases, m.load_cases, m.load_defs, m.usr_tables, m.beam_forces, m.raw_load_defs,
                 m.node_index, m.beam_index, m.shell_index, m.surface_index, m.unit_text, m.length_factor,
                 m.force_factor, m.force_length_factor, m.old_proj_maps, m.brace_ids));

    const OldProjMaps& o = m.old_proj_maps;
    const auto& [o1, o2, o3, o4, o5, o6] = o;
    using pairs = map<int, int>;
    expect_order<pairs, pairs, pairs, pairs, pairs, pairs>(
        std::tie(o1, o2, o3, o4, o5, o6), std::tie(o.joints_new_to_old, o.members_new_to_old, o.shells_new_to_old,
                                                   o.joints_old_to_new, o.members_old_to_new, o.shells_old_to_new));
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
