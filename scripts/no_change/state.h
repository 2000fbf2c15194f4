/// Everything that a host can see of the library's records, to the last bit: as a digest for each step, or line by
/// line for people.
#ifndef STAAD_NO_CHANGE_STATE_H
#define STAAD_NO_CHANGE_STATE_H

#include "staad/model/sd_reader.h"
#include "staad/project/layered_project.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace no_change {

/// Takes values with their names. The digest has 128 bits and depends on order, types and lengths, not on names.
class state {
public:
    /// `shown`: values are printed to standard output as well.
    explicit state(bool shown) : shown_(shown) {}

    /// Starts a step: digests begin anew.
    void begin(std::string_view step);
    /// "step=digest" of the step that was begun.
    std::string end() const;

    template<class Value>
    void put(std::string_view name, const Value& value)
    {
        const std::size_t length = path_.size();
        if (shown_)
            path_.append(1, '.').append(name);
        put_value(value);
        path_.resize(length);
    }

    /// Fields with their names, "a, b, c".
    template<class... Fields>
    void put_fields(std::string_view names, const Fields&... fields)
    {
        const auto next_name = [&names] {
            const std::string_view name = names.substr(0, names.find(','));
            names.remove_prefix(name.size() == names.size() ? name.size() : name.size() + 2);
            return name;
        };
        (put(next_name(), fields), ...);
    }

private:
    void mix(std::uint64_t word);
    void put_bytes(std::string_view bytes);
    void put_number(double value);
    void show(const std::string& text) const;

    template<class Number>
    std::enable_if_t<std::is_integral_v<Number> || std::is_enum_v<Number>> put_value(const Number& value)
    {
        mix(static_cast<std::uint64_t>(value));
        if (shown_)
            show(std::to_string(static_cast<long long>(value)));
    }
    void put_value(const double& value) { put_number(value); }
    void put_value(const std::string& text) { put_bytes(text); }
    template<class Key, class Value>
    void put_value(const std::pair<Key, Value>& both)
    {
        put_value(both.first);
        put_value(both.second);
    }
    template<class Element>
    void put_value(const std::vector<Element>& list)
    {
        put_elements(list);
    }
    template<class Element, std::size_t Count>
    void put_value(const std::array<Element, Count>& list)
    {
        put_elements(list);
    }
    template<class Key>
    void put_value(const std::set<Key>& keys)
    {
        put_elements(keys);
    }
    template<class Key, class Value>
    void put_value(const std::map<Key, Value>& entries)
    {
        put_elements(entries);
    }
    template<class List>
    void put_elements(const List& list)
    {
        put("size", list.size());
        std::size_t index = 0;
        for (const auto& element : list)
            put(shown_ ? std::to_string(index++) : std::string(), element);
    }

    // Structured bindings compile only as long as they name every field there is.
#define NO_CHANGE_FIELDS(RECORD, ...)                                                                                  \
    void put_value(const STAAD::RECORD& record)                                                                        \
    {                                                                                                                  \
        const auto& [__VA_ARGS__] = record;                                                                            \
        put_fields(#__VA_ARGS__, __VA_ARGS__);                                                                         \
    }
    NO_CHANGE_FIELDS(SdNode, id, x, y, z, extra_ids)
    NO_CHANGE_FIELDS(SdOffset, x, y, z)
    NO_CHANGE_FIELDS(SdBeam, id, node_start, node_end, offset_start, offset_end, kind_code, beta, int_list, material,
                     sect_text, sect_country, sect_extra, sect_name)
    NO_CHANGE_FIELDS(SdSurface, id, node_ids, thickness, material)
    NO_CHANGE_FIELDS(SdShell, id, node_ids, thickness, material)
    NO_CHANGE_FIELDS(SdGroup, kind, name, ids)
    NO_CHANGE_FIELDS(Section, tag, type, material, property)
    NO_CHANGE_FIELDS(SdUserSectionTable, type, unit, records)
    NO_CHANGE_FIELDS(LoadCase, id, type_text, title)
    NO_CHANGE_FIELDS(LoadDef_raw, text, load_case)
    NO_CHANGE_FIELDS(LoadDefination, kind, direction, values, load_case)
    NO_CHANGE_FIELDS(ForcePoint, position, f1, f2, f3, m1, m2, m3)
    NO_CHANGE_FIELDS(BeamLoadCaseRecord, load_case, points, pkpm_points)
    NO_CHANGE_FIELDS(BeamLoadList, dead, live, wind, seismic)
    NO_CHANGE_FIELDS(BeamForceAndMOM, beam, records)
    NO_CHANGE_FIELDS(WindLoadParam, title, base_press, soil_type, structure_high, is_betaz, base_period, aweather_width,
                     mius, intensity_number, intensity_isometry, intensity_floor, heights, intensities)
    NO_CHANGE_FIELDS(SeismicParam, dir_active, dir_factor, y_freedom, eq_type, post_method, force_type, eq_intensity,
                     eq_group, special_accelerate, point_number, damping_factor, proportion_factor, loadno_count,
                     loadno, loadno_factor, periods, spectrum_title_x, spectrum_title_y, spectrum_title_z, spectrum_x,
                     spectrum_y, spectrum_z)
    NO_CHANGE_FIELDS(OldProjMaps, joints_new_to_old, members_new_to_old, shells_new_to_old, joints_old_to_new,
                     members_old_to_new, shells_old_to_new)
    NO_CHANGE_FIELDS(SdReader, concrete_density, wl_param, eq_param, nodes, beams, shells, surfaces, groups, supports,
                     releases, load_cases, load_defs, usr_tables, beam_forces, raw_load_defs, node_index, beam_index,
                     shell_index, surface_index, unit_text, length_factor, force_factor, force_length_factor,
                     old_proj_maps, brace_ids)
    NO_CHANGE_FIELDS(LayerMember, member, section, forces)
    NO_CHANGE_FIELDS(StoreyLayer, base, height, members, shells)
    NO_CHANGE_FIELDS(NodeLevel, position, level, rx, ry, rz)
    NO_CHANGE_FIELDS(StaadProProject_layered, layers, node_levels, sections, load_cases)
#undef NO_CHANGE_FIELDS

    bool shown_;
    std::string step_;
    std::string path_; // of the value that is put, where values are shown
    std::array<std::uint64_t, 2> digest_{};
};

} // namespace no_change

#endif
