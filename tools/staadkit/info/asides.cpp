// What a deck says beside the records of its structure: lost, kept as text, harmless.

#include "info/structure_summary.h"
#include "staad/report/finding_codes.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tool {
namespace {

using STAAD::Finding;
using STAAD::Structure;

constexpr std::size_t most_lines_named = 5;

/// Whether a command that is kept as text, and no load of a case, says something of structure and loads all the same.
bool is_of_structure(std::string_view command)
{
    constexpr std::string_view beginnings[] = {"FLOOR DIAPHRAGM", "MASTER", "SLAVE", "DEFINE ", "IGNORE"};
    const auto begins = [command](std::string_view words) { return command.substr(0, words.size()) == words; };
    return command != "DEFINE ENVELOPE" && std::any_of(std::begin(beginnings), std::end(beginnings), begins);
}

/// Statements by command, in the order in which the commands first come.
class statement_counter {
public:
    void add(const std::string& command, STAAD::FileLines lines)
    {
        const auto [entry, is_new] = places_.try_emplace(command, counted_.size());
        if (is_new)
            counted_.push_back({{}, command, 0, {}});
        aside& statements = counted_[entry->second];
        if (statements.count++ < most_lines_named)
            statements.lines.push_back(lines);
    }
    std::vector<aside> take() { return std::move(counted_); }

private:
    std::unordered_map<std::string, std::size_t> places_;
    std::vector<aside> counted_;
};

aside aside_of(const Finding& finding)
{
    aside made{finding.code, finding.text, finding.count, {}};
    if (finding.first_line != 0)
        made.lines.push_back({finding.first_line, std::max(finding.first_line, finding.last_line)});
    return made;
}

bool is_before(const aside& a, const aside& b)
{
    const auto line = [](const aside& each) { return each.lines.empty() ? 0 : each.lines.front().first; };
    return line(a) < line(b);
}

} // namespace

asides sort_asides(const Structure& structure, const STAAD::ReadReport& report)
{
    asides sorted;
    std::unordered_set<std::size_t> lost_lines;
    const std::string_view kept_code = STAAD::finding_code_info(STAAD::FindingCode::command_kept).text;
    for (const Finding& finding : report.findings) {
        if (finding.severity != Finding::Note) {
            sorted.lost.push_back(aside_of(finding));
            lost_lines.insert(finding.first_line);
        } else if (finding.code != kept_code) { // the statements themselves say more
            sorted.harmless.push_back(aside_of(finding));
        }
    }
    statement_counter of_structure;
    statement_counter others;
    for (const Structure::Kept& kept : structure.kept) {
        const STAAD::FileLines lines = STAAD::origin(structure, kept.source);
        if (lost_lines.count(lines.first) == 0) // else the finding is about it
            (kept.is_load || is_of_structure(kept.command) ? of_structure : others).add(kept.command, lines);
    }
    for (aside& statements : of_structure.take())
        sorted.lost.push_back(std::move(statements));
    std::stable_sort(sorted.lost.begin(), sorted.lost.end(), is_before);
    sorted.kept = others.take();
    return sorted;
}

} // namespace tool
