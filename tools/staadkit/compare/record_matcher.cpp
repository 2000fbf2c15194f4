#include "compare/record_matcher.h"

namespace tool::detail {
namespace {

void join_by_place_and_number(record_pairs& pairs, const record_list& now, const record_list& earlier,
                              const position_map& place_of_new, const number_finder& old_numbers)
{
    for (int position = 1; position <= place_of_new.size(); ++position) {
        const int place = place_of_new[position];
        const int old = place != 0 ? old_numbers.first(now.number(position)) : 0;
        if (old != 0 && earlier.like[old] == place && pairs.new_of_old[old] == 0)
            join(pairs, position, old);
    }
}

/// Those of one place that are left, in the order of the lists.
void join_rest_by_place(record_pairs& pairs, const record_list& earlier, const position_map& place_of_new)
{
    position_map first_at(earlier.numbers.size());
    position_map next_of(earlier.numbers.size());
    for (int old = earlier.like.size(); old > 0; --old) {
        const int place = earlier.like[old];
        if (place != 0 && pairs.new_of_old[old] == 0)
            next_of[old] = std::exchange(first_at[place], old);
    }
    for (int position = 1; position <= place_of_new.size(); ++position) {
        const int place = place_of_new[position];
        const int old = place != 0 && pairs.old_of_new[position] == 0 ? first_at[place] : 0;
        if (old == 0)
            continue;
        first_at[place] = next_of[old];
        join(pairs, position, old);
    }
}

} // namespace

void join_by_place(record_pairs& pairs, const record_list& now, const record_list& earlier,
                   const position_map& place_of_new, const number_finder& old_numbers)
{
    join_by_place_and_number(pairs, now, earlier, place_of_new, old_numbers);
    join_rest_by_place(pairs, earlier, place_of_new);
}

} // namespace tool::detail
