// Load cases, and the members and joints that they load.

#include "info/model_summary.h"

#include <algorithm>
#include <map>

namespace tool {
namespace {

using STAAD::SdReader;

/// A load case while it is counted. Members and joints are walked in order: the last one counted is kept so
/// that a second definition on it does not count it again.
struct case_tally {
    std::map<std::string, std::size_t> kinds;
    std::size_t members = 0;
    std::size_t joints = 0;
    const void* last_counted = nullptr;
};

class load_tally {
public:
    explicit load_tally(const SdReader& model)
    {
        for (const auto& [number, load_case] : model.load_cases)
            cases_.try_emplace(number);
        for (const auto& [number, definition] : model.load_defs)
            add_definition(number, definition);
        for (const STAAD::SdBeam& member : model.beams)
            count_references(member.int_list, &member, &case_tally::members);
        for (const STAAD::SdNode& joint : model.nodes)
            count_references(joint.extra_ids, &joint, &case_tally::joints);
    }

    const std::map<int, case_tally>& cases() const { return cases_; }

private:
    void add_definition(int number, const STAAD::LoadDefination& definition)
    {
        case_tally& tally = cases_[definition.load_case];
        ++tally.kinds[definition.kind];
        case_of_definition_.emplace_hint(case_of_definition_.end(), number, &tally);
    }

    void count_references(const std::vector<int>& definitions, const void* loaded, std::size_t case_tally::*counter)
    {
        for (const int number : definitions) {
            const auto entry = case_of_definition_.find(number);
            if (entry == case_of_definition_.end() || entry->second->last_counted == loaded)
                continue;
            entry->second->last_counted = loaded;
            ++(entry->second->*counter);
        }
    }

    std::map<int, case_tally> cases_;
    std::map<int, case_tally*> case_of_definition_;
};

load_case_summary describe_case(const SdReader& model, int number, const case_tally& tally)
{
    load_case_summary summary;
    summary.number = number;
    const auto entry = model.load_cases.find(number);
    if (entry != model.load_cases.end()) {
        summary.type = entry->second.load_type();
        summary.type_text = entry->second.type_text;
        summary.title = entry->second.title;
    }
    for (const auto& [kind, count] : tally.kinds)
        summary.definitions.push_back({kind, count});
    summary.members = tally.members;
    summary.joints = tally.joints;
    return summary;
}

} // namespace

void summarise_loads(const SdReader& model, model_summary& summary)
{
    const load_tally tally(model);
    for (const auto& [number, counted] : tally.cases())
        summary.load_cases.push_back(describe_case(model, number, counted));
}

} // namespace tool
