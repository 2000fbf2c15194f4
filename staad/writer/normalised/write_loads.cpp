/// Load cases and their member loads.
#include "staad/text/text_output.h"
#include "staad/writer/normalised/id_groups.h"
#include "staad/writer/normalised/written_loads.h"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// "UNI GZ -5.000000": the load as it is written, in the model's direction and units.
std::string load_text(const LoadDefination& definition)
{
    std::string text(detail::member_load_word(definition));
    text.append(1, ' ').append(definition.direction);
    for (const double value : definition.values) {
        text += ' ';
        append(text, detail::six_places{value});
    }
    return text;
}

void write_loads_of_case(detail::text_output& out, std::span<const detail::member_load> loads)
{
    if (loads.empty())
        return;
    detail::id_groups<std::string, std::vector<detail::member_load>> by_text;
    for (const detail::member_load& load : loads)
        by_text.at(load_text(*load.definition)).push_back(load);

    out.line("MEMBER LOAD");
    for (const auto* same : by_text.ascending())
        detail::write_member_loads(out, same->second, same->first);
}

} // namespace

void SdReader::write_std_load(detail::text_output& out, const detail::written_numbers& numbers,
                              detail::written_loads& loads) const
{
    if (load_defs.empty() || load_cases.empty())
        return;
    loads.collect(*this, numbers);
    for (const auto& [key, load_case] : load_cases) {
        loads.last_number = std::max(loads.last_number, load_case.id);
        out.line("LOAD ", load_case.id, " LOADTYPE ", load_case.type_text, " TITLE LOAD CASE ", load_case.id);
        write_loads_of_case(out, loads.collected.at(load_case.id));
    }
}

} // namespace STAAD
