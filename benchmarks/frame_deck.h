/// Regular building frames of any size as command text, and number lists made to strain one block at
/// a time. The same options always give the same bytes.
#ifndef STAADKIT_BENCHMARKS_FRAME_DECK_H
#define STAADKIT_BENCHMARKS_FRAME_DECK_H

#include <cstddef>
#include <string>

namespace STAAD::bench {

/// A frame of bays_x by bays_z bays and some storeys, and the blocks written for it. Without any
/// block the text ends after the geometry.
struct frame_options {
    int bays_x = 4;
    int bays_z = 3;
    int storeys = 3;
    int load_cases = 20;

    bool plates = true;      ///< one quadrilateral per bay and floor
    bool groups = false;     ///< members, joints and floors, storey by storey
    bool tables = false;     ///< two user section tables
    bool thickness = false;  ///< ELEMENT PROPERTY
    bool properties = false; ///< PRIS, TABLE, TAPERED and UPTABLE sections
    bool constants = false;  ///< material block, BETA and MATERIAL lines
    bool supports = false;   ///< three kinds of support at the base
    bool releases = false;   ///< secondary beams
    bool offsets = false;    ///< edge beams
    bool trusses = false;    ///< tie members
    bool loads = false;      ///< load cases, one combination at the end

    /// Every block on.
    frame_options& with_all_blocks() noexcept;
    std::size_t joints() const noexcept;
    std::size_t members() const noexcept;
};

/// The text of the frame: UNIT METER KN, lines packed to 79 columns.
std::string make_frame_deck(const frame_options& options);

/// A building of about that many members, about twice as many bays each way as storeys, with the
/// blocks of `blocks`.
frame_options frame_of_about(std::size_t members, const frame_options& blocks = {});

/// A frame with the blocks of `blocks` whose text is of `bytes` or somewhat more.
frame_options frame_of_bytes(std::size_t bytes, const frame_options& blocks);

/// Blocks that read number lists.
enum class list_block {
    property,
    beta,
    material,
    support,
    release,
    offset,
    truss,
    group,
    thickness,
    surface_thickness,
    member_load,
    joint_load
};

/// How the lists of such a block are written.
enum class list_style {
    one_range,       ///< one line, "1 TO n"
    shuffled_numbers ///< one logical line, every number for itself, in random order
};

/// A row of n members, n elements and n surfaces on n + 1 joints, with one block that names all of
/// them on each of `lines` logical lines.
std::string make_list_deck(list_block block, list_style style, int n, int lines = 1);

} // namespace STAAD::bench

#endif
