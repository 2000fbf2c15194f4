#include "forces/forces_report.h"

#include "forces/force_selection.h"

#include <map>
#include <utility>

namespace tool {
namespace {

void count_findings(const STAAD::ReadReport& report, force_summary& summary)
{
    for (const STAAD::Finding& finding : report.findings) {
        if (finding.code == "force-section") {
            summary.sections.push_back(finding);
            summary.section_count += finding.count;
        } else if (finding.code == "force-unknown-member") {
            summary.unknown_member_lines += finding.count;
        }
    }
}

force_case_summary summarise_case(const STAAD::SdReader& model, int number, std::size_t members)
{
    force_case_summary summary;
    summary.number = number;
    if (const auto found = model.load_cases.find(number); found != model.load_cases.end())
        summary.of_model = found->second;
    summary.members = members;
    return summary;
}

} // namespace

force_summary summarise_forces(const STAAD::SdReader& model, const STAAD::ReadReport& report)
{
    force_summary summary;
    count_findings(report, summary);
    summary.members = model.beam_forces.size();
    summary.members_in_model = model.beams.size();
    std::map<int, std::size_t> members_of_case;
    each_record(model, [&](int /*member*/, int load_case, const STAAD::BeamLoadCaseRecord& record) {
        ++members_of_case[load_case];
        summary.stations += record.points.size();
    });
    for (const auto& [number, members] : members_of_case)
        summary.cases.push_back(summarise_case(model, number, members));
    return summary;
}

} // namespace tool
