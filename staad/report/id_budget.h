/// How many numbers and long texts the lists of one reading may still hold.
#ifndef STAAD_REPORT_ID_BUDGET_H
#define STAAD_REPORT_ID_BUDGET_H

#include "staad/report/read_limit.h"
#include "staad/text/id_list.h"

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace STAAD::detail {

/// Counts the numbers in the stored lists of one reading, and the long texts that it gives to records, and
/// throws ReadLimitError before one list or all together pass their limit.
class id_budget {
public:
    /// A new list begins, at these physical lines.
    void start_list(std::size_t first_line, std::size_t last_line) noexcept
    {
        first_line_ = first_line;
        last_line_ = last_line;
        in_list_ = 0;
    }
    /// Takes `count` numbers for the current list.
    void take(std::size_t count)
    {
        if (count > most_numbers_per_list - in_list_)
            throw ReadLimitError(first_line_, last_line_, most_numbers_per_list);
        take_references(count);
        in_list_ += count;
    }
    /// Takes `count` numbers that no list holds: load references of members and joints.
    void take_references(std::size_t count)
    {
        if (count > most_numbers_per_reading - in_reading_)
            throw ReadLimitError(first_line_, last_line_, most_numbers_per_reading);
        in_reading_ += count;
    }
    /// One more record takes a text of `size` bytes.
    void take_text(std::size_t size)
    {
        if (size <= longest_plain_text)
            return;
        if (size > most_text_per_reading - text_in_reading_)
            throw ReadLimitError(first_line_, last_line_, most_text_per_reading);
        text_in_reading_ += size;
    }

private:
    std::size_t first_line_ = 0;
    std::size_t last_line_ = 0;
    std::size_t in_list_ = 0;
    std::size_t in_reading_ = 0;
    std::size_t text_in_reading_ = 0;
};

/// Appends every number of a list to `ids`; all of them or, past the budget, none.
template<class Ids, class Words>
void append_ids(Ids& ids, id_list_walker<Words>& walker, id_budget& budget)
{
    id_list_walker<Words> counting = walker;
    for (id_range range; counting.next(range);)
        budget.take(range.size());
    auto place = ids.end(); // for a list the end, for a set the likely place of the next number
    for (id_range range; walker.next(range);)
        for (std::int64_t number = range.first; number <= range.last; ++number)
            place = std::next(ids.insert(place, static_cast<typename Ids::value_type>(number)));
}

} // namespace STAAD::detail

#endif
