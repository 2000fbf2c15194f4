// Prints the table of finding codes as docs/reading.md shows it.

#include "staad/report/finding_codes.h"

#include <cstdio>
#include <string>

namespace {

const char* word_of(STAAD::Finding::Severity severity)
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

} // namespace

int main()
{
    std::string table = "| Code | Severity | Meaning | What to do |\n|---|---|---|---|\n";
    for (const STAAD::FindingCodeInfo& info : STAAD::finding_codes())
        table += std::string("| `") + info.text + "` | " + word_of(info.severity) + " | " + info.meaning + " | " +
                 info.advice + " |\n";
    return std::fwrite(table.data(), 1, table.size(), stdout) == table.size() ? 0 : 1;
}
