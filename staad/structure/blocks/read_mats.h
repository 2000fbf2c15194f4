/// Springs under elements, "list PLATE MAT DIRECT Y SUBGRADE k", which stand among the supports of joints.
#ifndef STAAD_STRUCTURE_BLOCKS_READ_MATS_H
#define STAAD_STRUCTURE_BLOCKS_READ_MATS_H

#include "staad/structure/blocks/assigned_lines.h"
#include "staad/structure/reading.h"

#include <array>
#include <cstddef>
#include <vector>

namespace STAAD::detail {

/// Whether the item of a SUPPORTS block is about elements: its words are PLATE MAT, after a list.
bool is_plate_mat(row_words words) noexcept;

class mat_lines {
public:
    explicit mat_lines(structure_reading& context) noexcept : context_(context) {}

    void read_item(row_words& words, std::size_t statement, std::size_t row);
    /// Makes the mats. Of two lines that name an element and an axis the later counts; springs along several axes
    /// stand beside each other.
    void hand_out();

private:
    bool read_word(Structure::Mat& mat, row_words& words, std::size_t statement);
    bool read_direction(Structure::Mat& mat, row_words& words);

    structure_reading& context_;
    std::vector<Structure::Mat> lines_;
    std::array<assigned_lines, 3> elements_; // by axis of the model, then by line
};

} // namespace STAAD::detail

#endif
