/// The public fields of every record in their order: visit_fields(a, b, visit) calls
/// visit(name, field of a, field of b) for each.
#ifndef STAAD_TESTS_SUPPORT_RECORD_FIELDS_H
#define STAAD_TESTS_SUPPORT_RECORD_FIELDS_H

#include "staad/model/sd_reader.h"

namespace STAAD {

template<class Visit>
void visit_fields(const SdNode& a, const SdNode& b, Visit visit)
{
    visit("id", a.id, b.id);
    visit("x", a.x, b.x);
    visit("y", a.y, b.y);
    visit("z", a.z, b.z);
    visit("extra_ids", a.extra_ids, b.extra_ids);
}

template<class Visit>
void visit_fields(const SdOffset& a, const SdOffset& b, Visit visit)
{
    visit("x", a.x, b.x);
    visit("y", a.y, b.y);
    visit("z", a.z, b.z);
}

template<class Visit>
void visit_fields(const SdBeam& a, const SdBeam& b, Visit visit)
{
    visit("id", a.id, b.id);
    visit("node_start", a.node_start, b.node_start);
    visit("node_end", a.node_end, b.node_end);
    visit("offset_start", a.offset_start, b.offset_start);
    visit("offset_end", a.offset_end, b.offset_end);
    visit("kind_code", a.kind_code, b.kind_code);
    visit("beta", a.beta, b.beta);
    visit("int_list", a.int_list, b.int_list);
    visit("material", a.material, b.material);
    visit("sect_text", a.sect_text, b.sect_text);
    visit("sect_country", a.sect_country, b.sect_country);
    visit("sect_extra", a.sect_extra, b.sect_extra);
    visit("sect_name", a.sect_name, b.sect_name);
}

template<class Visit>
void visit_fields(const SdSurface& a, const SdSurface& b, Visit visit)
{
    visit("id", a.id, b.id);
    visit("node_ids", a.node_ids, b.node_ids);
    visit("thickness", a.thickness, b.thickness);
    visit("material", a.material, b.material);
}

template<class Visit>
void visit_fields(const SdShell& a, const SdShell& b, Visit visit)
{
    visit("id", a.id, b.id);
    visit("node_ids", a.node_ids, b.node_ids);
    visit("thickness", a.thickness, b.thickness);
    visit("material", a.material, b.material);
}

template<class Visit>
void visit_fields(const SdGroup& a, const SdGroup& b, Visit visit)
{
    visit("kind", a.kind, b.kind);
    visit("name", a.name, b.name);
    visit("ids", a.ids, b.ids);
}

template<class Visit>
void visit_fields(const Section& a, const Section& b, Visit visit)
{
    visit("tag", a.tag, b.tag);
    visit("type", a.type, b.type);
    visit("material", a.material, b.material);
    visit("property", a.property, b.property);
}

template<class Visit>
void visit_fields(const SdUserSectionTable& a, const SdUserSectionTable& b, Visit visit)
{
    visit("type", a.type, b.type);
    visit("unit", a.unit, b.unit);
    visit("records", a.records, b.records);
}

template<class Visit>
void visit_fields(const LoadCase& a, const LoadCase& b, Visit visit)
{
    visit("id", a.id, b.id);
    visit("type_text", a.type_text, b.type_text);
    visit("title", a.title, b.title);
}

template<class Visit>
void visit_fields(const LoadDef_raw& a, const LoadDef_raw& b, Visit visit)
{
    visit("text", a.text, b.text);
    visit("load_case", a.load_case, b.load_case);
}

template<class Visit>
void visit_fields(const LoadDefination& a, const LoadDefination& b, Visit visit)
{
    visit("kind", a.kind, b.kind);
    visit("direction", a.direction, b.direction);
    visit("values", a.values, b.values);
    visit("load_case", a.load_case, b.load_case);
}

template<class Visit>
void visit_fields(const ForcePoint& a, const ForcePoint& b, Visit visit)
{
    visit("position", a.position, b.position);
    visit("f1", a.f1, b.f1);
    visit("f2", a.f2, b.f2);
    visit("f3", a.f3, b.f3);
    visit("m1", a.m1, b.m1);
    visit("m2", a.m2, b.m2);
    visit("m3", a.m3, b.m3);
}

template<class Visit>
void visit_fields(const BeamLoadCaseRecord& a, const BeamLoadCaseRecord& b, Visit visit)
{
    visit("load_case", a.load_case, b.load_case);
    visit("points", a.points, b.points);
    visit("pkpm_points", a.pkpm_points, b.pkpm_points);
}

template<class Visit>
void visit_fields(const BeamForceAndMOM& a, const BeamForceAndMOM& b, Visit visit)
{
    visit("beam", a.beam, b.beam);
    visit("records", a.records, b.records);
}

template<class Visit>
void visit_fields(const BeamLoadList& a, const BeamLoadList& b, Visit visit)
{
    visit("dead", a.dead, b.dead);
    visit("live", a.live, b.live);
    visit("wind", a.wind, b.wind);
    visit("seismic", a.seismic, b.seismic);
}

template<class Visit>
void visit_fields(const WindLoadParam& a, const WindLoadParam& b, Visit visit)
{
    visit("title", a.title, b.title);
    visit("base_press", a.base_press, b.base_press);
    visit("soil_type", a.soil_type, b.soil_type);
    visit("structure_high", a.structure_high, b.structure_high);
    visit("is_betaz", a.is_betaz, b.is_betaz);
    visit("base_period", a.base_period, b.base_period);
    visit("aweather_width", a.aweather_width, b.aweather_width);
    visit("mius", a.mius, b.mius);
    visit("intensity_number", a.intensity_number, b.intensity_number);
    visit("intensity_isometry", a.intensity_isometry, b.intensity_isometry);
    visit("intensity_floor", a.intensity_floor, b.intensity_floor);
    visit("heights", a.heights, b.heights);
    visit("intensities", a.intensities, b.intensities);
}

template<class Visit>
void visit_fields(const SeismicParam& a, const SeismicParam& b, Visit visit)
{
    visit("dir_active", a.dir_active, b.dir_active);
    visit("dir_factor", a.dir_factor, b.dir_factor);
    visit("y_freedom", a.y_freedom, b.y_freedom);
    visit("eq_type", a.eq_type, b.eq_type);
    visit("post_method", a.post_method, b.post_method);
    visit("force_type", a.force_type, b.force_type);
    visit("eq_intensity", a.eq_intensity, b.eq_intensity);
    visit("eq_group", a.eq_group, b.eq_group);
    visit("special_accelerate", a.special_accelerate, b.special_accelerate);
    visit("point_number", a.point_number, b.point_number);
    visit("damping_factor", a.damping_factor, b.damping_factor);
    visit("proportion_factor", a.proportion_factor, b.proportion_factor);
    visit("loadno_count", a.loadno_count, b.loadno_count);
    visit("loadno", a.loadno, b.loadno);
    visit("loadno_factor", a.loadno_factor, b.loadno_factor);
    visit("periods", a.periods, b.periods);
    visit("spectrum_title_x", a.spectrum_title_x, b.spectrum_title_x);
    visit("spectrum_title_y", a.spectrum_title_y, b.spectrum_title_y);
    visit("spectrum_title_z", a.spectrum_title_z, b.spectrum_title_z);
    visit("spectrum_x", a.spectrum_x, b.spectrum_x);
    visit("spectrum_y", a.spectrum_y, b.spectrum_y);
    visit("spectrum_z", a.spectrum_z, b.spectrum_z);
}

template<class Visit>
void visit_fields(const OldProjMaps& a, const OldProjMaps& b, Visit visit)
{
    visit("joints_new_to_old", a.joints_new_to_old, b.joints_new_to_old);
    visit("members_new_to_old", a.members_new_to_old, b.members_new_to_old);
    visit("shells_new_to_old", a.shells_new_to_old, b.shells_new_to_old);
    visit("joints_old_to_new", a.joints_old_to_new, b.joints_old_to_new);
    visit("members_old_to_new", a.members_old_to_new, b.members_old_to_new);
    visit("shells_old_to_new", a.shells_old_to_new, b.shells_old_to_new);
}

template<class Visit>
void visit_fields(const SdReader& a, const SdReader& b, Visit visit)
{
    visit("concrete_density", a.concrete_density, b.concrete_density);
    visit("wl_param", a.wl_param, b.wl_param);
    visit("eq_param", a.eq_param, b.eq_param);
    visit("nodes", a.nodes, b.nodes);
    visit("beams", a.beams, b.beams);
    visit("shells", a.shells, b.shells);
    visit("surfaces", a.surfaces, b.surfaces);
    visit("groups", a.groups, b.groups);
    visit("supports", a.supports, b.supports);
    visit("releases", a.releases, b.releases);
    visit("load_cases", a.load_cases, b.load_cases);
    visit("load_defs", a.load_defs, b.load_defs);
    visit("usr_tables", a.usr_tables, b.usr_tables);
    visit("beam_forces", a.beam_forces, b.beam_forces);
    visit("raw_load_defs", a.raw_load_defs, b.raw_load_defs);
    visit("node_index", a.node_index, b.node_index);
    visit("beam_index", a.beam_index, b.beam_index);
    visit("shell_index", a.shell_index, b.shell_index);
    visit("surface_index", a.surface_index, b.surface_index);
    visit("unit_text", a.unit_text, b.unit_text);
    visit("length_factor", a.length_factor, b.length_factor);
    visit("force_factor", a.force_factor, b.force_factor);
    visit("force_length_factor", a.force_length_factor, b.force_length_factor);
    visit("old_proj_maps", a.old_proj_maps, b.old_proj_maps);
    visit("brace_ids", a.brace_ids, b.brace_ids);
}

} // namespace STAAD

#endif
