#include "staad/report/read_report.h"

#include <algorithm>

namespace STAAD {

Finding::Severity ReadReport::worst() const
{
    Finding::Severity worst = Finding::Note;
    for (const Finding& finding : findings)
        worst = std::max(worst, finding.severity);
    return worst;
}

} // namespace STAAD
