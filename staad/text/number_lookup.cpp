#include "staad/text/number_lookup.h"

#include <algorithm>
#include <cstdint>

namespace STAAD::detail {
namespace {

// Up to this many table places per number, the table takes a third of the memory of an ordered map.
constexpr std::int64_t places_per_number = 4;
constexpr std::int64_t places_always_taken = 1024;

bool ascends(const numbered_position& a, const numbered_position& b) noexcept
{
    return a.number < b.number;
}

bool strictly_ascending(const std::vector<numbered_position>& entries) noexcept
{
    for (std::size_t i = 1; i < entries.size(); ++i)
        if (entries[i - 1].number >= entries[i].number)
            return false;
    return true;
}

/// Keeps, of neighbours with one number, the last one.
void keep_last_of_each(std::vector<numbered_position>& entries) noexcept
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (i + 1 == entries.size() || entries[i].number != entries[i + 1].number)
            entries[kept++] = entries[i];
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(kept), entries.end());
}

std::int64_t places_needed(const std::vector<numbered_position>& entries) noexcept
{
    return std::int64_t{entries.back().number} - entries.front().number + 1;
}

} // namespace

number_lookup::number_lookup(std::vector<numbered_position> entries, same_number which) : entries_(std::move(entries))
{
    for (const numbered_position& entry : entries_)
        highest_position_ = std::max(highest_position_, static_cast<std::size_t>(entry.position));
    if (!strictly_ascending(entries_)) {
        if (which == same_number::first_counts)
            std::reverse(entries_.begin(), entries_.end());
        std::stable_sort(entries_.begin(), entries_.end(), ascends);
        keep_last_of_each(entries_);
    }
    if (entries_.empty())
        return;
    const std::int64_t places = places_needed(entries_);
    if (places > places_per_number * static_cast<std::int64_t>(entries_.size()) + places_always_taken)
        return;
    origin_ = entries_.front().number;
    table_.assign(static_cast<std::size_t>(places), 0);
    for (const numbered_position& entry : entries_)
        table_[static_cast<std::size_t>(entry.number - origin_)] = entry.position;
}

int number_lookup::searched_position(int number) const noexcept
{
    const std::size_t i = lower_bound(number);
    return i < entries_.size() && entries_[i].number == number ? entries_[i].position : 0;
}

void number_lookup::fill(std::map<int, int>& index) const
{
    for (const numbered_position& entry : entries_)
        index.emplace_hint(index.end(), entry.number, entry.position);
}

bool number_lookup::knows_any_in(int first, int last) const noexcept
{
    if (position(first) != 0 || position(last) != 0)
        return true;
    const std::size_t i = lower_bound(first);
    return i < entries_.size() && entries_[i].number <= last;
}

std::size_t number_lookup::lower_bound(int number) const noexcept
{
    const auto found = std::lower_bound(entries_.begin(), entries_.end(), numbered_position{number, 0}, ascends);
    return static_cast<std::size_t>(found - entries_.begin());
}

std::size_t number_lookup::upper_bound(int number) const noexcept
{
    const auto found = std::upper_bound(entries_.begin(), entries_.end(), numbered_position{number, 0}, ascends);
    return static_cast<std::size_t>(found - entries_.begin());
}

} // namespace STAAD::detail
