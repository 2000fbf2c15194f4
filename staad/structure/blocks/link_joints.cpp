#include "staad/structure/blocks/blocks.h"

#include "staad/structure/lists.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

/// Takes the records away that lists of DELETE lines name; whether there were any.
template<class Record>
bool erase(std::vector<Record>& records, const std::vector<Structure::Range>& ranges)
{
    if (ranges.empty())
        return false;
    std::vector<bool> goes(records.size());
    each_position(ranges, [&](int position) { goes[static_cast<std::size_t>(position)] = true; });
    std::size_t index = 0;
    std::erase_if(records, [&](const Record&) { return goes[index++]; });
    return true;
}

/// "DELETE MEMBERS list", "DELETE JOINTS list", "DELETE ELEMENTS list"
void delete_line(structure_reading& context, std::size_t statement)
{
    const std::size_t row = context.deck.statement(statement).first_row;
    row_words words(context.deck, row);
    std::string_view word;
    words.next(word);
    const std::string_view kind = words.peek();
    const listed what = is_word(kind, "JOIN")   ? listed::joints
                        : is_word(kind, "MEMB") ? listed::members
                                                : listed::elements;
    const record_list list = take_list(context, words, what, statement, row);
    if (!list.is_given || !words.peek().empty()) {
        context.report_unread(row, "no list of what to delete");
        return;
    }
    context.places = {};
    if (erase(context.structure.joints, list.joints))
        context.joints = record_lookup(context.structure.joints);
    if (erase(context.structure.members, list.members))
        context.members = record_lookup(context.structure.members);
    if (erase(context.structure.elements, list.elements))
        context.elements = record_lookup(context.structure.elements);
}

/// Numbers of joints to positions; a joint that is not there is reported with the record that has it.
template<class Record, class Corners>
void link(structure_reading& context, const char* name, const Record& record, Corners& corners)
{
    for (int& corner : corners) {
        const int number = corner;
        corner = number > 0 ? context.joints.position(number) : -1;
        if (number > 0 && corner < 0)
            context.findings.add(FindingCode::joint_unknown, place_of(context.structure, record.source), [&] {
                return std::string(name) + " " + std::to_string(record.number) + " has joint " +
                       std::to_string(number) + ", which the deck does not define";
            });
    }
}

} // namespace

void delete_records(structure_reading& context)
{
    for (const std::size_t statement : context.statements_of(Command::delete_records))
        delete_line(context, statement);
}

void link_joints(structure_reading& context)
{
    Structure& structure = context.structure;
    for (Structure::Member& member : structure.members) {
        std::array<int, 2> ends{member.start, member.end};
        link(context, "member", member, ends);
        member.start = ends[0];
        member.end = ends[1];
    }
    for (Structure::Element& element : structure.elements)
        link(context, "element", element, element.corners);
    for (Structure::Solid& solid : structure.solids)
        link(context, "solid", solid, solid.corners);
    for (Structure::Surface& surface : structure.surfaces)
        link(context, "surface", surface, surface.corners);
    context.joints_are_linked = true;
}

} // namespace STAAD::detail
