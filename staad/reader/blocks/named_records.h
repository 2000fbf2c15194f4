/// Lists over the records that they name: one walk for sections, offsets, beta angles, thicknesses
/// and materials.
#ifndef STAAD_READER_BLOCKS_NAMED_RECORDS_H
#define STAAD_READER_BLOCKS_NAMED_RECORDS_H

#include "staad/reader/blocks/last_assignments.h"
#include "staad/reader/findings.h"
#include "staad/text/id_list.h"

#include <string_view>

namespace STAAD::detail {

/// How a walk over a list ended.
struct list_end {
    bool named_anyone = false;
    std::string_view stopped_at; ///< first word behind the list; empty at the end of the line
};

/// Calls `take(run)` for every run of the list; it tells whether the run names anyone.
template<class Take>
list_end walk_list(word_cursor list, const id_list_rule& rule, Take take)
{
    list_end end;
    id_list_walker walker(list, rule);
    for (id_run run; walker.next(run);)
        end.named_anyone = take(run) || end.named_anyone;
    word_cursor behind = walker.after_list();
    end.stopped_at = behind.next_or_empty();
    return end;
}

/// Gives `value` to the records that the list names, and calls `miss(number)` for every number that
/// stands alone and that no record has.
template<class Miss>
list_end assign_to_list(last_assignments& assignments, int value, word_cursor list, Miss miss)
{
    return walk_list(list, general_id_list, [&](const id_run& run) {
        const bool found = assignments.add(value, run);
        if (!found && !run.is_range)
            miss(run.first);
        return found;
    });
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
