// Loads: the meaning of their values, and the kinds that are not written.

#include "cli/messages.h"
#include "convert/conversion_notes.h"
#include "output/phrases.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace tool {
namespace {

using STAAD::FindingCode;
using STAAD::LoadDefination;
using STAAD::SdReader;

/// Loads without a line in the written file, and the usual name for them.
struct lost_kind {
    const char* noun;
    bool (*has)(const LoadDefination& load);
    std::size_t count = 0;
};

class lost_loads {
public:
    explicit lost_loads(const SdReader& model)
    {
        for (const auto& [number, load] : model.load_defs) {
            for (lost_kind& kind : kinds_) {
                if (kind.has(load)) {
                    ++kind.count;
                    first_case_ = std::min(first_case_, load.load_case);
                }
            }
        }
    }

    /// "3 joint loads", "1 area load"
    std::vector<std::string> in_words() const
    {
        std::vector<std::string> words;
        for (const lost_kind& kind : kinds_) {
            if (kind.count != 0)
                words.push_back(count_of(kind.count, kind.noun));
        }
        return words;
    }

    bool in_case(int number) const { return first_case_ == number; }

private:
    std::array<lost_kind, 5> kinds_{{
        {"joint load", [](const LoadDefination& load) { return load.kind == "JOINT LOAD"; }},
        {"area load", [](const LoadDefination& load) { return load.kind.starts_with("AREA LOAD"); }},
        {"floor load", [](const LoadDefination& load) { return load.kind == "FLOOR LOAD"; }},
        {"self-weight load", [](const LoadDefination& load) { return load.kind == "SELFWEIGHT"; }},
        {"other load", [](const LoadDefination& load) { return load.kind.empty(); }},
    }};
    int first_case_ = std::numeric_limits<int>::max();
};

/// Number of lines under this command word that no block has understood.
std::size_t skipped_lines(const STAAD::ReadReport& report, std::string_view word)
{
    std::size_t lines = 0;
    for (const STAAD::Finding& finding : report.findings) {
        if (finding.code == skipped_code && finding.text.starts_with(word))
            lines += finding.count;
    }
    return lines;
}

std::size_t titles(const SdReader& model)
{
    return static_cast<std::size_t>(std::count_if(model.load_cases.begin(), model.load_cases.end(),
                                                  [](const auto& entry) { return !entry.second.title.empty(); }));
}

/// The header of the first case that has lost a load, else of the first case.
line_pattern header_pattern(const SdReader& model, const lost_loads& lost)
{
    const auto& cases = model.load_cases;
    if (model.load_defs.empty() || cases.empty())
        return {.begin = "LOAD ", .end = " AUTO WIND LOAD"}; // the first that is written then
    auto entry = std::find_if(cases.begin(), cases.end(), [&](const auto& each) { return lost.in_case(each.first); });
    if (entry == cases.end())
        entry = cases.begin();
    return {.begin = fmt::format("LOAD {} LOADTYPE ", entry->second.id)};
}

void note_lost_loads(const SdReader& model, const STAAD::ReadReport& report, conversion_notes& notes)
{
    const lost_loads lost(model);
    std::vector<std::string> words = lost.in_words();
    const std::size_t ranges =
        skipped_lines(report, "XRANGE") + skipped_lines(report, "YRANGE") + skipped_lines(report, "ZRANGE");
    if (ranges != 0)
        words.push_back("floor loads by range (" + count_of(ranges, "line") + ')');
    if (const std::size_t lines = skipped_lines(report, "LOAD COMB"); lines != 0)
        words.push_back("load combinations (" + count_of(lines, "line") + ')');
    if (const std::size_t count = titles(model); count != 0)
        words.push_back(count_of(count, "title") + " of load cases");
    if (model.load_defs.empty() && !model.load_cases.empty())
        words.push_back(count_of(model.load_cases.size(), "load case") + " without loads");
    if (!words.empty())
        notes.push_back(
            {FindingCode::loads_left_out, "not written: " + enumerated(words), header_pattern(model, lost)});
}

/// The best example: it shows both the unit and the turn of the axes.
bool has_line_load_down(const SdReader& model)
{
    return std::any_of(model.load_defs.begin(), model.load_defs.end(), [](const auto& entry) {
        return entry.second.kind == "MEMBER LOAD UNI" && entry.second.direction == "GZ";
    });
}

} // namespace

void note_loads(const SdReader& model, const STAAD::ReadReport& report, conversion_notes& notes)
{
    // There is an example, and the note is printed, only if there are member loads.
    notes.push_back({FindingCode::loads,
                     "under UNIT METER KN loads are in kN and mm (1 kN/m is 0.001000) and in the model's axes (GY is "
                     "written as GZ)",
                     {.block = "MEMBER LOAD", .part = has_line_load_down(model) ? " UNI GZ " : ""}});
    note_lost_loads(model, report, notes);
}

} // namespace tool
