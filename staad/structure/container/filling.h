/// What lives while the container is filled, handed to each part.
#ifndef STAAD_STRUCTURE_CONTAINER_FILLING_H
#define STAAD_STRUCTURE_CONTAINER_FILLING_H

#include "staad/model/sd_reader.h"
#include "staad/report/finding_sink.h"
#include "staad/report/id_budget.h"
#include "staad/structure/reading.h"
#include "staad/structure/structure.h"
#include "staad/units/exact_units.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace STAAD::detail {

/// The structure that is handed over, the model that takes it, and what is reported of it.
struct container_filling {
    const Structure& structure;
    SdReader& model;
    finding_sink findings;
    id_budget budget;

    /// The container has no place for a record.
    template<class Compose>
    void report_left_out(Structure::Source source, Compose compose)
    {
        findings.add(FindingCode::not_in_container, place_of(structure, source), compose);
    }
    /// The container holds a record in another form.
    template<class Compose>
    void report_changed(Structure::Source source, Compose compose)
    {
        findings.add(FindingCode::changed_in_container, place_of(structure, source), compose);
    }
};

/// The units that the container's texts are in: metres and kilonewtons.
inline exact_units container_units()
{
    exact_units units;
    units.length = 1000.0;
    return units;
}

/// The name of a material at a position; `otherwise` of none and of a nameless one.
std::string material_name(const container_filling& context, int material, const std::string& otherwise);

/// The places among model x, y, z and about them of FX to MZ as the container's texts name them, always with Y up.
inline constexpr std::array<std::size_t, 6> model_degrees{1, 2, 0, 4, 5, 3};

void fill_geometry(container_filling& context);
/// Materials and sections of members; after fill_geometry().
void fill_sections(container_filling& context);
void fill_user_tables(container_filling& context);
void fill_supports(container_filling& context);
void fill_releases(container_filling& context);
void fill_loads(container_filling& context);

/// Whole mm, rounded to the nearest.
int whole_mm(double length) noexcept;

} // namespace STAAD::detail

#endif
