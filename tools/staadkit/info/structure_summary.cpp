#include "info/structure_summary.h"

#include "output/structure_words.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tool {
namespace {

using STAAD::Structure;

/// Counts texts in the order in which they first come.
class text_counter {
public:
    void add(const std::string& text, std::size_t count = 1)
    {
        const auto [entry, is_new] = places_.try_emplace(text, counted_.size());
        if (is_new)
            counted_.push_back({text, 0});
        counted_[entry->second].count += count;
    }
    std::vector<counted_text> take() { return std::move(counted_); }

private:
    std::unordered_map<std::string, std::size_t> places_;
    std::vector<counted_text> counted_;
};

/// How many positions the ranges hold, each counted once.
std::size_t positions_in(std::vector<Structure::Range> ranges)
{
    std::sort(ranges.begin(), ranges.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::size_t count = 0;
    int past = 0;
    for (const Structure::Range& range : ranges) {
        const int first = std::max(range.first, past);
        if (range.last < first)
            continue;
        count += static_cast<std::size_t>(range.last - first) + 1;
        past = range.last + 1;
    }
    return count;
}

void append(std::vector<Structure::Range>& all, const std::vector<Structure::Range>& more)
{
    all.insert(all.end(), more.begin(), more.end());
}

case_summary summarise_case(const Structure::LoadCase& load_case)
{
    text_counter kinds;
    std::vector<Structure::Range> joints;
    std::vector<Structure::Range> members;
    std::vector<Structure::Range> elements;
    for (const Structure::Load& load : load_case.loads) {
        kinds.add(word_of(load.kind));
        const std::string on = loaded_records(load.kind);
        append(on == "joints" ? joints : on == "elements" ? elements : members, load.on);
        append(elements, load.on_elements);
    }
    case_summary summary;
    summary.load_case = &load_case;
    summary.kinds = kinds.take();
    summary.joints = positions_in(std::move(joints));
    summary.members = positions_in(std::move(members));
    summary.elements = positions_in(std::move(elements));
    return summary;
}

std::vector<case_summary> summarise_cases(const std::vector<Structure::LoadCase>& load_cases)
{
    std::vector<case_summary> summaries;
    summaries.reserve(load_cases.size());
    for (const Structure::LoadCase& load_case : load_cases)
        summaries.push_back(summarise_case(load_case));
    return summaries;
}

} // namespace

structure_summary summarise(const Structure& structure, const STAAD::ReadReport& report)
{
    structure_summary summary;
    summary.structure = &structure;
    summary.groups = summarise_groups(structure);
    text_counter supports;
    for (const Structure::Support& support : structure.supports)
        supports.add(support.text);
    summary.supports = supports.take();
    text_counter mats;
    for (const Structure::Mat& mat : structure.mats)
        mats.add(mat.text, mat.elements.size());
    summary.mats = mats.take();
    summary.load_cases = summarise_cases(structure.load_cases);
    summary.reference_cases = summarise_cases(structure.reference_cases);
    summary.beside = sort_asides(structure, report);
    return summary;
}

} // namespace tool
