/// Values that lists give to records, the last list winning. Knows no model.
#ifndef STAAD_READER_BLOCKS_LAST_ASSIGNMENTS_H
#define STAAD_READER_BLOCKS_LAST_ASSIGNMENTS_H

#include "staad/reader/blocks/noted_runs.h"
#include "staad/text/number_lookup.h"

#include <cstddef>
#include <cstdint>
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

    /// Calls `assign(index, value)` once for every record that a run names, in the order of the list;
    /// `index` counts from 0.
    template<class Assign>
    void hand_out(Assign assign) const
    {
        const std::vector<std::int64_t> values = values_by_index();
        for (std::size_t i = 0; i < values.size(); ++i)
            if (values[i] != no_value)
                assign(i, static_cast<int>(values[i]));
    }

private:
    static constexpr std::int64_t no_value = std::int64_t{1} << 32; // no int

    std::vector<std::int64_t> values_by_index() const
    {
        std::vector<std::int64_t> values(runs_.empty() ? 0 : numbers_.highest_position(), no_value);
        const auto give = [&](int position, int value) {
            std::int64_t& place = values[static_cast<std::size_t>(position) - 1];
            if (place == no_value)
                place = value;
        };
        std::vector<std::uint32_t> next; // for every entry the first one from there on that may lack a value
        runs_.for_each_backwards([&](int value, const id_run& run) {
            if (!run.is_range) {
                give(numbers_.position(run.first), value);
                return;
            }
            if (next.empty()) {
                next.resize(numbers_.entries().size() + 1);
                std::iota(next.begin(), next.end(), std::uint32_t{0});
            }
            const std::size_t end = numbers_.upper_bound(run.last);
            for (std::size_t i = first_free(next, numbers_.lower_bound(run.first)); i < end; i = first_free(next, i)) {
                give(numbers_.entries()[i].position, value);
                next[i] = static_cast<std::uint32_t>(i + 1);
            }
        });
        return values;
    }

    /// Follows `next` to its end and shortens the way for those who come after.
    static std::size_t first_free(std::vector<std::uint32_t>& next, std::size_t i) noexcept
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
