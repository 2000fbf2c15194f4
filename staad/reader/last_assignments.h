/// Values that lists give to records, the last list winning. Knows no model.
#ifndef STAAD_READER_LAST_ASSIGNMENTS_H
#define STAAD_READER_LAST_ASSIGNMENTS_H

#include "staad/reader/noted_runs.h"
#include "staad/units/number_lookup.h"

#include <cstddef>
#include <numeric>
#include <vector>

namespace STAAD::detail {

/// Gathers "value v to the records of this run" and hands the values out from the last line to the
/// first, passing over what has one already. Every record is visited once, so that thousands of lines
/// that each name all members cost no more than their text.
class last_assignments {
public:
    explicit last_assignments(const number_lookup& numbers) : numbers_(numbers) {}

    /// Notes the run if it names any record; false if it names none.
    bool add(int value, const id_run& run)
    {
        const bool names_any = numbers_.knows_any_in(run.first, run.last);
        if (names_any)
            runs_.add(value, run);
        return names_any;
    }

    /// Forgets what was gathered.
    void clear() noexcept { runs_.clear(); }

    /// Calls `assign(numbered_position, value)` once for every record that a run names.
    template<class Assign>
    void hand_out(Assign assign) const
    {
        std::vector<std::size_t> next; // for every entry the first one from there on that may lack a value
        std::vector<bool> has_value(numbers_.highest_position() + 1, false);
        const auto give = [&](const numbered_position& entry, int value) {
            const auto position = static_cast<std::size_t>(entry.position);
            if (!has_value[position])
                assign(entry, value);
            has_value[position] = true;
        };
        runs_.for_each_backwards([&](int value, const id_run& run) {
            if (!run.is_range) {
                give({run.first, numbers_.position(run.first)}, value);
                return;
            }
            if (next.empty()) {
                next.resize(numbers_.entries().size() + 1);
                std::iota(next.begin(), next.end(), std::size_t{0});
            }
            const std::size_t end = numbers_.upper_bound(run.last);
            for (std::size_t i = first_free(next, numbers_.lower_bound(run.first)); i < end; i = first_free(next, i)) {
                give(numbers_.entries()[i], value);
                next[i] = i + 1;
            }
        });
    }

private:
    /// Follows `next` to its end and shortens the way for those who come after.
    static std::size_t first_free(std::vector<std::size_t>& next, std::size_t i) noexcept
    {
        while (next[i] != i) {
            next[i] = next[next[i]];
            i = next[i];
        }
        return i;
    }

    const number_lookup& numbers_;
    noted_runs runs_;
};

} // namespace STAAD::detail

#endif
