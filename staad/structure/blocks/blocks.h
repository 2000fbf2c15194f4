/// The blocks of the complete reading, each with what must be read before it.
#ifndef STAAD_STRUCTURE_BLOCKS_BLOCKS_H
#define STAAD_STRUCTURE_BLOCKS_BLOCKS_H

#include "staad/structure/reading.h"

namespace STAAD::detail {

/// Kind, title, job lines, units, upward axis. First of all.
void read_head(structure_reading& context);
/// Whether a row is SET Z UP, which turns the whole deck; of the other SET lines none says anything about the
/// structure.
bool is_set_z_up(const structure_reading& context, std::size_t row);

/// Joints; then context.joints may be made.
void read_joints(structure_reading& context);
/// Members, elements, solids and surfaces, with the numbers of their joints.
void read_members(structure_reading& context);
void read_elements(structure_reading& context);
void read_surfaces(structure_reading& context);
/// Groups: names and numbers.
void read_groups(structure_reading& context);
/// Numbers of joints in all of these become positions. Lists may name everything above.
void link_joints(structure_reading& context);
/// Takes away what DELETE lines name.
void delete_records(structure_reading& context);

// What lists give to members, elements and joints; a later line replaces an earlier one.

/// User tables.
void read_user_tables(structure_reading& context);
/// Sections of members, which may be rows of user tables.
void read_sections(structure_reading& context);
/// DEFINE MATERIAL blocks.
void read_materials(structure_reading& context);
/// MATERIAL, BETA and constants by value: who has which.
void read_constants(structure_reading& context);
/// Thickness of elements and surfaces.
void read_thickness(structure_reading& context);
/// Truss, tension, compression, cable.
void read_behaviour(structure_reading& context);
/// Factors of stiffness of cracked members; members of one line share the record.
void read_cracked(structure_reading& context);
/// Supports of joints, mats under elements.
void read_supports(structure_reading& context);
void read_releases(structure_reading& context);
/// Offsets; those given LOCAL are turned by the axes of their members, beta known.
void read_offsets(structure_reading& context);

/// Headers of load cases and reference cases; afterwards context.case_at() answers.
void read_load_cases(structure_reading& context);
/// Everything that a load case holds, in the order of the text. Loads that are kept as text have the number of
/// their statement in `kept` until keep_statements().
void read_loads(structure_reading& context);
/// Combinations; then whether the cases are there that sums name.
void read_combinations(structure_reading& context);

/// Statements that are kept as text or passed over, with a report by command. Last of all.
void keep_statements(structure_reading& context);

} // namespace STAAD::detail

#endif
