#include "messages.h"

#include "text_encoding.h"

#include <cstdio>

namespace tool {
namespace {

void print_line(std::string line)
{
    line += '\n';
    // A lost message has nobody left to be told to.
    std::fwrite(line.data(), 1, line.size(), stderr);
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
    std::string line(file);
    if (finding.first_line != 0)
        line += ':' + std::to_string(finding.first_line);
    line += std::string(": ") + severity_word(finding.severity) + ' ' + finding.code + ": ";
    line += printable_text(finding.text);
    if (finding.count > 1)
        line += " (" + std::to_string(finding.count) + " times)";
    return line;
}

STAAD::Finding::Severity least_severity(bool with_notes)
{
    return with_notes ? STAAD::Finding::Note : STAAD::Finding::Warning;
}

void print_findings(std::string_view file, const STAAD::ReadReport& report, STAAD::Finding::Severity least,
                    std::string_view without)
{
    for (const STAAD::Finding& finding : report.findings) {
        if (finding.severity >= least && (without.empty() || finding.code != without))
            print_line(message_line(file, finding));
    }
}

} // namespace tool
