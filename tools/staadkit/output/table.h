/// Rows of cells as lines of text.
#ifndef TOOLS_STAADKIT_OUTPUT_TABLE_H
#define TOOLS_STAADKIT_OUTPUT_TABLE_H

#include "output/std_output.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// A text of a file as a cell: printable, cut if it is long; `instead` if it is empty.
std::string cell_text(std::string_view text, const char* instead);

enum class align { left, right };

/// Cells of printable UTF-8, columns aligned, lines indented by two.
///
/// On a terminal lines do not wrap: the widest texts are cut, "..." at their end. Columns to the right hold
/// numbers, which are never cut. Elsewhere nothing is cut: a column is as wide as its widest cell, up to a
/// bound, so that one long text does not pad every other line; a cell beyond the bound pushes the rest of its
/// own line to the right.
class table {
public:
    table() = default;
    /// `columns` aligns the first columns; further ones are aligned to the left.
    explicit table(std::vector<align> columns);

    /// A row above all others, with the names of the columns or their units.
    void add_heading(std::vector<std::string> cells);
    void add_row(std::vector<std::string> cells);
    /// The number of rows, headings apart.
    std::size_t size() const noexcept { return rows_.size() - headings_; }
    void put(std_output& out) const;

private:
    bool is_to_the_right(std::size_t column) const;
    std::vector<std::size_t> widths_within(std::size_t room) const;

    std::vector<align> columns_;
    std::vector<std::vector<std::string>> rows_;
    std::vector<std::size_t> widths_; ///< of the widest cells
    std::size_t headings_ = 0;
};

} // namespace tool

#endif
