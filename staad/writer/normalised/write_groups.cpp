/// The group definitions.
#include "staad/model/sd_reader.h"
#include "staad/text/run_lines.h"
#include "staad/writer/normalised/id_groups.h"

#include <string_view>
#include <vector>

namespace STAAD {

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

} // namespace STAAD
