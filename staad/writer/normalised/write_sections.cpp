/// User section tables, member properties and element thicknesses.
#include "staad/model/section_family.h"
#include "staad/text/run_lines.h"
#include "staad/writer/normalised/id_groups.h"
#include "staad/writer/normalised/written_numbers.h"

#include <string>
#include <string_view>

namespace STAAD {

std::string_view detail::family_word(int number, const SdUserSectionTable& table)
{
    if (number >= WideFlange && number <= Prismatic)
        return section_family_words[number];
    return table.type;
}

namespace {

/// A key above this gets no empty tables before it: they could make a file of any size.
constexpr int last_key_with_placeholders = 10000;

/// The word of the block in which a member's property is written. Joist girders have a block of their own.
std::string_view block_key(const SdBeam& member)
{
    if (member.sect_country == "AMERICAN" && member.sect_name == "SJIJOIST")
        return member.sect_name;
    return member.sect_country;
}

} // namespace

void SdReader::write_std_usrSectTable(detail::text_output& out) const
{
    if (usr_tables.empty())
        return;
    out.line("START USER TABLE");
    int next = 1;
    for (const auto& [key, table] : usr_tables) {
        // Empty tables fill the gaps between the numbers.
        for (; next < key && key <= last_key_with_placeholders; ++next)
            out.line("TABLE ", next);
        out.line("TABLE ", key);
        out.line(detail::family_word(key, table));
        for (const auto& [name, dimensions] : table.records) {
            out.line(name);
            out.line(dimensions);
        }
        if (key >= next && key <= last_key_with_placeholders)
            next = key + 1;
    }
    out.line("END");
}

void SdReader::write_std_section(detail::text_output& out, const detail::written_numbers& numbers) const
{
    detail::id_groups<std::string_view, detail::id_groups<std::string_view>> blocks;
    for (const SdBeam& member : beams)
        blocks.at(block_key(member)).at(member.sect_text).push_back(numbers.of(member));

    for (const auto* block : blocks.ascending()) {
        out.line("MEMBER PROPERTY ", block->first);
        for (const auto* property : block->second.ascending()) {
            const std::string tail = std::string(1, ' ').append(property->first);
            detail::put_run_list(out, {}, property->second, tail);
            out.put('\n');
        }
    }
}

void SdReader::write_std_thickness(detail::text_output& out, const detail::written_numbers& numbers) const
{
    if (shells.empty())
        return;
    detail::id_groups<int> by_thickness;
    for (const SdShell& shell : shells)
        by_thickness.at(shell.thickness).push_back(numbers.of(shell));

    out.line("ELEMENT PROPERTY");
    for (const auto* elements : by_thickness.ascending()) {
        const std::string tail = " THICKNESS " + detail::format_real(elements->first / 1000.0);
        detail::put_run_list(out, {}, elements->second, tail);
        out.put('\n');
    }
}

} // namespace STAAD
