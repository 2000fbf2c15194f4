/// Truss members.
#include "staad/model/sd_reader.h"
#include "staad/text/run_lines.h"

#include <vector>

namespace STAAD {

// What a file declared is forgotten here: the kind that the host stored decides.
void SdReader::write_std_truss(detail::text_output& out)
{
    brace_ids.clear();
    for (const SdBeam& member : beams) {
        if (member.kind_code == Brace || member.kind_code == HorizontalBrace)
            brace_ids.insert(brace_ids.end(), member.id);
    }
    if (brace_ids.empty())
        return;
    out.line("MEMBER TRUSS ");
    detail::put_run_list(out, {}, std::vector<int>(brace_ids.begin(), brace_ids.end()), {});
    out.put('\n');
}

} // namespace STAAD
