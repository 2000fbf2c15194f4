/// Messages on standard error. With --quiet only errors are printed.
#ifndef TOOLS_STAADKIT_CLI_MESSAGES_H
#define TOOLS_STAADKIT_CLI_MESSAGES_H

#include "staad/report/finding_codes.h"
#include "staad/report/read_report.h"

#include <string>
#include <string_view>
#include <utility>

namespace tool {

/// Code of the findings that name lines of the file that are not in the model. Their count is the number of
/// lines.
inline constexpr const char* skipped_code = "skipped";

/// Adds a finding of the code's own severity, at a line or about the text as a whole; `count` as Finding has it.
inline void add_finding(STAAD::ReadReport& report, STAAD::FindingCode code, std::string text, std::size_t line = 0,
                        std::size_t count = 1)
{
    report.findings.push_back(STAAD::make_finding(code, std::move(text), line, line));
    report.findings.back().count = count;
}

/// "staadkit: error: TEXT", for errors that no file has caused.
void print_error(std::string_view text);

const char* severity_word(STAAD::Finding::Severity severity);

/// The least grave severity that a verb prints: warnings, or notes too if they were asked for.
STAAD::Finding::Severity least_severity(bool with_notes);

/// "tower.std:12: warning unit-word: TEXT"; without the line if the finding is about the text as a whole. A
/// finding that stands for more adds "(and 9 more of this kind, up to line 65)".
void print_finding(std::string_view file, const STAAD::Finding& finding);

/// Prints a line of a file as an example for the message before it: indented, and cut if it is long.
void print_example(std::string_view line);

/// Prints the findings that are at least as grave as `least` in the order of their lines, those
/// about the text as a whole first. `without` is a code to leave out because the results show it already;
/// empty: none.
void print_findings(std::string_view file, const STAAD::ReadReport& report, STAAD::Finding::Severity least,
                    std::string_view without);

} // namespace tool

#endif
