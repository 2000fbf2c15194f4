#include "staad/structure/read_structure.h"

#include "staad/structure/blocks/blocks.h"
#include "staad/structure/reading.h"

namespace STAAD {
namespace {

using detail::structure_reading;

/// Geometry first, from joints to elements; then what lists of these, and groups, give to them; then loads.
void read_blocks(structure_reading& context)
{
    read_head(context);
    read_joints(context);
    read_members(context);
    read_elements(context);
    read_surfaces(context);
    read_groups(context);
    link_joints(context);
    delete_records(context);
    read_user_tables(context);
    read_sections(context);
    read_materials(context);
    read_constants(context);
    read_thickness(context);
    read_behaviour(context);
    read_cracked(context);
    read_supports(context);
    read_releases(context);
    read_offsets(context);
    read_load_cases(context);
    read_loads(context);
    read_combinations(context);
    keep_statements(context);
}

} // namespace

std::optional<Structure> read_structure(const Deck& deck, ReadReport& report)
{
    std::optional<Structure> structure(std::in_place);
    structure_reading context(deck, *structure, report);
    if (!context.has_units()) {
        context.findings.add(FindingCode::no_unit, {}, [] { return "no UNIT line that gives a length and a force"; });
        return std::nullopt;
    }
    read_blocks(context);
    if (structure->joints.empty()) {
        context.findings.add(FindingCode::no_joints, {}, [] { return "no joints"; });
        return std::nullopt;
    }
    return structure;
}

} // namespace STAAD
