/// Member properties.
#include "staad/model/sd_reader.h"
#include "staad/text/run_lines.h"
#include "staad/writer/normalised/id_groups.h"

#include <string>
#include <string_view>

namespace STAAD {
namespace {

/// The word of the block that a member's property stands in. Joist girders have a block of their own.
std::string_view block_key(const SdBeam& member)
{
    if (member.sect_country == "AMERICAN" && member.sect_name == "SJIJOIST")
        return member.sect_name;
    return member.sect_country;
}

} // namespace

void SdReader::write_std_section(detail::text_output& out) const
{
    detail::id_groups<std::string_view, detail::id_groups<std::string_view>> blocks;
    for (const SdBeam& member : beams)
        blocks.at(block_key(member)).at(member.sect_text).push_back(member.id);

    for (const auto* block : blocks.ascending()) {
        out.line("MEMBER PROPERTY ", block->first);
        for (const auto* property : block->second.ascending()) {
            const std::string tail = std::string(1, ' ').append(property->first);
            detail::put_run_list(out, {}, property->second, tail);
            out.put('\n');
        }
    }
}

} // namespace STAAD
