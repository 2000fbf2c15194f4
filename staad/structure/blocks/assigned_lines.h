/// Which line gives what to which record, in the order of the text.
#ifndef STAAD_STRUCTURE_BLOCKS_ASSIGNED_LINES_H
#define STAAD_STRUCTURE_BLOCKS_ASSIGNED_LINES_H

#include "staad/structure/assignments.h"
#include "staad/structure/structure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <vector>

namespace STAAD::detail {

/// A record with the line that counts for it.
struct assigned_line {
    std::uint32_t line = 0;  ///< as handed to assigned_lines::add()
    std::uint32_t range = 0; ///< of the list of that line
    int position = 0;        ///< of the record

    friend bool operator<(const assigned_line& a, const assigned_line& b) noexcept
    {
        return std::tie(a.line, a.range, a.position) < std::tie(b.line, b.range, b.position);
    }
};

/// Lists of lines of which the last counts, for records that are kept in the order of the text, one each.
class assigned_lines {
public:
    /// `line` rises from call to call.
    void add(const std::vector<Structure::Range>& ranges, std::size_t line)
    {
        for (std::uint32_t range = 0; range < ranges.size(); ++range) {
            one_.assign(1, ranges[range]);
            lines_.add(one_, {static_cast<std::uint32_t>(line), range, 0}, 0);
        }
    }

    /// One entry for each of `record_count` records that a list names, by line and place in its list.
    std::vector<assigned_line> in_text_order(std::size_t record_count) const
    {
        std::vector<assigned_line> found;
        lines_.hand_out(record_count, [&found](std::size_t position, assigned_line line, Structure::Source) {
            line.position = static_cast<int>(position);
            found.push_back(line);
        });
        std::sort(found.begin(), found.end());
        return found;
    }

private:
    line_assignments<assigned_line> lines_;
    std::vector<Structure::Range> one_;
};

} // namespace STAAD::detail

#endif
