/// Messages on standard error.
#ifndef TOOLS_STAADKIT_MESSAGES_H
#define TOOLS_STAADKIT_MESSAGES_H

#include "staad/reader/read_report.h"

#include <string>
#include <string_view>

namespace tool {

/// Whose words they are where no file is named: "staadkit: error: TEXT".
void print_error(std::string_view text);

const char* severity_word(STAAD::Finding::Severity severity);

/// "tower.std:12: warning unit-word: TEXT (3 times)"; without the line where the finding is about
/// the text as a whole.
std::string message_line(std::string_view file, const STAAD::Finding& finding);

/// The least grave severity that a verb prints: warnings, or notes too if they were asked for.
STAAD::Finding::Severity least_severity(bool with_notes);

/// Prints the findings that are at least as grave as `least`, in their order. `without` names a
/// code to leave out, because the results tell it already; empty: none.
void print_findings(std::string_view file, const STAAD::ReadReport& report, STAAD::Finding::Severity least,
                    std::string_view without);

} // namespace tool

#endif
