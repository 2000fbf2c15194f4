/// What statements are called, by the catalogue and in reports.
#ifndef STAAD_STRUCTURE_BLOCKS_STATEMENT_NAMES_H
#define STAAD_STRUCTURE_BLOCKS_STATEMENT_NAMES_H

#include "staad/structure/reading.h"

#include <cstddef>
#include <string>

namespace STAAD::detail {

/// Whether a statement begins with its command; one that goes on after a UNIT line does not.
inline bool has_head(const structure_reading& context, std::size_t statement) noexcept
{
    return context.deck.row(context.deck.statement(statement).first_row).kind == RowKind::head;
}

/// The row of the catalogue that the head of a statement fits; without a head, and of words that only a design block
/// knows, the first row of the command.
const CommandInfo& spelling_of(const structure_reading& context, std::size_t statement) noexcept;

/// "PERFORM ANALYSIS", "1893 LOAD": the words of the catalogue, the deck's own in upper case where these may be any;
/// of an unknown command its first word, as written.
std::string name_of(const structure_reading& context, std::size_t statement);

/// Reports what stands in the head of a statement after the words of its command and LOAD.
void report_rest_of_head(structure_reading& context, std::size_t statement);

} // namespace STAAD::detail

#endif
