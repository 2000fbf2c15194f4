/// The public fields of every record of a model: names and values in declaration order.
///
/// Each record is taken apart by a structured binding, which compiles only as long as it names
/// every field there is: a field added to a record cannot be forgotten here. The parameter records
/// are taken apart for reading and for filling alike.
#ifndef TOOLS_STAADKIT_OUTPUT_MODEL_FIELDS_H
#define TOOLS_STAADKIT_OUTPUT_MODEL_FIELDS_H

#include "staad/model/sd_reader.h"

#include <concepts>
#include <cstddef>
#include <type_traits>

namespace tool {

/// Calls `visit(name, field)` for each pair; there are as many names as fields.
template<class Visit, std::size_t Count, class... Fields>
void name_fields(Visit& visit, const char* const (&names)[Count], Fields&... fields)
{
    static_assert(Count == sizeof...(fields));
    std::size_t index = 0;
    (visit(names[index++], fields), ...);
}

template<class Visit>
void each_field(const STAAD::SdNode& record, Visit visit)
{
    const auto& [id, x, y, z, extra_ids] = record;
    name_fields(visit, {"id", "x", "y", "z", "extra_ids"}, id, x, y, z, extra_ids);
}

template<class Visit>
void each_field(const STAAD::SdBeam& record, Visit visit)
{
    const auto& [id, node_start, node_end, offset_start, offset_end, kind_code, beta, int_list, material, sect_text,
                 sect_country, sect_extra, sect_name] = record;
    name_fields(visit,
                {"id", "node_start", "node_end", "offset_start", "offset_end", "kind_code", "beta", "int_list",
                 "material", "sect_text", "sect_country", "sect_extra", "sect_name"},
                id, node_start, node_end, offset_start, offset_end, kind_code, beta, int_list, material, sect_text,
                sect_country, sect_extra, sect_name);
}

template<class Visit>
void each_field(const STAAD::SdShell& record, Visit visit)
{
    const auto& [id, node_ids, thickness, material] = record;
    name_fields(visit, {"id", "node_ids", "thickness", "material"}, id, node_ids, thickness, material);
}

template<class Visit>
void each_field(const STAAD::SdSurface& record, Visit visit)
{
    const auto& [id, node_ids, thickness, material] = record;
    name_fields(visit, {"id", "node_ids", "thickness", "material"}, id, node_ids, thickness, material);
}

template<class Visit>
void each_field(const STAAD::SdGroup& record, Visit visit)
{
    const auto& [kind, name, ids] = record;
    name_fields(visit, {"kind", "name", "ids"}, kind, name, ids);
}

template<class Visit>
void each_field(const STAAD::LoadCase& record, Visit visit)
{
    const auto& [id, type_text, title] = record;
    name_fields(visit, {"id", "type_text", "title"}, id, type_text, title);
}

template<class Visit>
void each_field(const STAAD::LoadDef_raw& record, Visit visit)
{
    const auto& [text, load_case] = record;
    name_fields(visit, {"text", "load_case"}, text, load_case);
}

template<class Visit>
void each_field(const STAAD::LoadDefination& record, Visit visit)
{
    const auto& [kind, direction, values, load_case] = record;
    name_fields(visit, {"kind", "direction", "values", "load_case"}, kind, direction, values, load_case);
}

template<class Visit>
void each_field(const STAAD::SdUserSectionTable& record, Visit visit)
{
    const auto& [type, unit, records] = record;
    name_fields(visit, {"type", "unit", "records"}, type, unit, records);
}

template<class Visit>
void each_field(const STAAD::ForcePoint& record, Visit visit)
{
    const auto& [position, f1, f2, f3, m1, m2, m3] = record;
    name_fields(visit, {"position", "f1", "f2", "f3", "m1", "m2", "m3"}, position, f1, f2, f3, m1, m2, m3);
}

template<class Visit>
void each_field(const STAAD::BeamLoadCaseRecord& record, Visit visit)
{
    const auto& [load_case, points, pkpm_points] = record;
    name_fields(visit, {"load_case", "points", "pkpm_points"}, load_case, points, pkpm_points);
}

template<class Visit>
void each_field(const STAAD::BeamForceAndMOM& record, Visit visit)
{
    const auto& [beam, records] = record;
    name_fields(visit, {"beam", "records"}, beam, records);
}

template<class Visit>
void each_field(const STAAD::OldProjMaps& record, Visit visit)
{
    const auto& [joints_new_to_old, members_new_to_old, shells_new_to_old, joints_old_to_new, members_old_to_new,
                 shells_old_to_new] = record;
    name_fields(visit,
                {"joints_new_to_old", "members_new_to_old", "shells_new_to_old", "joints_old_to_new",
                 "members_old_to_new", "shells_old_to_new"},
                joints_new_to_old, members_new_to_old, shells_new_to_old, joints_old_to_new, members_old_to_new,
                shells_old_to_new);
}

template<class Record, class Visit>
requires std::same_as<std::remove_const_t<Record>, STAAD::WindLoadParam>
void each_field(Record& record, Visit visit)
{
    auto& [title, base_press, soil_type, structure_high, is_betaz, base_period, aweather_width, mius, intensity_number,
           intensity_isometry, intensity_floor, heights, intensities] = record;
    name_fields(visit,
                {"title", "base_press", "soil_type", "structure_high", "is_betaz", "base_period", "aweather_width",
                 "mius", "intensity_number", "intensity_isometry", "intensity_floor", "heights", "intensities"},
                title, base_press, soil_type, structure_high, is_betaz, base_period, aweather_width, mius,
                intensity_number, intensity_isometry, intensity_floor, heights, intensities);
}

template<class Record, class Visit>
requires std::same_as<std::remove_const_t<Record>, STAAD::SeismicParam>
void each_field(Record& record, Visit visit)
{
    auto& [dir_active, dir_factor, y_freedom, eq_type, post_method, force_type, eq_intensity, eq_group,
           special_accelerate, point_number, damping_factor, proportion_factor, loadno_count, loadno, loadno_factor,
           periods, spectrum_title_x, spectrum_title_y, spectrum_title_z, spectrum_x, spectrum_y, spectrum_z] = record;
    name_fields(visit, {"dir_active",         "dir_factor",       "y_freedom",        "eq_type",
                        "post_method",        "force_type",       "eq_intensity",     "eq_group",
                        "special_accelerate", "point_number",     "damping_factor",   "proportion_factor",
                        "loadno_count",       "loadno",           "loadno_factor",    "periods",
                        "spectrum_title_x",   "spectrum_title_y", "spectrum_title_z", "spectrum_x",
                        "spectrum_y",         "spectrum_z"},
                dir_active, dir_factor, y_freedom, eq_type, post_method, force_type, eq_intensity, eq_group,
                special_accelerate, point_number, damping_factor, proportion_factor, loadno_count, loadno,
                loadno_factor, periods, spectrum_title_x, spectrum_title_y, spectrum_title_z, spectrum_x, spectrum_y,
                spectrum_z);
}

template<class Visit>
void each_field(const STAAD::SdReader& record, Visit visit)
{
    const auto& [concrete_density, wl_param, eq_param, nodes, beams, shells, surfaces, groups, supports, releases,
                 load_cases, load_defs, usr_tables, beam_forces, raw_load_defs, node_index, beam_index, shell_index,
                 surface_index, unit_text, length_factor, force_factor, force_length_factor, old_proj_maps, brace_ids] =
        record;
    name_fields(visit,
                {"concrete_density",
                 "wl_param",
                 "eq_param",
                 "nodes",
                 "beams",
                 "shells",
                 "surfaces",
                 "groups",
                 "supports",
                 "releases",
                 "load_cases",
                 "load_defs",
                 "usr_tables",
                 "beam_forces",
                 "raw_load_defs",
                 "node_index",
                 "beam_index",
                 "shell_index",
                 "surface_index",
                 "unit_text",
                 "length_factor",
                 "force_factor",
                 "force_length_factor",
                 "old_proj_maps",
                 "brace_ids"},
                concrete_density, wl_param, eq_param, nodes, beams, shells, surfaces, groups, supports, releases,
                load_cases, load_defs, usr_tables, beam_forces, raw_load_defs, node_index, beam_index, shell_index,
                surface_index, unit_text, length_factor, force_factor, force_length_factor, old_proj_maps, brace_ids);
}

} // namespace tool

#endif
