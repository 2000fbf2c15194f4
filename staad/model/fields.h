/// The public fields of every record: names and values in declaration order.
///
/// Each record is taken apart by a structured binding, which compiles only if it names every field, so that a
/// field added to a record cannot be forgotten here. Whatever visits all fields of a model - printing,
/// comparing, filling - uses this list.
#ifndef STAAD_MODEL_FIELDS_H
#define STAAD_MODEL_FIELDS_H

#include "staad/model/sd_reader.h"
#include "staad/model/storey_layer.h"

#include <cstddef>
#include <iterator>
#include <tuple>
#include <type_traits>
#include <utility>

namespace STAAD {

/// The list of one record: `names`, and `of(record)`, a tuple of references to the fields, const for a const
/// record. There is one for each struct of the model folder and for SdReader.
template<class Record>
struct RecordFields;

template<>
struct RecordFields<SdOffset> {
    static constexpr const char* names[] = {"x", "y", "z"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [x, y, z] = record;
        return std::tie(x, y, z);
    }
};

template<>
struct RecordFields<SdNode> {
    static constexpr const char* names[] = {"id", "x", "y", "z", "extra_ids"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [id, x, y, z, extra_ids] = record;
        return std::tie(id, x, y, z, extra_ids);
    }
};

template<>
struct RecordFields<SdBeam> {
    static constexpr const char* names[] = {"id",           "node_start", "node_end", "offset_start", "offset_end",
                                            "kind_code",    "beta",       "int_list", "material",     "sect_text",
                                            "sect_country", "sect_extra", "sect_name"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [id, node_start, node_end, offset_start, offset_end, kind_code, beta, int_list, material, sect_text,
               sect_country, sect_extra, sect_name] = record;
        return std::tie(id, node_start, node_end, offset_start, offset_end, kind_code, beta, int_list, material,
                        sect_text, sect_country, sect_extra, sect_name);
    }
};

template<>
struct RecordFields<SdShell> {
    static constexpr const char* names[] = {"id", "node_ids", "thickness", "material"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [id, node_ids, thickness, material] = record;
        return std::tie(id, node_ids, thickness, material);
    }
};

template<>
struct RecordFields<SdSurface> {
    static constexpr const char* names[] = {"id", "node_ids", "thickness", "material"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [id, node_ids, thickness, material] = record;
        return std::tie(id, node_ids, thickness, material);
    }
};

template<>
struct RecordFields<SdGroup> {
    static constexpr const char* names[] = {"kind", "name", "ids"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [kind, name, ids] = record;
        return std::tie(kind, name, ids);
    }
};

template<>
struct RecordFields<Section> {
    static constexpr const char* names[] = {"tag", "type", "material", "property"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [tag, type, material, property] = record;
        return std::tie(tag, type, material, property);
    }
};

template<>
struct RecordFields<SdUserSectionTable> {
    static constexpr const char* names[] = {"type", "unit", "records"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [type, unit, records] = record;
        return std::tie(type, unit, records);
    }
};

template<>
struct RecordFields<LoadCase> {
    static constexpr const char* names[] = {"id", "type_text", "title"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [id, type_text, title] = record;
        return std::tie(id, type_text, title);
    }
};

template<>
struct RecordFields<LoadDef_raw> {
    static constexpr const char* names[] = {"text", "load_case"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [text, load_case] = record;
        return std::tie(text, load_case);
    }
};

template<>
struct RecordFields<LoadDefination> {
    static constexpr const char* names[] = {"kind", "direction", "values", "load_case"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [kind, direction, values, load_case] = record;
        return std::tie(kind, direction, values, load_case);
    }
};

template<>
struct RecordFields<ForcePoint> {
    static constexpr const char* names[] = {"position", "f1", "f2", "f3", "m1", "m2", "m3"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [position, f1, f2, f3, m1, m2, m3] = record;
        return std::tie(position, f1, f2, f3, m1, m2, m3);
    }
};

template<>
struct RecordFields<BeamLoadCaseRecord> {
    static constexpr const char* names[] = {"load_case", "points", "pkpm_points"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [load_case, points, pkpm_points] = record;
        return std::tie(load_case, points, pkpm_points);
    }
};

template<>
struct RecordFields<BeamForceAndMOM> {
    static constexpr const char* names[] = {"beam", "records"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [beam, records] = record;
        return std::tie(beam, records);
    }
};

template<>
struct RecordFields<BeamLoadList> {
    static constexpr const char* names[] = {"dead", "live", "wind", "seismic"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [dead, live, wind, seismic] = record;
        return std::tie(dead, live, wind, seismic);
    }
};

template<>
struct RecordFields<WindLoadParam> {
    static constexpr const char* names[] = {
        "title",           "base_press",     "soil_type",  "structure_high",   "is_betaz",
        "base_period",     "aweather_width", "mius",       "intensity_number", "intensity_isometry",
        "intensity_floor", "heights",        "intensities"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [title, base_press, soil_type, structure_high, is_betaz, base_period, aweather_width, mius,
               intensity_number, intensity_isometry, intensity_floor, heights, intensities] = record;
        return std::tie(title, base_press, soil_type, structure_high, is_betaz, base_period, aweather_width, mius,
                        intensity_number, intensity_isometry, intensity_floor, heights, intensities);
    }
};

template<>
struct RecordFields<SeismicParam> {
    static constexpr const char* names[] = {
        "dir_active",       "dir_factor", "y_freedom",          "eq_type",      "post_method",      "force_type",
        "eq_intensity",     "eq_group",   "special_accelerate", "point_number", "damping_factor",   "proportion_factor",
        "loadno_count",     "loadno",     "loadno_factor",      "periods",      "spectrum_title_x", "spectrum_title_y",
        "spectrum_title_z", "spectrum_x", "spectrum_y",         "spectrum_z"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [dir_active, dir_factor, y_freedom, eq_type, post_method, force_type, eq_intensity, eq_group,
               special_accelerate, point_number, damping_factor, proportion_factor, loadno_count, loadno, loadno_factor,
               periods, spectrum_title_x, spectrum_title_y, spectrum_title_z, spectrum_x, spectrum_y, spectrum_z] =
            record;
        return std::tie(dir_active, dir_factor, y_freedom, eq_type, post_method, force_type, eq_intensity, eq_group,
                        special_accelerate, point_number, damping_factor, proportion_factor, loadno_count, loadno,
                        loadno_factor, periods, spectrum_title_x, spectrum_title_y, spectrum_title_z, spectrum_x,
                        spectrum_y, spectrum_z);
    }
};

template<>
struct RecordFields<OldProjMaps> {
    static constexpr const char* names[] = {"joints_new_to_old", "members_new_to_old", "shells_new_to_old",
                                            "joints_old_to_new", "members_old_to_new", "shells_old_to_new"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [joints_new_to_old, members_new_to_old, shells_new_to_old, joints_old_to_new, members_old_to_new,
               shells_old_to_new] = record;
        return std::tie(joints_new_to_old, members_new_to_old, shells_new_to_old, joints_old_to_new, members_old_to_new,
                        shells_old_to_new);
    }
};

template<>
struct RecordFields<SdReader> {
    static constexpr const char* names[] = {"concrete_density",
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
                                            "brace_ids"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [concrete_density, wl_param, eq_param, nodes, beams, shells, surfaces, groups, supports, releases,
               load_cases, load_defs, usr_tables, beam_forces, raw_load_defs, node_index, beam_index, shell_index,
               surface_index, unit_text, length_factor, force_factor, force_length_factor, old_proj_maps, brace_ids] =
            record;
        return std::tie(concrete_density, wl_param, eq_param, nodes, beams, shells, surfaces, groups, supports,
                        releases, load_cases, load_defs, usr_tables, beam_forces, raw_load_defs, node_index, beam_index,
                        shell_index, surface_index, unit_text, length_factor, force_factor, force_length_factor,
                        old_proj_maps, brace_ids);
    }
};

template<>
struct RecordFields<LayerMember> {
    static constexpr const char* names[] = {"member", "section", "forces"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [member, section, forces] = record;
        return std::tie(member, section, forces);
    }
};

template<>
struct RecordFields<StoreyLayer> {
    static constexpr const char* names[] = {"base", "height", "members", "shells"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [base, height, members, shells] = record;
        return std::tie(base, height, members, shells);
    }
};

template<>
struct RecordFields<NodeLevel> {
    static constexpr const char* names[] = {"position", "level", "rx", "ry", "rz"};
    template<class Record>
    static auto of(Record& record)
    {
        auto& [position, level, rx, ry, rz] = record;
        return std::tie(position, level, rx, ry, rz);
    }
};

namespace detail {

template<class Value, class = void>
struct has_fields : std::false_type {
};
template<class Value>
struct has_fields<Value, std::void_t<decltype(RecordFields<Value>::names)>> : std::true_type {
};

template<class Record, class Visit, std::size_t... I>
void each_field(Record& record, Visit& visit, std::index_sequence<I...>)
{
    using fields = RecordFields<std::remove_const_t<Record>>;
    const auto values = fields::of(record);
    static_assert(std::tuple_size_v<decltype(fields::of(record))> == sizeof...(I), "a name for each field");
    (visit(fields::names[I], std::get<I>(values)), ...);
}

template<class Record, class Visit, std::size_t... I>
void each_field(const Record& left, const Record& right, Visit& visit, std::index_sequence<I...>)
{
    const auto of_left = RecordFields<Record>::of(left);
    const auto of_right = RecordFields<Record>::of(right);
    (visit(RecordFields<Record>::names[I], std::get<I>(of_left), std::get<I>(of_right)), ...);
}

template<class Record>
using field_indexes = std::make_index_sequence<std::size(RecordFields<std::remove_const_t<Record>>::names)>;

} // namespace detail

/// Whether a type is a record with a list of fields.
template<class Value>
inline constexpr bool is_record = detail::has_fields<Value>::value;

/// Calls `visit(name, field)` for every field in declaration order. The fields of a record that is not const
/// may be changed.
template<class Record, class Visit>
std::enable_if_t<is_record<std::remove_const_t<Record>>> each_field(Record& record, Visit visit)
{
    detail::each_field(record, visit, detail::field_indexes<Record>());
}

/// Calls `visit(name, field of left, field of right)` for every field in declaration order.
template<class Record, class Visit>
std::enable_if_t<is_record<Record>> each_field(const Record& left, const Record& right, Visit visit)
{
    detail::each_field(left, right, visit, detail::field_indexes<Record>());
}

} // namespace STAAD

#endif
