/// The blocks that the driver reads itself: joints, members, shell elements and their thicknesses.
#ifndef STAAD_READER_BLOCKS_READ_GEOMETRY_H
#define STAAD_READER_BLOCKS_READ_GEOMETRY_H

#include "staad/model/sd_reader.h"
#include "staad/reader/blocks/read_items.h"
#include "staad/reader/reading.h"
#include "staad/text/lines.h"

namespace STAAD::detail {

/// Joints in model units, `node_index` and the look-up of the reading.
void read_joints(SdReader& model, const line_list& lines, line_range block, reading& run);
/// Members with joint positions, `beam_index` and the look-up of the reading. Gives the first line
/// after the block, which begins at `begin`.
std::size_t read_members(SdReader& model, const line_list& lines, std::size_t begin, reading& run);
/// Shell elements with joint positions, `shell_index` and the look-up of the reading. Gives the first
/// line after the block, which begins at `begin`.
std::size_t read_elements(SdReader& model, const line_list& lines, std::size_t begin, reading& run);
/// Thicknesses of the first ELEMENT PROPERTY block from line `from` on.
void read_thicknesses(SdReader& model, const line_list& lines, std::size_t from, reading& run);
/// A copy of every surface among the shells, its corners as positions.
void append_surfaces_to_shells(SdReader& model, const reading& run);

} // namespace STAAD::detail

#endif
