#include "compare/comparison_text.h"

#include "output/phrases.h"
#include "output/table.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tool {
namespace {

struct named_kind {
    const char* noun;
    const kind_comparison& compared;
};

std::vector<named_kind> kinds_of(const model_comparison& comparison)
{
    return {{"joint", comparison.joints},
            {"member", comparison.members},
            {"element", comparison.elements},
            {"surface", comparison.surfaces}};
}

void put_counts(std_output& out, const model_comparison& comparison)
{
    table rows({align::left, align::right, align::right, align::right, align::right, align::right, align::right,
                align::right, align::right});
    rows.add_heading({"", "in NEW", "in OLD", "matched", "renumbered", "resectioned", "moved", "new", "gone"});
    for (const named_kind& kind : kinds_of(comparison)) {
        const kind_comparison& counted = kind.compared;
        const bool has_sections = &counted == &comparison.members;
        rows.add_row({std::string(kind.noun) + 's', std::to_string(counted.in_new), std::to_string(counted.in_old),
                      std::to_string(counted.matched), std::to_string(counted.renumbered),
                      has_sections ? std::to_string(comparison.resectioned_members()) : "-",
                      std::to_string(counted.moved.size()), std::to_string(counted.added.size()),
                      std::to_string(counted.gone.size())});
    }
    rows.put(out);
}

std::string longest_way(const std::vector<moved_joint>& moved)
{
    double largest = 0.0;
    for (const moved_joint& joint : moved)
        largest = std::max(largest, joint.largest_shift());
    return "by up to " + short_number(largest) + " mm along an axis";
}

void add_numbers(table& rows, const char* what, const char* noun, const std::vector<int>& numbers)
{
    if (!numbers.empty())
        rows.add_row({what, count_of(numbers.size(), noun), run_list(numbers)});
}

void put_places(std_output& out, const model_comparison& comparison)
{
    table rows;
    for (const named_kind& kind : kinds_of(comparison)) {
        add_numbers(rows, "moved", kind.noun, kind.compared.moved);
        if (&kind.compared == &comparison.joints && !comparison.moved_joints.empty())
            rows.add_row({"", "", longest_way(comparison.moved_joints)});
    }
    for (const named_kind& kind : kinds_of(comparison))
        add_numbers(rows, "new", kind.noun, kind.compared.added);
    for (const named_kind& kind : kinds_of(comparison))
        add_numbers(rows, "gone", kind.noun, kind.compared.gone);
    rows.put(out);
}

void put_sections(std_output& out, const std::vector<section_change>& changes)
{
    if (changes.empty())
        return;
    out.put("resectioned:\n");
    table rows;
    for (const section_change& change : changes)
        rows.add_row({cell_text(change.old_property, "(empty)") + " -> " + cell_text(change.new_property, "(empty)"),
                      count_of(change.members.size(), "member"), run_list(change.members)});
    rows.put(out);
}

/// "9 of 9 joints", and what is lost.
void add_counts(std::vector<std::string>& row, std::size_t taken, const std::vector<int>& lost, const char* noun,
                const char* if_nothing)
{
    row.push_back(fmt::format("{} of {}", taken, count_of(taken + lost.size(), noun)));
    std::string text = taken == 0 ? if_nothing : "";
    if (!lost.empty())
        text += (text.empty() ? "lost: " : "; lost: ") + run_list(lost);
    if (!text.empty())
        row.push_back(std::move(text));
}

void put_heading(std_output& out, const char* name, std::size_t count)
{
    out.put(fmt::format("{}: {}\n", name, count == 0 ? "none" : std::to_string(count)));
}

void put_groups(std_output& out, const std::vector<STAAD::TakenGroup>& groups)
{
    table rows;
    for (const auto& [group, lost] : groups) {
        std::vector<std::string> row = {cell_text(group.name, "(no name)"), cell_text(group.kind, "(no kind)")};
        add_counts(row, group.ids.size(), lost, "number", "dropped");
        rows.add_row(std::move(row));
    }
    put_heading(out, "groups to take over", groups.size());
    rows.put(out);
    if (std::any_of(groups.begin(), groups.end(), [](const STAAD::TakenGroup& taken) {
            return taken.group.GetIdType() == STAAD::SdGroup::ElementId;
        }))
        out.put("  (numbers in ELEMENT and FLOOR groups are taken for those of joints)\n");
}

void put_described(std_output& out, const char* heading, const std::vector<STAAD::TakenList>& lists, const char* noun)
{
    table rows;
    for (const STAAD::TakenList& list : lists) {
        std::vector<std::string> row = {cell_text(list.description, "(no description)")};
        add_counts(row, list.numbers.size(), list.lost, noun, "an empty list");
        rows.add_row(std::move(row));
    }
    put_heading(out, heading, lists.size());
    rows.put(out);
}

void put_replaced(std_output& out, const replaced_lists& replaced)
{
    std::string text;
    const auto add = [&text](const std::vector<std::string>& names, const char* noun) {
        if (!names.empty())
            text += (text.empty() ? "" : ", ") + count_of(names.size(), noun);
    };
    add(replaced.groups, "group");
    add(replaced.supports, "support description");
    add(replaced.releases, "release description");
    out.put("replaced in NEW: " + (text.empty() ? "nothing" : text) + '\n');
}

template<std::size_t Count>
std::string in_words(const char* const (&parts)[Count])
{
    std::string text;
    for (const char* const part : parts)
        text += (text.empty() ? "" : ", ") + std::string(part);
    return text + '\n';
}

void put_differences(std_output& out, const model_comparison& comparison)
{
    out.put(comparison.differ() ? "the models differ\n" : "no difference in what is compared\n");
    out.put("compared: " + in_words(compared_parts) + "not compared: " + in_words(parts_not_compared));
    put_counts(out, comparison);
    put_places(out, comparison);
    put_sections(out, comparison.resectioned);
}

} // namespace

void put_comparison(std_output& out, const compared_models& compared)
{
    put_differences(out, compared.comparison);
    put_groups(out, compared.taken.groups);
    put_described(out, "supports to take over", compared.taken.supports, "joint");
    put_described(out, "releases to take over", compared.taken.releases, "member");
    put_replaced(out, compared.replaced);
}

} // namespace tool
