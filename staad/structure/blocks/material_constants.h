/// The constants of materials by their words.
#ifndef STAAD_STRUCTURE_BLOCKS_MATERIAL_CONSTANTS_H
#define STAAD_STRUCTURE_BLOCKS_MATERIAL_CONSTANTS_H

#include "staad/deck/row_words.h"
#include "staad/structure/structure.h"
#include "staad/units/exact_units.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace STAAD::detail {

enum class material_quantity : std::uint8_t { number, pressure, weight };

inline double in_model_units(double value, material_quantity of, const exact_units& units) noexcept
{
    return of == material_quantity::pressure ? units.pressure_of(value)
           : of == material_quantity::weight ? units.force_per_volume_of(value)
                                             : value;
}

struct material_constant {
    std::string_view short_form;
    std::optional<double> Structure::Material::*value;
    material_quantity of;
};

inline constexpr std::array<material_constant, 6> material_constants = {{
    {"E", &Structure::Material::e, material_quantity::pressure},
    {"G", &Structure::Material::g, material_quantity::pressure},
    {"POIS", &Structure::Material::poisson, material_quantity::number},
    {"DENS", &Structure::Material::density, material_quantity::weight},
    {"ALPH", &Structure::Material::alpha, material_quantity::number},
    {"DAMP", &Structure::Material::damping, material_quantity::number},
}};

/// Index of the constant, which CDAMP names as well as DAMP; none if the word is of no constant.
inline std::optional<std::size_t> find_material_constant(std::string_view word) noexcept
{
    for (std::size_t i = 0; i < material_constants.size(); ++i)
        if (is_word(word, material_constants[i].short_form))
            return i;
    return is_word(word, "CDAM") ? std::optional(material_constants.size() - 1) : std::nullopt;
}

} // namespace STAAD::detail

#endif
