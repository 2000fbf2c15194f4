/// Numbers of the file to positions from 0, one at a time or whole ranges.
#ifndef STAAD_STRUCTURE_RECORD_LOOKUP_H
#define STAAD_STRUCTURE_RECORD_LOOKUP_H

#include "staad/structure/structure.h"
#include "staad/text/number_lookup.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace STAAD::detail {

/// Built once from records with a `number`, no two the same. A range of numbers is answered by ranges of
/// positions, in a time that goes by their count and not by that of the records: where numbers rise with
/// positions, as they do in nearly every deck, that is one.
class record_lookup {
public:
    record_lookup() = default;
    template<class Records>
    explicit record_lookup(const Records& records)
    {
        std::vector<numbered_position> entries;
        entries.reserve(records.size());
        for (const auto& record : records)
            entries.push_back({record.number, static_cast<int>(entries.size()) + 1});
        lookup_ = number_lookup(std::move(entries), same_number::last_counts);
        find_runs();
    }

    /// Position of a number; -1 if no record has it.
    int position(int number) const noexcept { return lookup_.position(number) - 1; }

    /// Calls `visit(Structure::Range)` for the positions of the numbers from `first` to `last`, ascending.
    /// Returns whether there were any.
    template<class Visit>
    bool ranges(int first, int last, Visit visit) const
    {
        const std::size_t begin = lookup_.lower_bound(first);
        const std::size_t end = lookup_.upper_bound(last);
        for (std::size_t i = begin; i < end; i = run_end_[i]) {
            const std::size_t past = std::min<std::size_t>(run_end_[i], end);
            visit(Structure::Range{lookup_.entries()[i].position - 1, lookup_.entries()[past - 1].position - 1});
        }
        return begin < end;
    }

private:
    /// Entries whose positions follow each other.
    void find_runs()
    {
        const auto& entries = lookup_.entries();
        run_end_.resize(entries.size());
        for (std::size_t i = entries.size(); i-- > 0;) {
            const bool goes_on = i + 1 < entries.size() && entries[i + 1].position == entries[i].position + 1;
            run_end_[i] = goes_on ? run_end_[i + 1] : static_cast<std::uint32_t>(i + 1);
        }
    }

    number_lookup lookup_;
    std::vector<std::uint32_t> run_end_; // by entry: one past the last of its run
};

} // namespace STAAD::detail

#endif
