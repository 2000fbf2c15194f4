/// The blocks that free functions read: geometry, sections and materials. The others are methods of
/// SdReader.
#ifndef STAAD_READER_BLOCKS_BLOCKS_H
#define STAAD_READER_BLOCKS_BLOCKS_H

#include "staad/model/sd_reader.h"
#include "staad/reader/blocks/items.h"
#include "staad/reader/reading.h"
#include "staad/text/lines.h"

#include <string>
#include <string_view>

namespace STAAD::detail {

/// Fills the joints in model units, `node_index` and the joint look-up of the reading.
void read_joints(SdReader& model, const line_list& lines, line_range block, reading& context);
/// Fills the members with joint positions, `beam_index` and the member look-up of the reading. Returns the
/// first line after the block, which begins at `begin`.
std::size_t read_members(SdReader& model, const line_list& lines, std::size_t begin, reading& context);
/// Fills the shell elements with joint positions, `shell_index` and the element look-up of the reading. Returns
/// the first line after the block, which begins at `begin`.
std::size_t read_elements(SdReader& model, const line_list& lines, std::size_t begin, reading& context);
/// Reads the thicknesses of the first ELEMENT PROPERTY block from line `from` on.
void read_thicknesses(SdReader& model, const line_list& lines, std::size_t from, reading& context);
/// Appends a copy of every surface to the shells, its corners as positions.
void append_surfaces_to_shells(SdReader& model, const reading& context);

/// Reads from the first "MEMBER PROPERTY" line to the "CONSTANTS" line, both looked for from line
/// `from` on; to the end of the text if "CONSTANTS" is missing or comes first.
void read_member_properties(SdReader& model, const line_list& lines, std::size_t from, reading& context);

/// The section of one property line.
struct property_text {
    std::string_view name; ///< as written, from its keyword to the end of the line; empty: not understood
    std::string text;      ///< normalised, dimensions in whole mm
};

property_text property_of_line(std::string_view line, double length_factor);

/// Reads every line of the text that begins with "MATERIAL", in any block.
void assign_materials(SdReader& model, const line_list& lines, reading& context);

} // namespace STAAD::detail

#endif
