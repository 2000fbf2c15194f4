#include "tests/support/read_back.h"

#include "staad/text/words.h"
#include "tests/support/placed_models.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

constexpr double mm_per_metre = 1000.0;

/// The number after it was printed in the given form and read.
double printed(const char* form, double value)
{
    char text[512];
    std::snprintf(text, sizeof text, form, value);
    return std::strtod(text, nullptr);
}

template<class Number>
std::vector<Number> sorted(std::vector<Number> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

/// The number that a member, joint or shell at this index is written with.
int position(std::size_t index)
{
    return static_cast<int>(index) + 1;
}

bool begins(const std::string& text, const char* beginning)
{
    return text.rfind(beginning, 0) == 0;
}

/// Joints are numbered by position, their coordinates have six digits; joint loads are gone.
void read_joints(const SdReader& from, SdReader& to)
{
    const auto rounded = [](double length) { return printed("%g", length / mm_per_metre) * mm_per_metre; };
    for (const SdNode& joint : from.nodes) {
        const int number = position(to.nodes.size());
        to.node_index[number] = number;
        to.nodes.push_back(placed::joint(number, {rounded(joint.x), rounded(joint.y), rounded(joint.z)}));
    }
}

/// A reference to no joint names joint 0 now, which enters the index as a joint that there is not.
int reference(int joint, SdReader& to)
{
    if (joint == 0)
        to.node_index[0] = 0;
    return joint;
}

/// Members are numbered by position; offsets are gone, and so are angles of less than 0.001.
void read_members(const SdReader& from, SdReader& to)
{
    for (const SdBeam& member : from.beams) {
        const int number = position(to.beams.size());
        SdBeam back = placed::member(number, reference(member.node_start, to), reference(member.node_end, to));
        if (std::fabs(member.beta) >= 0.001)
            back.beta = printed("%g", member.beta);
        to.beam_index[back.id] = back.id;
        to.beams.push_back(back);
    }
}

/// Shells are numbered after the members; the copies of surfaces come back as shells, the surfaces do not.
/// A thickness is truncated once more after its six digits.
void read_shells(const SdReader& from, SdReader& to)
{
    for (const SdShell& shell : from.shells) {
        SdShell back = placed::shell(position(from.beams.size() + to.shells.size()), {});
        for (const int joint : shell.node_ids)
            back.node_ids.push_back(reference(joint, to));
        back.thickness = static_cast<int>(std::trunc(printed("%g", shell.thickness / mm_per_metre) * mm_per_metre));
        back.material = "C1";
        to.shell_index[back.id] = position(to.shells.size());
        to.shells.push_back(back);
    }
}

/// Groups come kind by kind and keep the numbers of the first file, in order; empty ones are gone.
void read_groups(const SdReader& from, SdReader& to)
{
    for (const SdGroup& group : from.groups) {
        if (!group.ids.empty())
            to.groups.push_back({group.kind, group.name, sorted(group.ids)});
    }
    std::stable_sort(to.groups.begin(), to.groups.end(),
                     [](const SdGroup& a, const SdGroup& b) { return a.kind < b.kind; });
}

using by_description = std::map<std::string, std::vector<unsigned>>;

/// Supports and releases keep the numbers of the first file, in order; a description without numbers is gone.
by_description described(const by_description& from)
{
    by_description to;
    for (const auto& [description, numbers] : from) {
        if (!numbers.empty())
            to[description] = sorted(numbers);
    }
    return to;
}

// ---- user tables ------------------------------------------------------------------------------------------

std::vector<std::string> table_lines(const SdReader& from)
{
    std::vector<std::string> lines;
    int next = 1;
    for (auto [key, table] : from.usr_tables) {
        for (; next < key; ++next)
            lines.push_back("TABLE " + std::to_string(next));
        table.SetType(static_cast<UsrDefineSectionType>(key));
        lines.push_back("TABLE " + std::to_string(key));
        lines.push_back(table.type);
        for (const auto& [name, text] : table.records)
            lines.insert(lines.end(), {name, text});
        next = key + 1;
    }
    lines.emplace_back("END");
    return lines;
}

/// Tables have no unit line, so that their type counts as a row and the defaults for unit and type stand.
/// Rows are read in pairs of lines again; as the dimensions of the last row were once read as a row whose
/// text was the line after the table, its text now ends the block ("END") or opens another table.
void read_tables(const SdReader& from, SdReader& to)
{
    if (from.usr_tables.empty())
        return;
    const std::vector<std::string> lines = table_lines(from);
    int table = 1;
    for (std::size_t i = 0; lines[i] != "END"; ++i) {
        if (lines[i].rfind("TABLE", 0) == 0) {
            table = std::atoi(lines[i].c_str() + 5);
            to.usr_tables[table].unit = "00UNIT METER KN";
            to.usr_tables[table].type = "00WIDE FLANGE";
        } else {
            to.usr_tables[table].records[lines[i]] = lines[i + 1];
        }
    }
}

// ---- sections and materials ---------------------------------------------------------------------------------------

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
        for (const int number : named_members(numbers, SplitString(key.second, " ").size())) {
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

// ---- loads ---------------------------------------------------------------------------------------------------------

constexpr std::size_t member_load_words = 12; ///< characters of "MEMBER LOAD "

std::string load_text(const LoadDefination& load)
{
    std::string text = load.kind.substr(member_load_words) + ' ' + load.direction;
    for (const double value : load.values)
        text += ' ' + std::to_string(value);
    return text;
}

/// Loads are written as the model holds them, in kN, mm and the model's axes, with six places, and read as if
/// they were in kN, metres and the file's axes: distances grow a thousandfold, forces per length shrink so, and
/// directions turn on by one axis.
LoadDefination read_again(const LoadDefination& load)
{
    LoadDefination back = load;
    if (load.direction.find_first_of("XYZ") != std::string::npos) {
        char& axis = back.direction.back();
        axis = axis == 'X' ? 'Y' : axis == 'Y' ? 'Z' : axis == 'Z' ? 'X' : axis;
    }
    const std::string form = load.kind.substr(member_load_words);
    for (std::size_t i = 0; i < back.values.size(); ++i) {
        double& value = back.values[i];
        value = printed("%f", value);
        if (form == "LIN" || (form == "TRAP" && i < 2) || (form == "UNI" && i == 0))
            value /= mm_per_metre;
        else if (i > 0 || form == "CMOM")
            value *= mm_per_metre;
    }
    return back;
}

struct loaded_members {
    LoadDefination load;
    std::vector<int> numbers;
};

/// Member loads of a case by their text: loads that print alike become one.
std::map<std::string, loaded_members> loads_by_text(const SdReader& from, int load_case)
{
    std::map<std::string, loaded_members> loads;
    for (const auto& [number, load] : from.load_defs) {
        if (load.load_case != load_case || !begins(load.kind, "MEMBER LOAD "))
            continue;
        for (std::size_t i = 0; i < from.beams.size(); ++i) {
            for (const int carried : from.beams[i].int_list) {
                if (carried != number)
                    continue;
                loaded_members& entry = loads[load_text(load)];
                entry.load = load;
                entry.numbers.push_back(position(i));
            }
        }
    }
    return loads;
}

/// Only member loads that some member carries come back, numbered in the order written; a case's title is its
/// number. Four wind cases of one number and the seismic case follow the highest.
void read_loads(const SdReader& from, SdReader& to)
{
    int highest = 0;
    if (!from.load_defs.empty()) {
        for (const auto& entry : from.load_cases) {
            const int number = entry.first;
            LoadCase back = entry.second;
            back.title = "LOAD CASE " + std::to_string(number);
            to.load_cases[number] = back;
            highest = std::max(highest, number);
            for (auto& [text, loaded] : loads_by_text(from, number)) {
                const int definition = position(to.load_defs.size());
                to.raw_load_defs[definition] = {"MEMBER LOAD " + text, number};
                to.load_defs[definition] = read_again(loaded.load);
                for (const int member : sorted(loaded.numbers))
                    to.beams[static_cast<std::size_t>(member - 1)].int_list.push_back(definition);
            }
        }
    }
    to.load_cases[highest + 4].id = highest + 4;
    to.load_cases[highest + 5].id = highest + 5;
}

} // namespace

SdReader read_back(const SdReader& model)
{
    SdReader back;
    back.unit_text = "UNIT METER KN";
    back.length_factor = mm_per_metre;
    // the density is read from the characters after the seventh of "E 2.17184e+007"
    back.concrete_density = 84e7;
    read_joints(model, back);
    read_members(model, back);
    read_shells(model, back);
    read_groups(model, back);
    back.supports = described(model.supports);
    back.releases = described(model.releases);
    read_tables(model, back);
    read_sections(model, back);
    read_materials(model, back);
    read_loads(model, back);
    for (std::size_t i = 0; i < model.beams.size(); ++i) {
        if (model.beams[i].kind_code == Brace || model.beams[i].kind_code == HorizontalBrace)
            back.brace_ids.insert(position(i));
    }
    return back;
}

} // namespace STAAD
