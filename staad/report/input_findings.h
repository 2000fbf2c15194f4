/// Findings that decks and force listings have in common.
#ifndef STAAD_REPORT_INPUT_FINDINGS_H
#define STAAD_REPORT_INPUT_FINDINGS_H

#include "staad/report/finding_sink.h"

#include <string_view>

namespace STAAD::detail {

/// Why no text could be read from a file; neither: it cannot be read to its end.
struct file_trouble {
    bool is_missing = false;
    bool is_folder = false;
    bool is_refused = false;
    bool for_update = false; ///< it had to be opened for writing, too
};

void report_file_trouble(file_trouble trouble, finding_sink& findings);

/// Words of a unit line that the tables do not know; empty where they do, or where there is no word.
struct unknown_unit_words {
    std::string_view length;
    std::string_view force;
    std::string_view moment;
};

/// One finding per unknown word; one if the line is short of words, so that no factor is taken from it.
void report_unit_words(std::string_view unit_line, bool is_short, const unknown_unit_words& unknown, line_place place,
                       finding_sink& findings);

} // namespace STAAD::detail

#endif
