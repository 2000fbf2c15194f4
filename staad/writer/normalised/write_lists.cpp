/// Lists of numbers under a name or before a description: groups, truss members, supports, releases.
#include "staad/text/run_lines.h"
#include "staad/writer/normalised/id_groups.h"
#include "staad/writer/normalised/written_numbers.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD {

std::vector<int> detail::brace_numbers(const SdReader& model, const written_numbers& numbers)
{
    std::vector<int> braces;
    for (const SdBeam& member : model.beams) {
        if (member.kind_code == Brace || member.kind_code == HorizontalBrace)
            braces.push_back(numbers.of(member));
    }
    return braces;
}

namespace {

void write_described(detail::text_output& out, std::string_view keyword,
                     const std::map<std::string, std::vector<unsigned>>& ids_by_description)
{
    if (ids_by_description.empty())
        return;
    out.line(keyword);
    for (const auto& [description, ids] : ids_by_description) {
        detail::put_run_list(out, {}, ids, ' ' + description);
        out.put('\n');
    }
}

} // namespace

void SdReader::write_std_group(detail::text_output& out) const
{
    if (groups.empty())
        return;
    detail::id_groups<std::string_view, std::vector<const SdGroup*>> by_kind;
    for (const SdGroup& group : groups)
        by_kind.at(group.kind).push_back(&group);

    out.line("*{STAAD reserved}");
    out.line("START GROUP DEFINITION");
    for (const auto* of_kind : by_kind.ascending()) {
        out.line(of_kind->first);
        for (const SdGroup* group : of_kind->second) {
            detail::put_run_list(out, group->name, group->ids, {});
            out.put('\n');
        }
    }
    out.line("END GROUP DEFINITION");
}

void SdReader::write_std_truss(detail::text_output& out, const detail::written_numbers& numbers) const
{
    const std::vector<int> braces = detail::brace_numbers(*this, numbers);
    if (braces.empty())
        return;
    out.line("MEMBER TRUSS ");
    detail::put_run_list(out, {}, braces, {});
    out.put('\n');
}

void SdReader::write_std_support(detail::text_output& out) const
{
    write_described(out, "SUPPORTS", supports);
}

void SdReader::write_std_release(detail::text_output& out) const
{
    write_described(out, "MEMBER RELEASE", releases);
}

} // namespace STAAD
