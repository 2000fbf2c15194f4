/// Which command a row begins, and whether it is data of the one above.
#ifndef STAAD_DECK_COMMAND_MATCH_H
#define STAAD_DECK_COMMAND_MATCH_H

#include "staad/deck/catalogue.h"
#include "staad/deck/row_words.h"

#include <string_view>

namespace STAAD::detail {

/// The row of the catalogue that fits the first words of a row; null if no command begins so.
const CommandInfo* find_command(const row_words& words) noexcept;

/// Whether the first words of a row are those of `forms`, shortest forms with blanks between, of several
/// alternatives parted by "|".
bool begins_with(const row_words& words, std::string_view forms) noexcept;

/// Whether a row begins with a number.
bool begins_with_number(const row_words& words) noexcept;

/// Whether a row begins as a list does: a number, a group, ALL, LIST, a range, a kind of record with one of these
/// after it.
bool begins_a_list(const row_words& words) noexcept;

} // namespace STAAD::detail

#endif
