/// Gathers the findings of a reading, and quotes texts for them.
#ifndef STAAD_REPORT_FINDING_SINK_H
#define STAAD_REPORT_FINDING_SINK_H

#include "staad/report/finding_codes.h"
#include "staad/report/read_report.h"
#include "staad/text/lines.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace STAAD::detail {

/// `text` without blanks at its ends, in quotes; cut short if it is long.
std::string quote(std::string_view text);

/// Gathers findings, or nothing when there is no report to fill.
class finding_sink {
public:
    /// Null: findings are not wanted. Empties the report, which must outlive the sink.
    explicit finding_sink(ReadReport* report);

    bool listening() const noexcept { return report_ != nullptr; }
    /// True if nothing has been added.
    bool empty() const noexcept { return report_ == nullptr || report_->findings.empty(); }

    /// Adds one finding, or counts it once there are many of its code; see ReadReport. `compose()` gives the
    /// text and is called only for a finding that is listed: a hostile text has findings by the million.
    template<class Compose>
    void add(FindingCode code, line_place place, Compose compose)
    {
        add_as(finding_code_info(code).severity, code, place, compose);
    }
    /// The same with a severity other than the code's own.
    template<class Compose>
    void add_as(Finding::Severity severity, FindingCode code, line_place place, Compose compose)
    {
        if (takes_one_more(code, place))
            append(severity, code, place, compose(), 1);
    }
    /// Adds one finding with a count of its own, however many of the code there are.
    void list(FindingCode code, line_place place, std::string text, std::size_t count);

    /// The concrete density was read from these lines.
    void density_from(line_place place) noexcept;

private:
    /// Whether the next finding of the code is to be listed; if not, it has been counted.
    bool takes_one_more(FindingCode code, line_place place);
    void append(Finding::Severity severity, FindingCode code, line_place place, std::string text, std::size_t count);

    struct tally {
        std::size_t listed = 0;
        std::size_t last = 0; // index of the last finding of the code
    };
    ReadReport* report_;
    std::array<tally, number_of_finding_codes> tallies_; // by code
};

} // namespace STAAD::detail

#endif
