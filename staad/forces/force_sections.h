/// Finds the sections of beam forces in a listing, and walks their lines. Knows no model.
#ifndef STAAD_FORCES_FORCE_SECTIONS_H
#define STAAD_FORCES_FORCE_SECTIONS_H

#include "staad/text/lines.h"

#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {

/// A section's title line, and the walk that goes on after it.
struct force_section {
    line_place title;
    line_cursor after;
};

/// The sections of a listing in file order: those under the title of element forces if it has one, else
/// those under the title of member forces.
std::vector<force_section> find_force_sections(std::string_view listing);

/// Walks one section: heading, units, data.
class section_lines {
public:
    explicit section_lines(const force_section& section) : cursor_(section.after) { read_heading(); }

    /// False for a section that ends before its unit line.
    bool has_units() const noexcept { return state_ == state::data; }
    const text_line& unit_line() const noexcept { return unit_line_; }

    /// Takes the next data line; false at the section's end.
    bool next(text_line& line) noexcept;

    /// Valid at the section's end: the text ended too, without the empty line that closes a section.
    bool ended_with_the_text() const noexcept { return at_end_of_text_; }

private:
    enum class state { heading, units, data, outside };

    void read_heading() noexcept;

    line_cursor cursor_;
    state state_ = state::heading;
    text_line unit_line_;
    bool at_end_of_text_ = false;
};

/// "UNIT length force moment" of a section's unit line: its first, second and last word without the
/// brackets around them.
std::string force_unit_text(std::string_view unit_line);

} // namespace STAAD::detail

#endif
