#include "tests/support/read_back_parts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace STAAD::read_back_parts {
namespace {

struct read_section {
    bool is_read = false;
    std::string text;
};

/// What the text after a member list is read as. TABLE and UPTABLE come back. The dimensions of the others
/// were put together into one word in mm: a second reading skips its first character after TAPERED, or after
/// PRIS, takes TAPERED's first number for metres, and leaves PRIS without its keyword.
read_section section_of(const std::string& text)
{
    if (begins(text, "TABLE ") || begins(text, "UPTABLE"))
        return {true, text};
    if (begins(text, "TAPERED")) {
        const std::string rest = text.size() > 8 ? text.substr(8) : "";
        const double first = std::strtod(rest.substr(0, rest.find('X')).c_str(), nullptr);
        const std::string dimension = std::to_string(static_cast<int>(std::trunc(first * mm_per_metre)));
        return {true, rest.empty() ? "TAPERED" : "TAPERED" + dimension};
    }
    if (begins(text, "PRIS"))
        return {true, text.size() > 5 ? text.substr(5) : ""};
    return {};
}

std::size_t words_in(const std::string& text)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        count += text[i] != ' ' && (i == 0 || text[i - 1] == ' ') ? 1U : 0U;
    return count;
}

/// The members that a property line names: the last three words of the line are never taken for members, so
/// that before a text of one word the list loses two words. A TO whose bound is lost ends it.
std::vector<int> named_members(const std::vector<int>& members, std::size_t words_of_text)
{
    std::vector<std::pair<int, int>> ranges;
    for (const int member : members) {
        if (!ranges.empty() && ranges.back().second + 1 == member)
            ranges.back().second = member;
        else
            ranges.emplace_back(member, member);
    }
    std::size_t lost = words_of_text < 3 ? 3 - words_of_text : 0;
    while (lost > 0 && !ranges.empty()) {
        auto& [first, last] = ranges.back();
        if (first == last) {
            ranges.pop_back();
            --lost;
        } else {
            last = first; // the bound and its TO, or the bound alone, which leaves a TO that ends the list
            lost -= std::min<std::size_t>(lost, 2);
        }
    }
    std::vector<int> named;
    for (const auto& [first, last] : ranges) {
        for (int member = first; member <= last; ++member)
            named.push_back(member);
    }
    return named;
}

/// Members without a material, if others have one: their line lacks the name, so that MEMB is taken for the
/// name and the first number of the list for MEMB. A list that began with a range still names its first member:
/// the TO that is left counts from 1, and members of a name have lines of their own after this one.
void read_nameless_materials(const SdReader& from, SdReader& to)
{
    std::vector<std::size_t> nameless;
    for (std::size_t i = 0; i < from.beams.size(); ++i) {
        if (from.beams[i].material.empty())
            nameless.push_back(i);
    }
    const bool begins_with_range = nameless.size() > 1 && nameless[1] == nameless[0] + 1;
    for (std::size_t k = begins_with_range ? 0 : 1; k < nameless.size(); ++k)
        to.beams[nameless[k]].material = "MEMB";
}

} // namespace

/// Sections by code and text. Those read again make their members steel ones.
void read_sections(const SdReader& from, SdReader& to)
{
    std::map<std::pair<std::string, std::string>, std::vector<int>> members;
    for (std::size_t i = 0; i < from.beams.size(); ++i)
        members[{from.beams[i].sect_country, from.beams[i].sect_text}].push_back(position(i));
    for (const auto& [key, numbers] : members) {
        const read_section section = section_of(key.second);
        if (!section.is_read)
            continue;
        for (const int number : named_members(numbers, words_in(key.second))) {
            SdBeam& member = to.beams[static_cast<std::size_t>(number - 1)];
            member.material = "STEEL";
            member.sect_country = key.first;
            member.sect_text = section.text;
            member.sect_name = key.second;
        }
    }
}

void read_materials(const SdReader& from, SdReader& to)
{
    std::set<std::string> names;
    for (const SdBeam& member : from.beams)
        names.insert(member.material);
    for (const SdShell& shell : from.shells)
        names.insert(shell.material);
    if (names.size() > 1)
        read_nameless_materials(from, to);
    for (std::size_t i = 0; i < from.beams.size(); ++i) {
        if (!from.beams[i].material.empty())
            to.beams[i].material = from.beams[i].material;
    }
    for (std::size_t i = 0; i < from.shells.size(); ++i)
        to.shells[i].material = from.shells[i].material;
}

} // namespace STAAD::read_back_parts
