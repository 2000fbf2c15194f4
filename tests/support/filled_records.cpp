#include "tests/support/filled_records.h"

#include <string>

namespace STAAD {
namespace {

// Too long for any string to keep without memory of its own.
std::string long_text(const char* start)
{
    return std::string(start) + std::string(80, '.');
}

} // namespace

template<>
SdOffset filled<SdOffset>()
{
    return {300.0, -100.0, 0.25};
}

template<>
SdNode filled<SdNode>()
{
    SdNode node;
    node.id = 12;
    node.x = 5000.0;
    node.y = 1000.0;
    node.z = -3.5;
    node.extra_ids = {1, 4};
    return node;
}

template<>
SdBeam filled<SdBeam>()
{
    SdBeam beam;
    beam.id = 7;
    beam.node_start = 3;
    beam.node_end = 4;
    beam.offset_start = {1.0, 2.0, 3.0};
    beam.offset_end = {4.0, 5.0, 6.0};
    beam.kind_code = Brace;
    beam.beta = 90.0;
    beam.int_list = {2, 2, 5};
    beam.material = long_text("STEEL");
    beam.sect_text = long_text("PRIS500X300");
    beam.sect_country = long_text("CHINESE");
    beam.sect_extra = long_text("extra");
    beam.sect_name = long_text("PRIS YD 0.5 ZD 0.3");
    return beam;
}

template<>
SdSurface filled<SdSurface>()
{
    SdSurface surface;
    surface.id = 9;
    surface.node_ids = {1, 2, 3, 4};
    surface.thickness = 199;
    surface.material = long_text("CONCRETE");
    return surface;
}

template<>
SdShell filled<SdShell>()
{
    SdShell shell;
    shell.id = 5;
    shell.node_ids = {4, 3, 2};
    shell.thickness = 120;
    shell.material = long_text("C1");
    return shell;
}

template<>
SdGroup filled<SdGroup>()
{
    return {long_text("FLOOR"), long_text("_FLOOR1"), {3, 1, 1}};
}

template<>
Section filled<Section>()
{
    Section section("STEEL" + std::string(40, 's'), "st hn300x150x6x9" + std::string(40, ' '));
    section.tag = 3;
    return section;
}

template<>
SdUserSectionTable filled<SdUserSectionTable>()
{
    SdUserSectionTable table;
    table.SetType(Channel);
    table.unit = long_text("UNIT INCHES KIP");
    table.AddRecord("C10", "10 3 0.5");
    return table;
}

template<>
LoadCase filled<LoadCase>()
{
    LoadCase load_case;
    load_case.id = 3;
    load_case.type_text = long_text("Seismic");
    load_case.title = long_text("EQ X DIR");
    return load_case;
}

template<>
LoadDef_raw filled<LoadDef_raw>()
{
    return {long_text("MEMBER LOAD UNI GY -5"), 4};
}

template<>
LoadDefination filled<LoadDefination>()
{
    return {long_text("MEMBER LOAD UNI"), long_text("GZ"), {-0.005, 0.0, 3000.0}, 4};
}

template<>
ForcePoint filled<ForcePoint>()
{
    return {1500.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
}

template<>
BeamLoadCaseRecord filled<BeamLoadCaseRecord>()
{
    return {2, {filled<ForcePoint>(), ForcePoint()}, {filled<ForcePoint>()}};
}

template<>
BeamForceAndMOM filled<BeamForceAndMOM>()
{
    return {7, {{2, filled<BeamLoadCaseRecord>()}}};
}

template<>
BeamLoadList filled<BeamLoadList>()
{
    BeamLoadList list{filled<ForcePoint>(), filled<ForcePoint>(), filled<ForcePoint>(), filled<ForcePoint>()};
    list.live.f1 = -1.0;
    list.wind.f1 = -2.0;
    list.seismic.f1 = -3.0;
    return list;
}

template<>
WindLoadParam filled<WindLoadParam>()
{
    WindLoadParam wind;
    wind.title = long_text("wind");
    wind.base_press = 0.45;
    wind.soil_type = long_text("B");
    wind.structure_high = 42.5;
    wind.is_betaz = true;
    wind.base_period = 1.2;
    wind.aweather_width = {10.0, 11.0, 12.0, 13.0};
    for (auto& of_direction : wind.mius)
        of_direction = {0.8, -0.5, -0.7, -0.6};
    wind.intensity_number = 12;
    wind.intensity_isometry = 3.0;
    wind.intensity_floor = 3.6;
    wind.heights = {5.0, 10.0};
    for (auto& profile : wind.intensities)
        profile = {0.36, 0.41};
    return wind;
}

template<>
SeismicParam filled<SeismicParam>()
{
    SeismicParam quake;
    quake.dir_active = {true, true, true};
    quake.dir_factor = {1, 2, 3};
    quake.y_freedom = true;
    quake.eq_type = long_text("\xB6\xE0\xD3\xF6");
    quake.post_method = true;
    quake.force_type = true;
    quake.eq_intensity = 8;
    quake.eq_group = long_text("\xB5\xDA\xD2\xBB\xD7\xE9");
    quake.special_accelerate = true;
    quake.point_number = 2;
    quake.damping_factor = 0.05;
    quake.proportion_factor = 9.8;
    quake.loadno_count = 2;
    quake.loadno = {1, 2};
    quake.loadno_factor = {1.0, 0.5};
    quake.periods = {0.1, 0.2};
    quake.spectrum_title_x = long_text("X");
    quake.spectrum_title_y = long_text("Y");
    quake.spectrum_title_z = long_text("Z");
    quake.spectrum_x = {0.16, 0.15};
    quake.spectrum_y = {0.1, 0.09};
    quake.spectrum_z = {0.14, 0.13};
    return quake;
}

template<>
OldProjMaps filled<OldProjMaps>()
{
    return {{{1, 2}}, {{3, 4}}, {{5, 6}}, {{2, 1}}, {{4, 3}}, {{6, 5}}};
}

template<>
SdReader filled<SdReader>()
{
    SdReader model;
    model.concrete_density = 25.0;
    model.wl_param = filled<WindLoadParam>();
    model.eq_param = filled<SeismicParam>();
    model.nodes = {filled<SdNode>(), SdNode()};
    model.beams = {filled<SdBeam>(), SdBeam()};
    model.shells = {filled<SdShell>(), SdShell()};
    model.surfaces = {filled<SdSurface>()};
    model.groups = {filled<SdGroup>()};
    model.supports = {{"FIXED", {1, 2}}};
    model.releases = {{"START MZ", {7}}};
    model.load_cases = {{3, filled<LoadCase>()}};
    model.load_defs = {{1, filled<LoadDefination>()}};
    model.usr_tables = {{1, filled<SdUserSectionTable>()}};
    model.beam_forces = {{7, filled<BeamForceAndMOM>()}};
    model.raw_load_defs = {{1, filled<LoadDef_raw>()}};
    model.node_index = {{12, 1}};
    model.beam_index = {{7, 1}};
    model.shell_index = {{5, 1}};
    model.surface_index = {{9, 1}};
    model.unit_text = long_text("UNIT METER KN");
    model.length_factor = 1000.0;
    model.force_factor = 9.8;
    model.force_length_factor = 98.0;
    model.old_proj_maps = filled<OldProjMaps>();
    model.brace_ids = {7};
    return model;
}

} // namespace STAAD
