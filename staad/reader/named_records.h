/// Lists over the records that they name: one walk for sections, offsets, beta angles and thicknesses.
#ifndef STAAD_READER_NAMED_RECORDS_H
#define STAAD_READER_NAMED_RECORDS_H

#include "staad/reader/findings.h"
#include "staad/reader/id_list.h"
#include "staad/units/number_lookup.h"

#include <cstddef>
#include <string_view>

namespace STAAD::detail {

/// How a walk over a list ended.
struct list_end {
    bool named_anyone = false;
    std::string_view stopped_at; ///< first word behind the list; empty at the end of the line
};

/// Calls `visit(index)`, from 0, for every record that the list names, and `miss(number)` for every
/// number that stands alone and that no record has. Ranges cost what they find, not what they state.
template<class Visit, class Miss>
list_end for_each_named(const number_lookup& numbers, word_cursor list, Visit visit, Miss miss)
{
    list_end end;
    id_list_walker walker(list, general_id_list);
    for (id_run ids; walker.next(ids);) {
        bool found = false;
        numbers.for_each_in(ids.first, ids.last, [&](const numbered_position& entry) {
            visit(static_cast<std::size_t>(entry.position) - 1);
            found = true;
        });
        if (!found && !ids.is_range)
            miss(ids.first);
        end.named_anyone = end.named_anyone || found;
    }
    word_cursor behind = walker.after_list();
    end.stopped_at = behind.next_or_empty();
    return end;
}

/// Tells when a list named nobody, and when it ended at a word that is no part of such a line.
/// `what` it was read for: "section", "beta angle".
inline void check_list_end(std::string_view what, const list_end& end, bool ended_well, const text_line& line,
                           reading& run)
{
    if (!end.named_anyone)
        tell_nobody(what, line, run);
    if (!ended_well)
        tell_list_stopped(end.stopped_at, line, run);
}

} // namespace STAAD::detail

#endif
