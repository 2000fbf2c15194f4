/// From ranges of positions to the numbers that the deck has for them.
#ifndef TOOLS_STAADKIT_DUMP_NUMBER_RUNS_H
#define TOOLS_STAADKIT_DUMP_NUMBER_RUNS_H

#include "staad/structure/structure.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <vector>

namespace tool {

/// Numbers as [first, last], all from first to last.
using run_list_of_numbers = std::vector<std::array<int, 2>>;

/// Where numbers rise by one from record to record, so that a range of a million is one step.
class number_runs {
public:
    template<class Record>
    explicit number_runs(const std::vector<Record>& records)
    {
        numbers_.reserve(records.size());
        for (const Record& record : records)
            numbers_.push_back(record.number);
        last_.resize(numbers_.size());
        for (std::size_t i = numbers_.size(); i-- > 0;)
            last_[i] = i + 1 < numbers_.size() && follows(numbers_[i], numbers_[i + 1]) ? last_[i + 1] : i;
    }

    /// The numbers of the records at positions, in the order of the ranges. Cost: linear in the result.
    run_list_of_numbers of(const std::vector<STAAD::Structure::Range>& ranges) const
    {
        run_list_of_numbers runs;
        for (const STAAD::Structure::Range& range : ranges) {
            const std::size_t past = static_cast<std::size_t>(range.last) + 1;
            for (auto i = static_cast<std::size_t>(range.first); i < past && i < numbers_.size();) {
                const std::size_t last = std::min(last_[i], past - 1);
                add(runs, numbers_[i], numbers_[last]);
                i = last + 1;
            }
        }
        return runs;
    }

private:
    static bool follows(int number, int next) noexcept
    {
        return number != std::numeric_limits<int>::max() && number + 1 == next;
    }
    static void add(run_list_of_numbers& runs, int first, int last)
    {
        if (!runs.empty() && follows(runs.back()[1], first))
            runs.back()[1] = last;
        else
            runs.push_back({first, last});
    }

    std::vector<int> numbers_;
    std::vector<std::size_t> last_; ///< of the run that a position is in
};

} // namespace tool

#endif
