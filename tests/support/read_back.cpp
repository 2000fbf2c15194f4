#include "tests/support/read_back.h"

#include "tests/support/read_back_parts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using namespace read_back_parts;

/// Joints are numbered by position, their coordinates have six digits; joint loads are gone.
void read_joints(const SdReader& from, SdReader& to)
{
    const auto rounded = [](double length) { return printed("%g", length / mm_per_metre) * mm_per_metre; };
    for (const SdNode& joint : from.nodes) {
        SdNode back;
        back.id = position(to.nodes.size());
        back.x = rounded(joint.x);
        back.y = rounded(joint.y);
        back.z = rounded(joint.z);
        to.node_index[back.id] = back.id;
        to.nodes.push_back(back);
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
        SdBeam back;
        back.id = position(to.beams.size());
        back.node_start = reference(member.node_start, to);
        back.node_end = reference(member.node_end, to);
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
        SdShell back;
        back.id = position(from.beams.size() + to.shells.size());
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
