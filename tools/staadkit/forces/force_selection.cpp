#include "forces/force_selection.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tool {
namespace {

using STAAD::Finding;
using STAAD::SdReader;

std::set<int> set_of(const std::vector<int>& numbers)
{
    return {numbers.begin(), numbers.end()};
}

bool has_forces(const SdReader& model, int member)
{
    const auto position = model.beam_index.find(member);
    return position != model.beam_index.end() && model.beam_forces.count(position->second) != 0;
}

bool has_forces_of(const SdReader& model, int load_case)
{
    return std::any_of(model.beam_forces.begin(), model.beam_forces.end(),
                       [load_case](const auto& entry) { return entry.second.records.count(load_case) != 0; });
}

void warn(STAAD::ReadReport& report, const char* code, std::string text)
{
    Finding finding;
    finding.severity = Finding::Warning;
    finding.code = code;
    finding.text = std::move(text);
    report.findings.push_back(std::move(finding));
}

/// Whether anything was told.
bool tell_missing(const force_selection& wanted, const SdReader& model, STAAD::ReadReport& report)
{
    const std::size_t before = report.findings.size();
    for (const int member : wanted.members) {
        if (!has_forces(model, member))
            warn(report, "member-without-forces", "no forces of member " + std::to_string(member));
    }
    for (const int load_case : wanted.cases) {
        if (!has_forces_of(model, load_case))
            warn(report, "case-without-forces", "no forces of load case " + std::to_string(load_case));
    }
    return report.findings.size() != before;
}

} // namespace

std::string unknown_in(const force_selection& wanted, const SdReader& model)
{
    for (const int member : wanted.members) {
        if (model.beam_index.count(member) == 0)
            return "--member " + std::to_string(member) + ": the model has no such member";
    }
    for (const int load_case : wanted.cases) {
        if (model.load_cases.count(load_case) == 0 && !has_forces_of(model, load_case))
            return "--case " + std::to_string(load_case) + ": neither the model nor the listing has such a load case";
    }
    return {};
}

void keep_selected(const force_selection& wanted, SdReader& model, STAAD::ReadReport& report)
{
    const bool is_told = tell_missing(wanted, model, report) || model.beam_forces.empty();
    const std::set<int> members = set_of(wanted.members);
    const std::set<int> cases = set_of(wanted.cases);
    if (!members.empty())
        std::erase_if(model.beam_forces,
                      [&](const auto& entry) { return members.count(member_number(model, entry.second)) == 0; });
    if (!cases.empty()) {
        for (auto& [position, forces] : model.beam_forces)
            std::erase_if(forces.records, [&](const auto& entry) { return cases.count(entry.first) == 0; });
        std::erase_if(model.beam_forces, [](const auto& entry) { return entry.second.records.empty(); });
    }
    if (model.beam_forces.empty() && !is_told)
        warn(report, "nothing-selected", "no member asked for has forces of a load case asked for");
}

int member_number(const SdReader& model, const STAAD::BeamForceAndMOM& forces)
{
    return model.beams.at(static_cast<std::size_t>(forces.beam) - 1).id;
}

} // namespace tool
