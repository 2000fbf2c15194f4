/// Lists of numbers that give a value to records: kept as ranges while a block is read, assigned at its end.
#ifndef STAAD_READER_BLOCKS_ASSIGNMENTS_H
#define STAAD_READER_BLOCKS_ASSIGNMENTS_H

#include "staad/reader/findings.h"
#include "staad/text/id_list.h"
#include "staad/text/number_lookup.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <string_view>
#include <vector>

namespace STAAD::detail {

/// Lists as they were read, each with a value. One int for a number that stands alone, two for a range: lists
/// make up most of a large deck.
class listed_values {
public:
    void add(int value, const id_range& range)
    {
        if (values_.empty() || values_.back().value != value)
            values_.push_back({value, words_.size()});
        words_.push_back(range.is_range ? -range.first : range.first);
        if (range.is_range)
            words_.push_back(range.last);
    }

    void clear() noexcept
    {
        values_.clear();
        words_.clear();
    }

    bool empty() const noexcept { return values_.empty(); }

    /// Calls `visit(value, range)` in the order of reading.
    template<class Visit>
    void for_each(Visit visit) const
    {
        for (std::size_t v = 0; v < values_.size(); ++v)
            for (std::size_t i = values_[v].begin; i < end_of(v); ++i) {
                const int first = std::abs(words_[i]);
                const bool is_range = words_[i] < 0;
                visit(values_[v].value, id_range{first, is_range ? words_[++i] : first, is_range});
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
                visit(values_[v].value, id_range{first, last, is_range});
            }
    }

private:
    struct value_start {
        int value;
        std::size_t begin; ///< its ranges begin here in words_
    };

    std::size_t end_of(std::size_t v) const noexcept
    {
        return v + 1 < values_.size() ? values_[v + 1].begin : words_.size();
    }

    std::vector<value_start> values_;
    std::vector<int> words_; // a number alone as it is, a range as -first and last
};

/// Gathers "value v to the records of this range" and assigns the values from the last line to the first,
/// skipping records that have one already. Every record is visited once, so that thousands of lines that each
/// name all members cost no more than their text.
class last_assignments {
public:
    explicit last_assignments(const number_lookup& numbers) : numbers_(numbers) {}

    /// Keeps the range if it names any record; false if it names none.
    bool add(int value, const id_range& range)
    {
        const bool names_any = numbers_.knows_any_in(range.first, range.last);
        if (names_any)
            lists_.add(value, range);
        return names_any;
    }

    /// Forgets what was gathered.
    void clear() noexcept { lists_.clear(); }

    /// Calls `assign(index, value)` once for every record that a range names, in the order of the list;
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
        std::vector<std::int64_t> values(lists_.empty() ? 0 : numbers_.highest_position(), no_value);
        const auto give = [&](int position, int value) {
            std::int64_t& place = values[static_cast<std::size_t>(position) - 1];
            if (place == no_value)
                place = value;
        };
        std::vector<std::uint32_t> next; // for every entry the first one, itself or later, that may lack a value
        lists_.for_each_backwards([&](int value, const id_range& range) {
            if (!range.is_range) {
                give(numbers_.position(range.first), value);
                return;
            }
            if (next.empty()) {
                next.resize(numbers_.entries().size() + 1);
                std::iota(next.begin(), next.end(), std::uint32_t{0});
            }
            const std::size_t end = numbers_.upper_bound(range.last);
            for (std::size_t i = first_free(next, numbers_.lower_bound(range.first)); i < end;
                 i = first_free(next, i)) {
                give(numbers_.entries()[i].position, value);
                next[i] = static_cast<std::uint32_t>(i + 1);
            }
        });
        return values;
    }

    /// Follows `next` to its end and shortens the chain for later calls.
    static std::size_t first_free(std::vector<std::uint32_t>& next, std::size_t i) noexcept
    {
        while (next[i] != i) {
            next[i] = next[next[i]];
            i = next[i];
        }
        return i;
    }

    const number_lookup& numbers_;
    listed_values lists_;
};

/// How a walk over a list ended.
struct list_end {
    bool found_any = false;      ///< a record has a number of the list
    std::string_view stopped_at; ///< first word after the list; empty at the end of the line
};

/// Calls `take(range)` for every range of the list; `take` returns whether any record has a number of the
/// range.
template<class Take>
list_end walk_list(word_cursor list, const id_list_rule& rule, Take take)
{
    list_end end;
    id_list_walker walker(list, rule);
    for (id_range range; walker.next(range);)
        end.found_any = take(range) || end.found_any;
    word_cursor after = walker.after_list();
    end.stopped_at = after.next_or_empty();
    return end;
}

/// Gives `value` to the records that the list names, and calls `miss(number)` for every single number that no
/// record has.
template<class Miss>
list_end assign_to_list(last_assignments& assignments, int value, word_cursor list, Miss miss)
{
    return walk_list(list, general_id_list, [&](const id_range& range) {
        const bool found = assignments.add(value, range);
        if (!found && !range.is_range)
            miss(range.first);
        return found;
    });
}

/// Reports a list of which no record exists, and one that ended at a word that does not belong to such a line.
/// `what` names the value: "section", "beta angle".
inline void check_list_end(std::string_view what, const list_end& end, bool ended_well, const text_line& line,
                           reading& context)
{
    if (!end.found_any)
        report_no_effect(what, line, context);
    if (!ended_well)
        report_list_stopped(end.stopped_at, line, context);
}

} // namespace STAAD::detail

#endif
