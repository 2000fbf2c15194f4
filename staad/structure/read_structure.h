/// The complete reading: a deck as its author meant it.
#ifndef STAAD_STRUCTURE_READ_STRUCTURE_H
#define STAAD_STRUCTURE_READ_STRUCTURE_H

#include "staad/deck/deck.h"
#include "staad/export.h"
#include "staad/report/read_report.h"
#include "staad/structure/structure.h"

#include <optional>

namespace STAAD {

/// Reads a deck the complete way: every form of every command, blocks in any order, units wherever they stand.
///
/// Gives:   the structure, every record with the lines it comes from; none of a text without a UNIT line or without
///          joints, which the report says ("no-unit", "no-joints"). Units are never guessed.
/// Reports: each line that it does not understand, and what it keeps as text or passes over, by command. The report
///          is emptied first.
/// Throws:  ReadLimitError where lists and generation come to more than a reading holds; std::bad_alloc.
/// Cost:    linear in lines, records and the numbers of lists.
STAAD_API std::optional<Structure> read_structure(const Deck& deck, ReadReport& report);

} // namespace STAAD

#endif
