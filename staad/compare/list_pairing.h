/// Pairs the records of one list of two models.
#ifndef STAAD_COMPARE_LIST_PAIRING_H
#define STAAD_COMPARE_LIST_PAIRING_H

#include "staad/compare/pairs.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace STAAD::detail {

inline std::size_t index_of(int position)
{
    return static_cast<std::size_t>(position) - 1;
}

/// The records of one list of a model.
struct record_list {
    std::vector<std::int64_t> numbers;
    std::vector<int> places; ///< by record the position of the first one at its place; 0: it has no place
};

/// Finds records of a list by number.
class record_finder {
public:
    explicit record_finder(const std::vector<std::int64_t>& numbers) : passed_(numbers.size())
    {
        entries_.reserve(numbers.size());
        for (const std::int64_t number : numbers)
            entries_.emplace_back(number, static_cast<int>(entries_.size()) + 1);
        std::sort(entries_.begin(), entries_.end());
    }

    /// Position of the first record with this number, 0 if no record has it.
    int first(std::int64_t number) const { return position(number, first_entry(number)); }

    /// Position of the first record with this number that `is_free`. A record once found taken must stay so.
    template<class IsFree>
    int first_free(std::int64_t number, IsFree is_free)
    {
        const std::size_t first = first_entry(number);
        if (position(number, first) == 0)
            return 0;
        std::size_t& passed = passed_[first];
        int found = position(number, first + passed);
        while (found != 0 && !is_free(found))
            found = position(number, first + ++passed);
        return found;
    }

private:
    std::size_t first_entry(std::int64_t number) const
    {
        const auto entry = std::lower_bound(entries_.begin(), entries_.end(), std::pair(number, 0));
        return static_cast<std::size_t>(entry - entries_.begin());
    }
    int position(std::int64_t number, std::size_t entry) const
    {
        return entry < entries_.size() && entries_[entry].first == number ? entries_[entry].second : 0;
    }

    std::vector<std::pair<std::int64_t, int>> entries_;
    std::vector<std::size_t> passed_; // by the first entry of each number: how many of it are taken
};

/// Pairs the records of one list.
class list_pairing {
public:
    /// `place_in_old`: by record of `now` the first earlier record at its place.
    list_pairing(const record_list& now, const record_list& earlier, const std::vector<int>& place_in_old)
        : now_(now), earlier_(earlier), place_in_old_(place_in_old), old_records_(earlier.numbers)
    {
        pairs_.old_of_new.resize(now.numbers.size());
        pairs_.moved_of_new.resize(now.numbers.size());
        pairs_.new_of_old.resize(earlier.numbers.size());
        pairs_.moved_of_old.resize(earlier.numbers.size());
    }

    /// `is_same(new, old)` is asked of the positions of records of one number that have no place.
    template<class IsSame>
    Pairs pair(IsSame is_same)
    {
        join_by_place_and_number();
        join_by_place();
        join_by_number(is_same);
        return std::move(pairs_);
    }

private:
    void join(std::size_t index, int old)
    {
        pairs_.old_of_new[index] = old;
        pairs_.new_of_old[index_of(old)] = static_cast<int>(index) + 1;
    }

    void join_by_place_and_number()
    {
        for (std::size_t i = 0; i < place_in_old_.size(); ++i) {
            const int place = place_in_old_[i];
            const int old = place != 0 ? old_records_.first(now_.numbers[i]) : 0;
            if (old != 0 && earlier_.places[index_of(old)] == place && pairs_.new_of_old[index_of(old)] == 0)
                join(i, old);
        }
    }

    /// What is left at one place in both models, in list order.
    void join_by_place()
    {
        std::vector<int> first_at(earlier_.numbers.size()); // by index of the place
        std::vector<int> next_of(earlier_.numbers.size());
        for (int old = static_cast<int>(earlier_.places.size()); old > 0; --old) {
            const int place = earlier_.places[index_of(old)];
            if (place != 0 && pairs_.new_of_old[index_of(old)] == 0)
                next_of[index_of(old)] = std::exchange(first_at[index_of(place)], old);
        }
        for (std::size_t i = 0; i < place_in_old_.size(); ++i) {
            const int place = place_in_old_[i];
            if (place == 0 || pairs_.old_of_new[i] != 0)
                continue;
            int& first = first_at[index_of(place)];
            if (const int old = first; old != 0) {
                first = next_of[index_of(old)];
                join(i, old);
            }
        }
    }

    template<class IsSame>
    void join_by_number(IsSame is_same)
    {
        const auto is_free = [this](int old) {
            return pairs_.new_of_old[index_of(old)] == 0 && pairs_.moved_of_old[index_of(old)] == 0;
        };
        for (std::size_t i = 0; i < now_.numbers.size(); ++i) {
            const int old = pairs_.old_of_new[i] == 0 ? old_records_.first_free(now_.numbers[i], is_free) : 0;
            if (old == 0)
                continue;
            const int position = static_cast<int>(i) + 1;
            if (now_.places[i] == 0 && earlier_.places[index_of(old)] == 0 && is_same(position, old)) {
                join(i, old);
            } else {
                pairs_.moved_of_new[i] = old;
                pairs_.moved_of_old[index_of(old)] = position;
            }
        }
    }

    const record_list& now_;
    const record_list& earlier_;
    const std::vector<int>& place_in_old_;
    record_finder old_records_;
    Pairs pairs_;
};

} // namespace STAAD::detail

#endif
