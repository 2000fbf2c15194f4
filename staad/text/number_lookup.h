/// Numbers of the file to 1-based positions, for many look-ups. Knows no model.
#ifndef STAAD_TEXT_NUMBER_LOOKUP_H
#define STAAD_TEXT_NUMBER_LOOKUP_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

namespace STAAD::detail {

/// A number of the file and a 1-based position in a list of the model.
struct numbered_position {
    int number;
    int position;
};

/// Which of several records with the same number counts.
enum class same_number { first_counts, last_counts };

/// Built once from a list of records, then asked often: a table if the numbers lie close together, as they do
/// in nearly every file, else a binary search.
class number_lookup {
public:
    number_lookup() = default;
    /// `entries` in the order of the list; positions are above 0.
    number_lookup(std::vector<numbered_position> entries, same_number which);

    /// From records with an `id`, in list order.
    template<class Records>
    static number_lookup of(const Records& records, same_number which)
    {
        std::vector<numbered_position> entries;
        entries.reserve(records.size());
        for (const auto& record : records)
            entries.push_back({record.id, static_cast<int>(entries.size()) + 1});
        return {std::move(entries), which};
    }

    /// Position of `number`, 0 if no record has it.
    int position(int number) const noexcept
    {
        if (table_.empty())
            return searched_position(number);
        const std::int64_t place = number - origin_;
        return place >= 0 && place < std::ssize(table_) ? table_[static_cast<std::size_t>(place)] : 0;
    }
    /// Whether any record has a number from `first` to `last`.
    bool knows_any_in(int first, int last) const noexcept;

    /// Calls `visit(numbered_position)` for every known number from `first` to `last`, ascending.
    template<class Visit>
    void for_each_in(int first, int last, Visit visit) const
    {
        // A short range is looked up number by number; a long one could be mostly gaps.
        if (!table_.empty() && std::int64_t{last} - first < short_run) {
            const std::int64_t end = std::min<std::int64_t>(last - origin_ + 1, std::ssize(table_));
            for (std::int64_t i = std::max<std::int64_t>(first - origin_, 0); i < end; ++i)
                if (const int found = table_[static_cast<std::size_t>(i)])
                    visit(numbered_position{static_cast<int>(origin_ + i), found});
            return;
        }
        const std::size_t end = upper_bound(last);
        for (std::size_t i = lower_bound(first); i < end; ++i)
            visit(entries_[i]);
    }

    /// Every known number once, ascending.
    const std::vector<numbered_position>& entries() const noexcept { return entries_; }
    /// First entry whose number is not below `number`.
    std::size_t lower_bound(int number) const noexcept;
    /// First entry whose number is above `number`.
    std::size_t upper_bound(int number) const noexcept;
    /// No entry has a higher position.
    std::size_t highest_position() const noexcept { return highest_position_; }

    /// Fills an empty index with every number.
    void fill(std::map<int, int>& index) const;

private:
    static constexpr std::int64_t short_run = 256;

    int searched_position(int number) const noexcept;

    std::vector<numbered_position> entries_;
    std::size_t highest_position_ = 0;
    std::vector<int> table_;  // position by number - origin_; empty: search
    std::int64_t origin_ = 0; // number of the table's first place
};

} // namespace STAAD::detail

#endif
