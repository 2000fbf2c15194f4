/// Lists kept for later, run by run, each under a value. Knows no model.
#ifndef STAAD_READER_BLOCKS_NOTED_RUNS_H
#define STAAD_READER_BLOCKS_NOTED_RUNS_H

#include "staad/text/id_list.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace STAAD::detail {

/// One int for a number that stands alone, two for a range: lists make up most of a large deck.
class noted_runs {
public:
    void add(int value, const id_run& run)
    {
        if (values_.empty() || values_.back().value != value)
            values_.push_back({value, words_.size()});
        words_.push_back(run.is_range ? -run.first : run.first);
        if (run.is_range)
            words_.push_back(run.last);
    }

    void clear() noexcept
    {
        values_.clear();
        words_.clear();
    }

    bool empty() const noexcept { return values_.empty(); }

    /// Calls `visit(value, run)` in the order of noting.
    template<class Visit>
    void for_each(Visit visit) const
    {
        for (std::size_t v = 0; v < values_.size(); ++v)
            for (std::size_t i = values_[v].begin; i < end_of(v); ++i) {
                const int first = std::abs(words_[i]);
                const bool is_range = words_[i] < 0;
                visit(values_[v].value, id_run{first, is_range ? words_[++i] : first, is_range});
            }
    }

    /// The same from the last to the first.
    template<class Visit>
    void for_each_backwards(Visit visit) const
    {
        for (std::size_t v = values_.size(); v-- > 0;)
            for (std::size_t i = end_of(v); i > values_[v].begin; --i) {
                const int last = words_[i - 1];
                const bool is_range = i >= 2 && words_[i - 2] < 0;
                const int first = is_range ? -words_[i - 2] : last;
                i -= is_range ? 1 : 0;
                visit(values_[v].value, id_run{first, last, is_range});
            }
    }

private:
    struct noted_value {
        int value;
        std::size_t begin; ///< its runs begin here in words_
    };

    std::size_t end_of(std::size_t v) const noexcept
    {
        return v + 1 < values_.size() ? values_[v + 1].begin : words_.size();
    }

    std::vector<noted_value> values_;
    std::vector<int> words_; // a number alone as it is, a range as -first and last
};

} // namespace STAAD::detail

#endif
