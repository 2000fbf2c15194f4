/// What lives during one reading and not longer: where findings go, how much the lists may still
/// hold, and the look-ups by number that all blocks share.
#ifndef STAAD_READER_READING_H
#define STAAD_READER_READING_H

#include "staad/report/read_report.h"
#include "staad/text/id_list.h"
#include "staad/text/lines.h"
#include "staad/text/number_lookup.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::detail {

/// Gathers findings, or nothing when there is no report to fill.
class finding_sink {
public:
    /// Null: nobody listens. Empties the report, which must outlive the sink.
    explicit finding_sink(ReadReport* report);

    bool listening() const noexcept { return report_ != nullptr; }
    /// Nothing has been added.
    bool empty() const noexcept { return report_ == nullptr || report_->findings.empty(); }

    /// Adds one finding, or counts it with its like once there are many; see ReadReport. `compose()`
    /// gives the text and is called only if it will be read: a hostile text has findings by the million.
    template<class Compose>
    void add(Finding::Severity severity, std::string_view code, line_place place, Compose compose)
    {
        if (takes_one_more(code, place))
            list(severity, code, place, compose(), 1);
    }
    template<class Compose>
    void warn(std::string_view code, line_place place, Compose compose)
    {
        add(Finding::Warning, code, place, compose);
    }
    void fail(std::string_view code, line_place place, std::string text)
    {
        add(Finding::Error, code, place, [&] { return std::move(text); });
    }
    /// Adds one finding whatever their number, with a count of its own.
    void list(Finding::Severity severity, std::string_view code, line_place place, std::string text, std::size_t count);

private:
    /// Whether the next finding of the code is to be listed; if not, it has been counted.
    bool takes_one_more(std::string_view code, line_place place);

    struct tally {
        std::string code;
        std::size_t listed;
        std::size_t last; // index of the last finding of the code
    };
    ReadReport* report_;
    std::vector<tally> tallies_;
};

/// Which logical lines some block has understood; the rest is in the file and not in the model.
/// Records nothing when nobody listens.
class used_lines {
public:
    void start(std::size_t line_count) { used_.assign(line_count, false); }
    void mark(std::size_t line)
    {
        if (line < used_.size())
            used_[line] = true;
    }
    /// Lines from `begin` on, `end` not included.
    void mark(std::size_t begin, std::size_t end)
    {
        for (; begin < end && begin < used_.size(); ++begin)
            used_[begin] = true;
    }
    bool is_used(std::size_t line) const noexcept { return line < used_.size() && used_[line]; }

private:
    std::vector<bool> used_;
};

class reading {
public:
    explicit reading(ReadReport* report) : findings(report) {}

    void start_list(line_place place) noexcept { budget.start_list(place.first, place.last); }

    finding_sink findings;
    used_lines used;
    id_budget budget;
    number_lookup joints;   ///< last joint of each number
    number_lookup members;  ///< last member of each number
    number_lookup elements; ///< last element of each number
};

} // namespace STAAD::detail

#endif
