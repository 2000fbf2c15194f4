/// What a report holds of one code.
#ifndef STAAD_TESTS_SUPPORT_FINDINGS_H
#define STAAD_TESTS_SUPPORT_FINDINGS_H

#include "staad/report/read_report.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace STAAD {

/// The findings of that code, in order.
inline std::vector<Finding> findings_of(const ReadReport& report, const std::string& code)
{
    std::vector<Finding> found;
    std::copy_if(report.findings.begin(), report.findings.end(), std::back_inserter(found),
                 [&](const Finding& finding) { return finding.code == code; });
    return found;
}

} // namespace STAAD

#endif
