#include "staad/report/finding_sink.h"

#include "staad/text/words.h"

#include <algorithm>

namespace STAAD::detail {
namespace {

/// Texts are quoted in messages up to this length.
constexpr std::size_t longest_quote = 60;

/// Where to cut a text of at most `limit` bytes: after a byte that is the second half of no character,
/// in UTF-8 and in GBK alike; most often a blank.
std::size_t cut_of(std::string_view text, std::size_t limit) noexcept
{
    for (std::size_t end = limit; end > 0; --end)
        if (const auto byte = static_cast<unsigned char>(text[end - 1]); byte < 0x40)
            return end;
    return limit;
}

} // namespace

std::string quote(std::string_view text)
{
    text = trim_blanks(text);
    if (text.size() <= longest_quote)
        return "'" + std::string(text) + "'";
    return "'" + std::string(text.substr(0, cut_of(text, longest_quote))) + "...'";
}

finding_sink::finding_sink(ReadReport* report) : report_(report)
{
    if (report_ == nullptr)
        return;
    report_->findings.clear();
    report_->density_from = {};
}

bool finding_sink::takes_one_more(FindingCode code, line_place place)
{
    if (report_ == nullptr)
        return false;
    tally& of_code = tallies_[static_cast<std::size_t>(code)];
    if (of_code.listed > ReadReport::most_per_code) {
        Finding& rest = report_->findings[of_code.last];
        ++rest.count;
        rest.last_line = std::max<std::size_t>(rest.last_line, place.last);
        return false;
    }
    ++of_code.listed;
    of_code.last = report_->findings.size();
    return true;
}

void finding_sink::append(Finding::Severity severity, FindingCode code, line_place place, std::string text,
                          std::size_t count)
{
    Finding finding = make_finding(code, std::move(text), place.first, place.last);
    finding.severity = severity;
    finding.count = count;
    report_->findings.push_back(std::move(finding));
}

void finding_sink::list(FindingCode code, line_place place, std::string text, std::size_t count)
{
    if (report_ != nullptr)
        append(finding_code_info(code).severity, code, place, std::move(text), count);
}

void finding_sink::density_from(line_place place) noexcept
{
    if (report_ != nullptr)
        report_->density_from = {place.first, place.last};
}

} // namespace STAAD::detail
