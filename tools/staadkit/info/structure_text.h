/// The parts of the report of "info" that only a structure has, in the order in which they stand in it.
#ifndef TOOLS_STAADKIT_INFO_STRUCTURE_TEXT_H
#define TOOLS_STAADKIT_INFO_STRUCTURE_TEXT_H

#include "info/structure_summary.h"
#include "output/std_output.h"

namespace tool {

/// Kind, title, and the deck's units.
void put_structure_head(std_output& out, const structure_summary& summary);
/// What holds joints and elements, and how many.
void put_structure_supports(std_output& out, const structure_summary& summary);
/// With the constants that the deck gives them.
void put_structure_materials(std_output& out, const structure_summary& summary);
/// Load cases, reference cases, combinations.
void put_structure_loads(std_output& out, const structure_summary& summary);
/// What is lost, what is kept as text, what is harmless, with lines.
void put_structure_asides(std_output& out, const structure_summary& summary);

} // namespace tool

#endif
