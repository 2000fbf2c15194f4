/// Element thicknesses.
#include "staad/model/sd_reader.h"
#include "staad/text/run_lines.h"
#include "staad/writer/normalised/id_groups.h"

namespace STAAD {

void SdReader::write_std_thickness(detail::text_output& out) const
{
    if (shells.empty())
        return;
    detail::id_groups<int> by_thickness;
    for (const SdShell& shell : shells)
        by_thickness.at(shell.thickness).push_back(shell.id);

    out.line("ELEMENT PROPERTY");
    for (const auto* elements : by_thickness.ascending()) {
        const std::string tail = " THICKNESS " + detail::format_real(elements->first / 1000.0);
        detail::put_run_list(out, {}, elements->second, tail);
        out.put('\n');
    }
}

} // namespace STAAD
