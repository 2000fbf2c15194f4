#include "staad/reader/reading.h"

#include <algorithm>
#include <utility>

namespace STAAD::detail {

finding_sink::finding_sink(ReadReport* report) : report_(report)
{
    if (report_ != nullptr)
        report_->findings.clear();
}

bool finding_sink::takes_one_more(std::string_view code, line_place place)
{
    if (report_ == nullptr)
        return false;
    auto found = std::find_if(tallies_.begin(), tallies_.end(), [code](const tally& t) { return t.code == code; });
    if (found == tallies_.end())
        found = tallies_.insert(found, {std::string(code), 0, 0});
    if (found->listed > ReadReport::most_per_code) {
        Finding& rest = report_->findings[found->last];
        ++rest.count;
        rest.last_line = std::max<std::size_t>(rest.last_line, place.last);
        return false;
    }
    ++found->listed;
    found->last = report_->findings.size();
    return true;
}

void finding_sink::list(Finding::Severity severity, std::string_view code, line_place place, std::string text,
                        std::size_t count)
{
    if (report_ != nullptr)
        report_->findings.push_back({severity, std::string(code), place.first, place.last, std::move(text), count});
}

} // namespace STAAD::detail
