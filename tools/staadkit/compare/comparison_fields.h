/// The keys of the document that "compare --json" prints.
#ifndef TOOLS_STAADKIT_COMPARE_COMPARISON_FIELDS_H
#define TOOLS_STAADKIT_COMPARE_COMPARISON_FIELDS_H

#include "cli/open_model.h"
#include "compare/model_comparison.h"
#include "output/json_writer.h"
#include "staad/compare/match.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

template<class Visit>
void each_field(const kind_comparison& compared, Visit visit)
{
    visit("in_new", compared.in_new);
    visit("in_old", compared.in_old);
    visit("matched", compared.matched);
    visit("renumbered", compared.renumbered);
    visit("moved", compared.moved);
    visit("new", compared.added);
    visit("gone", compared.gone);
}

template<class Visit>
void each_field(const moved_joint& joint, Visit visit)
{
    visit("number", joint.number);
    visit("old_file_xyz_mm", joint.old_place);
    visit("new_file_xyz_mm", joint.new_place);
}

template<class Visit>
void each_field(const section_change& change, Visit visit)
{
    visit("old", change.old_property);
    visit("new", change.new_property);
    visit("members", change.members.size());
    visit("member_numbers", change.members);
}

template<class Numbers, class Visit>
void visit_numbers(const Numbers& taken, const std::vector<int>& lost, Visit& visit)
{
    visit("numbers", taken.size() + lost.size());
    visit("taken", taken.size());
    visit("lost", lost);
}

struct taken_group {
    explicit taken_group(const STAAD::TakenGroup& group) : taken(group) {}
    const STAAD::TakenGroup& taken;
};

template<class Visit>
void each_field(const taken_group& item, Visit visit)
{
    const STAAD::SdGroup& group = item.taken.group;
    visit("name", group.name);
    visit("kind", group.kind);
    visit_numbers(group.ids, item.taken.lost, visit);
    visit("by_joint_numbers", group.GetIdType() == STAAD::SdGroup::ElementId);
    visit("dropped", group.ids.empty());
}

/// Supports or releases.
struct taken_list {
    explicit taken_list(const STAAD::TakenList& list) : taken(list) {}
    const STAAD::TakenList& taken;
};

template<class Visit>
void each_field(const taken_list& item, Visit visit)
{
    visit("description", item.taken.description);
    visit_numbers(item.taken.numbers, item.taken.lost, visit);
}

template<class Visit>
void each_field(const replaced_lists& replaced, Visit visit)
{
    visit("groups", replaced.groups);
    visit("supports", replaced.supports);
    visit("releases", replaced.releases);
}

struct take_over_record {
    const STAAD::TakenOver& taken;
    const replaced_lists& replaced;
};

template<class Visit>
void each_field(const take_over_record& record, Visit visit)
{
    const STAAD::TakenOver& taken = record.taken;
    visit("groups", std::vector<taken_group>(taken.groups.begin(), taken.groups.end()));
    visit("supports", std::vector<taken_list>(taken.supports.begin(), taken.supports.end()));
    visit("releases", std::vector<taken_list>(taken.releases.begin(), taken.releases.end()));
    visit("replaced_in_new", record.replaced);
}

/// The whole document.
struct comparison_document {
    const opened_model& now;
    const opened_model& earlier;
    const compared_models* compared; ///< null: one of them was not read
};

template<std::size_t Count>
std::vector<std::string> texts_of(const char* const (&texts)[Count])
{
    return {texts, texts + Count};
}

template<class Visit>
void each_field(const comparison_document& document, Visit visit)
{
    visit("new", document.now);
    visit("old", document.earlier);
    if (document.compared == nullptr)
        return;
    const model_comparison& comparison = document.compared->comparison;
    visit("tolerance_mm", STAAD::same_place);
    visit("compared", texts_of(compared_parts));
    visit("not_compared", texts_of(parts_not_compared));
    visit("differ", comparison.differ());
    visit("joints", comparison.joints);
    visit("members", comparison.members);
    visit("elements", comparison.elements);
    visit("surfaces", comparison.surfaces);
    visit("moved_joints", comparison.moved_joints);
    visit("resectioned", comparison.resectioned);
    visit("take_over", take_over_record{document.compared->taken, document.compared->replaced});
}

} // namespace tool

#endif
