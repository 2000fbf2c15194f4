/// The keys of the document that "compare --json" prints.
#ifndef TOOLS_STAADKIT_COMPARE_COMPARISON_FIELDS_H
#define TOOLS_STAADKIT_COMPARE_COMPARISON_FIELDS_H

#include "cli/open_model.h"
#include "compare/model_comparison.h"
#include "compare/taken_over.h"
#include "output/finding_fields.h"
#include "staad/compare/joint_grid.h"

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

template<class Visit>
void visit_numbers(const taken_list& list, Visit& visit)
{
    visit("numbers", list.numbers);
    visit("taken", list.taken());
    visit("lost", list.lost);
}

struct taken_group {
    const taken_list& list;
};

template<class Visit>
void each_field(const taken_group& group, Visit visit)
{
    visit("name", group.list.name);
    visit("kind", group.list.kind);
    visit_numbers(group.list, visit);
    visit("by_joint_numbers", group.list.by_joints);
    visit("dropped", group.list.taken() == 0);
}

/// Supports and releases.
template<class Visit>
void each_field(const taken_list& list, Visit visit)
{
    visit("description", list.name);
    visit_numbers(list, visit);
}

template<class Visit>
void each_field(const replaced_lists& replaced, Visit visit)
{
    visit("groups", replaced.groups);
    visit("supports", replaced.supports);
    visit("releases", replaced.releases);
}

template<class Visit>
void each_field(const taken_over& taken, Visit visit)
{
    std::vector<taken_group> groups;
    for (const taken_list& list : taken.groups)
        groups.push_back({list});
    visit("groups", groups);
    visit("supports", taken.supports);
    visit("releases", taken.releases);
    visit("replaced_in_new", taken.replaced);
}

template<class Visit>
void each_field(const opened_model& opened, Visit visit)
{
    visit("file", opened.name);
    visit("was_read", opened.was_read);
    visit("findings", opened.report.findings);
}

/// What there is to tell about two models that were read.
struct compared_models {
    model_comparison comparison;
    taken_over taken;
};

/// All of it.
struct comparison_document {
    const opened_model& now;
    const opened_model& earlier;
    const compared_models* compared; ///< null: one of them was not read
};

template<class Visit>
void each_field(const comparison_document& document, Visit visit)
{
    visit("new", document.now);
    visit("old", document.earlier);
    if (document.compared == nullptr)
        return;
    const model_comparison& comparison = document.compared->comparison;
    visit("tolerance_mm", STAAD::detail::same_place);
    visit("differ", comparison.differ());
    visit("joints", comparison.joints);
    visit("members", comparison.members);
    visit("elements", comparison.elements);
    visit("surfaces", comparison.surfaces);
    visit("moved_joints", comparison.moved_joints);
    visit("resectioned", comparison.resectioned);
    visit("take_over", document.compared->taken);
}

} // namespace tool

#endif
