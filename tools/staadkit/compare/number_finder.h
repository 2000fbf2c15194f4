/// From numbers to the places where they stand in a list.
#ifndef TOOLS_STAADKIT_COMPARE_NUMBER_FINDER_H
#define TOOLS_STAADKIT_COMPARE_NUMBER_FINDER_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tool {

class number_finder {
public:
    explicit number_finder(const std::vector<std::int64_t>& numbers)
    {
        entries_.reserve(numbers.size());
        for (const std::int64_t number : numbers)
            entries_.emplace_back(number, static_cast<int>(entries_.size()) + 1);
        std::sort(entries_.begin(), entries_.end());
    }

    /// 1-based position of the first one of that number, 0 if there is none.
    int first(std::int64_t number) const { return behind_first(number, 0); }

    /// Of the one so many behind the first, 0 if there are fewer.
    int behind_first(std::int64_t number, int count) const
    {
        const auto entry = std::lower_bound(entries_.begin(), entries_.end(), std::pair(number, 0));
        if (entries_.end() - entry <= count)
            return 0;
        return entry[count].first != number ? 0 : entry[count].second;
    }

private:
    std::vector<std::pair<std::int64_t, int>> entries_;
};

/// The numbers of records in the order of the list.
template<class Record>
std::vector<std::int64_t> numbers_of(const std::vector<Record>& records)
{
    std::vector<std::int64_t> numbers;
    numbers.reserve(records.size());
    for (const Record& record : records)
        numbers.push_back(record.id);
    return numbers;
}

} // namespace tool

#endif
