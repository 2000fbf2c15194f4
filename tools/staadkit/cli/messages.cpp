#include "cli/messages.h"

#include "cli/text_encoding.h"
#include "output/phrases.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace tool {
namespace {

void print_line(std::string line)
{
    line += '\n';
    // A lost message has nobody left to be told to.
    static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

/// What a finding that stands for several adds to its text, which is that of the first of them.
std::string further_ones(const STAAD::Finding& finding)
{
    if (finding.code == skipped_code)
        return " (" + count_of(finding.count, "line") + ')';
    if (finding.count < 2)
        return {};
    std::string text = " (and " + std::to_string(finding.count - 1) + " more of this kind";
    if (finding.last_line > finding.first_line)
        text += ", up to line " + std::to_string(finding.last_line);
    return text + ')';
}

} // namespace

void print_error(std::string_view text)
{
    print_line("staadkit: error: " + std::string(text));
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

std::string message_line(std::string_view file, const STAAD::Finding& finding)
{
    std::string line = printable_name(file);
    if (finding.first_line != 0)
        line += ':' + std::to_string(finding.first_line);
    line += std::string(": ") + severity_word(finding.severity) + ' ' + finding.code + ": ";
    return line + printable_text(finding.text) + further_ones(finding);
}

STAAD::Finding::Severity least_severity(bool with_notes)
{
    return with_notes ? STAAD::Finding::Note : STAAD::Finding::Warning;
}

void print_finding(std::string_view file, const STAAD::Finding& finding)
{
    print_line(message_line(file, finding));
}

void print_example(std::string_view line)
{
    constexpr std::size_t most_shown = 120;
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
