/// The state of one reading: its findings, how much the lists may still hold, and the look-ups by number that
/// all blocks share.
#ifndef STAAD_READER_READING_H
#define STAAD_READER_READING_H

#include "staad/report/finding_sink.h"
#include "staad/report/id_budget.h"
#include "staad/text/lines.h"
#include "staad/text/number_lookup.h"

#include <cstddef>
#include <vector>

namespace STAAD::detail {

/// The logical lines that a block has understood. Records nothing if no report is wanted.
class used_lines {
public:
    void start(std::size_t line_count) { used_.assign(line_count, false); }
    void mark(std::size_t line)
    {
        if (line < used_.size())
            used_[line] = true;
    }
    /// Lines from `begin` on, `end` not included.
    void mark(std::size_t begin, std::size_t end)
    {
        for (; begin < end && begin < used_.size(); ++begin)
            used_[begin] = true;
    }
    bool is_used(std::size_t line) const noexcept { return line < used_.size() && used_[line]; }

private:
    std::vector<bool> used_;
};

class reading {
public:
    explicit reading(ReadReport* report) : findings(report) {}

    void start_list(line_place place) noexcept { budget.start_list(place.first, place.last); }

    finding_sink findings;
    used_lines used;
    id_budget budget;
    number_lookup joints;   ///< last joint of each number
    number_lookup members;  ///< last member of each number
    number_lookup elements; ///< last element of each number
};

} // namespace STAAD::detail

#endif
