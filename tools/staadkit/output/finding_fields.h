/// The fields of a finding as JSON documents have them.
#ifndef TOOLS_STAADKIT_OUTPUT_FINDING_FIELDS_H
#define TOOLS_STAADKIT_OUTPUT_FINDING_FIELDS_H

#include "cli/messages.h"
#include "staad/report/read_report.h"

#include <string>

namespace tool {

template<class Visit>
void each_field(const STAAD::Finding& finding, Visit visit)
{
    visit("severity", std::string(severity_word(finding.severity)));
    visit("code", finding.code);
    visit("first_line", finding.first_line);
    visit("last_line", finding.last_line);
    visit("text", finding.text);
    visit("count", finding.count);
}

} // namespace tool

#endif
