/// Supports and member releases.
#include "staad/model/sd_reader.h"
#include "staad/text/run_lines.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD {
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

void SdReader::write_std_support(detail::text_output& out) const
{
    write_described(out, "SUPPORTS", supports);
}

void SdReader::write_std_release(detail::text_output& out) const
{
    write_described(out, "MEMBER RELEASE", releases);
}

} // namespace STAAD
