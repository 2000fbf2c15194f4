#include "staad/structure/container.h"

#include "staad/structure/container/filling.h"
#include "staad/structure/container/texts.h"

#include <cmath>
#include <utility>

namespace STAAD {
namespace {

constexpr double default_concrete_density = 23.5615; // kN/m3

/// The density of the material CONCRETE, kN/m3.
double concrete_density(const Structure& structure)
{
    for (const Structure::Material& material : structure.materials)
        if (detail::to_upper_ascii(material.name) == "CONCRETE" && material.density)
            return detail::to_real(detail::number_text(
                *material.density, [](double v) { return detail::container_units().force_per_volume_of(v); }));
    return default_concrete_density;
}

/// Everything that a reading replaces is empty; what the host has set for writing stays.
void empty(SdReader& model)
{
    SdReader bare;
    bare.wl_param = std::move(model.wl_param);
    bare.eq_param = std::move(model.eq_param);
    bare.old_proj_maps = std::move(model.old_proj_maps);
    model = std::move(bare);
}

void fill(const Structure& structure, SdReader& model, ReadReport* report)
{
    empty(model);
    model.unit_text = "UNIT METER KN";
    model.length_factor = detail::container_units().length;
    model.concrete_density = concrete_density(structure);
    detail::container_filling context{structure, model, detail::finding_sink(report), {}};
    detail::fill_geometry(context);
    detail::fill_sections(context);
    detail::fill_user_tables(context);
    detail::fill_supports(context);
    detail::fill_releases(context);
    detail::fill_loads(context);
}

} // namespace

int detail::whole_mm(double length) noexcept
{
    return truncate_to_int(std::round(length));
}

void to_reader(const Structure& structure, SdReader& model, ReadReport& report)
{
    fill(structure, model, &report);
}

void to_reader(const Structure& structure, SdReader& model)
{
    fill(structure, model, nullptr);
}

} // namespace STAAD
