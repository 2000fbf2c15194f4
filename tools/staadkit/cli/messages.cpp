#include "cli/messages.h"

#include "cli/progress_line.h"
#include "cli/terminal.h"
#include "cli/text_encoding.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace tool {
namespace {

void print_line(std::string line)
{
    line += '\n';
    clear_progress();
    static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr)); // a failure here cannot be reported anywhere
}

/// What is added to the text of a finding that stands for several; the text is that of the first.
std::string further_ones(const STAAD::Finding& finding)
{
    if (finding.code == skipped_code)
        return fmt::format(" ({} {})", finding.count, finding.count == 1 ? "line" : "lines");
    if (finding.count < 2)
        return {};
    const bool has_last = finding.last_line > finding.first_line;
    return fmt::format(" (and {} more of this kind{})", finding.count - 1,
                       has_last ? fmt::format(", up to line {}", finding.last_line) : "");
}

paint paint_of(STAAD::Finding::Severity severity)
{
    switch (severity) {
    case STAAD::Finding::Error:
        return paint::error;
    case STAAD::Finding::Warning:
        return paint::warning;
    case STAAD::Finding::Note:
        break;
    }
    return paint::note;
}

} // namespace

void print_error(std::string_view text)
{
    print_line(fmt::format("staadkit: {} {}", painted("error:", paint::error, stderr), text));
}

const char* severity_word(STAAD::Finding::Severity severity)
{
    switch (severity) {
    case STAAD::Finding::Error:
        return "error";
    case STAAD::Finding::Warning:
        return "warning";
    case STAAD::Finding::Note:
        break;
    }
    return "note";
}

STAAD::Finding::Severity least_severity(bool with_notes)
{
    return with_notes ? STAAD::Finding::Note : STAAD::Finding::Warning;
}

void print_finding(std::string_view file, const STAAD::Finding& finding)
{
    if (display().quiet && finding.severity != STAAD::Finding::Error)
        return;
    const std::string place = finding.first_line != 0 ? fmt::format(":{}", finding.first_line) : "";
    const std::string word = painted(severity_word(finding.severity), paint_of(finding.severity), stderr);
    print_line(fmt::format("{}{}: {} {}: {}{}", printable_name(file), place, word, finding.code,
                           printable_text(finding.text), further_ones(finding)));
}

void print_example(std::string_view line)
{
    constexpr std::size_t most_shown = 120;
    if (!display().quiet)
        print_line("    " + clipped(printable_text(line), most_shown));
}

void print_findings(std::string_view file, const STAAD::ReadReport& report, STAAD::Finding::Severity least,
                    std::string_view without)
{
    std::vector<const STAAD::Finding*> printed;
    for (const STAAD::Finding& finding : report.findings) {
        if (finding.severity >= least && (without.empty() || finding.code != without))
            printed.push_back(&finding);
    }
    std::stable_sort(printed.begin(), printed.end(),
                     [](const auto* a, const auto* b) { return a->first_line < b->first_line; });
    for (const STAAD::Finding* finding : printed)
        print_finding(file, *finding);
}

} // namespace tool
