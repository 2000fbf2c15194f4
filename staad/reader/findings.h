/// Findings that several block readers share. They cost nothing unless a report is wanted.
#ifndef STAAD_READER_FINDINGS_H
#define STAAD_READER_FINDINGS_H

#include "staad/io/read_file.h"
#include "staad/reader/reading.h"
#include "staad/text/id_list.h"
#include "staad/text/lines.h"

#include <string>
#include <string_view>

namespace STAAD::detail {

/// A data line without effect: no joint, member, element or surface has a number of its list. `what` names its
/// value: "section", "load".
void report_no_effect(std::string_view what, const text_line& line, reading& context);

/// A list that ended too early, at a word such as "BY" or "ALL".
void report_list_stopped(std::string_view word, const text_line& line, reading& context);

/// The same, but only where the word is "BY" or "ALL": other words may begin what follows the list.
void report_list_word(std::string_view word, const text_line& line, reading& context);

/// A list names a single number that no joint, member or element has.
void report_unknown_number(FindingCode code, std::string_view what, int number, const text_line& line,
                           reading& context);

/// A member, element or surface stands on a joint that the file does not define.
void report_unknown_joint(const char* what, int number, int joint, line_place place, reading& context);

/// The block under `keyword` ended at line `end` although that line or those after it hold data: a
/// comment, a leading blank or a line of another form stopped it.
void report_block_end(std::string_view keyword, const line_list& lines, std::size_t end, reading& context);

/// The block that begins at line `begin` has no line that is exactly `closing`.
void report_block_open(const line_list& lines, std::size_t begin, std::string_view closing, reading& context);

/// Lines that are nearly keywords. `missing` is the keyword without which no model could be read; empty if one
/// was read.
void report_near_keywords(const line_list& lines, std::string_view missing, reading& context);

/// Why no text could be read from a file; with `for_update` it had to be opened for writing, too.
void report_file_trouble(FileBytes::Outcome outcome, bool for_update, reading& context);

/// One finding per word of a UNIT line that the tables do not know; one if it is short of words.
void report_unit_words(std::string_view unit_line, line_place place, reading& context);

/// Lines that no block has understood, by command words; comments are left out.
void report_skipped(const line_list& lines, reading& context);

} // namespace STAAD::detail

#endif
