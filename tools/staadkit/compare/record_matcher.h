/// Which joints, members or shells of two models are the same.
#ifndef TOOLS_STAADKIT_COMPARE_RECORD_MATCHER_H
#define TOOLS_STAADKIT_COMPARE_RECORD_MATCHER_H

#include "compare/number_finder.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace tool {

/// Positions by positions, both from 1; 0 for none.
class position_map {
public:
    explicit position_map(std::size_t size) : entries_(size + 1, 0) {}
    position_map(const std::map<int, int>& entries, std::size_t size) : position_map(size)
    {
        for (const auto& [from, to] : entries)
            (*this)[from] = to;
    }

    int size() const noexcept { return static_cast<int>(entries_.size()) - 1; }
    int operator[](int position) const { return entries_[static_cast<std::size_t>(position)]; }
    int& operator[](int position) { return entries_[static_cast<std::size_t>(position)]; }

private:
    std::vector<int> entries_; // the first is no position's
};

/// The records of one list of a model.
struct record_list {
    std::vector<std::int64_t> numbers;
    position_map like; ///< the first one of the list at the same place; none: it has no place

    std::int64_t number(int position) const { return numbers[static_cast<std::size_t>(position) - 1]; }
};

/// From the records of a model to those of an earlier one and back.
struct record_pairs {
    record_pairs(const record_list& now, const record_list& earlier)
        : old_of_new(now.numbers.size()), new_of_old(earlier.numbers.size()), moved_of_new(now.numbers.size()),
          moved_of_old(earlier.numbers.size())
    {
    }

    position_map old_of_new;   ///< the same
    position_map new_of_old;   ///< the inverse
    position_map moved_of_new; ///< of the same number at another place
    position_map moved_of_old; ///< the inverse
};

namespace detail {

inline void join(record_pairs& pairs, int position, int old)
{
    pairs.old_of_new[position] = old;
    pairs.new_of_old[old] = position;
}

void join_by_place(record_pairs& pairs, const record_list& now, const record_list& earlier,
                   const position_map& place_of_new, const number_finder& old_numbers);

/// Finds by number what is left of the earlier records.
class rest_finder {
public:
    rest_finder(const record_pairs& pairs, const number_finder& old_numbers, int old_count)
        : pairs_(pairs), old_numbers_(old_numbers), used_up_(static_cast<std::size_t>(old_count))
    {
    }

    /// The first one left of that number, 0 if there is none.
    int first(std::int64_t number)
    {
        const int first = old_numbers_.first(number);
        if (first == 0)
            return 0;
        int& used_up = used_up_[first]; // what is taken stays so
        int old = old_numbers_.behind_first(number, used_up);
        while (old != 0 && (pairs_.new_of_old[old] != 0 || pairs_.moved_of_old[old] != 0))
            old = old_numbers_.behind_first(number, ++used_up);
        return old;
    }

private:
    const record_pairs& pairs_;
    const number_finder& old_numbers_;
    position_map used_up_; // by the first of each number: how many of it are taken
};

} // namespace detail

/// What stands at one place is the same, as long as there are as many of it; numbers decide who is who.
/// `place_of_new`: the first earlier record at the place of each new one.
///
/// What has no place, for want of a joint, goes by its number: `is_same(new, old)` tells whether two such are
/// the same. Others that are left over and have one number have been moved.
template<class IsSame>
record_pairs match(const record_list& now, const record_list& earlier, const position_map& place_of_new, IsSame is_same)
{
    const number_finder old_numbers(earlier.numbers);
    record_pairs pairs(now, earlier);
    detail::join_by_place(pairs, now, earlier, place_of_new, old_numbers);
    detail::rest_finder rest(pairs, old_numbers, earlier.like.size());
    for (int position = 1; position <= now.like.size(); ++position) {
        const int old = pairs.old_of_new[position] == 0 ? rest.first(now.number(position)) : 0;
        if (old == 0)
            continue;
        if (now.like[position] == 0 && earlier.like[old] == 0 && is_same(position, old)) {
            detail::join(pairs, position, old);
        } else {
            pairs.moved_of_new[position] = old;
            pairs.moved_of_old[old] = position;
        }
    }
    return pairs;
}

} // namespace tool

#endif
