/// What lists give to records, where a later line replaces an earlier one.
#ifndef STAAD_STRUCTURE_ASSIGNMENTS_H
#define STAAD_STRUCTURE_ASSIGNMENTS_H

#include "staad/structure/structure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

namespace STAAD::detail {

/// Gathers "this value to the records of these ranges", line by line, and hands the values out from the last line
/// to the first, passing over what has one already. Each record is written once, so that a hundred thousand lines
/// that each name all members cost no more than their text.
template<class Value>
class line_assignments {
public:
    /// `ranges`: positions, as a list has them. Lines in the order of the text.
    void add(const std::vector<Structure::Range>& ranges, Value value, Structure::Source source)
    {
        if (ranges.empty())
            return;
        ranges_.insert(ranges_.end(), ranges.begin(), ranges.end());
        lines_.push_back({std::move(value), source, ranges_.size()});
    }

    bool empty() const noexcept { return lines_.empty(); }

    /// Calls `assign(position, value, source)` once for every record that a line names, of `record_count` records.
    template<class Assign>
    void hand_out(std::size_t record_count, Assign assign) const
    {
        if (lines_.empty())
            return;
        std::vector<std::uint32_t> next(record_count + 1); // the first position from here on that has no value yet
        std::iota(next.begin(), next.end(), std::uint32_t{0});
        for (std::size_t i = lines_.size(); i-- > 0;)
            for (std::size_t r = i == 0 ? 0 : lines_[i - 1].past_range; r < lines_[i].past_range; ++r) {
                const std::size_t past = std::min(static_cast<std::size_t>(ranges_[r].last) + 1, record_count);
                for (std::size_t at = first_free(next, static_cast<std::size_t>(ranges_[r].first)); at < past;
                     at = first_free(next, at)) {
                    assign(at, lines_[i].value, lines_[i].source);
                    next[at] = static_cast<std::uint32_t>(at + 1);
                }
            }
    }

private:
    struct line {
        Value value;
        Structure::Source source;
        std::size_t past_range; // one past its last in ranges_
    };

    /// Follows `next` to its end and shortens the way for later calls.
    static std::size_t first_free(std::vector<std::uint32_t>& next, std::size_t at) noexcept
    {
        while (next[at] != at) {
            next[at] = next[next[at]];
            at = next[at];
        }
        return at;
    }

    std::vector<line> lines_;
    std::vector<Structure::Range> ranges_;
};

} // namespace STAAD::detail

#endif
