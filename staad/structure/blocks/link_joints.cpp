#include "staad/structure/blocks/blocks.h"

#include "staad/structure/lists.h"
#include "staad/text/words.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

/// Calls `visit(name, record, joints)` for every record that has joints, with its places for them.
template<class Visit>
void each_record_with_joints(Structure& structure, Visit visit)
{
    for (Structure::Member& member : structure.members) {
        std::array<int, 2> ends{member.start, member.end};
        visit("member", member, ends);
        member.start = ends[0];
        member.end = ends[1];
    }
    for (Structure::Element& element : structure.elements)
        visit("element", element, element.corners);
    for (Structure::Solid& solid : structure.solids)
        visit("solid", solid, solid.corners);
    for (Structure::Surface& surface : structure.surfaces)
        visit("surface", surface, surface.corners);
}

/// Which of the records of one kind DELETE lines name: +1 where a range begins, -1 after its end.
class deleted_records {
public:
    explicit deleted_records(std::size_t count) : changes_(count + 1) {}

    void add(const std::vector<Structure::Range>& ranges)
    {
        for (const Structure::Range& range : ranges) {
            ++changes_[static_cast<std::size_t>(range.first)];
            --changes_[static_cast<std::size_t>(range.last) + 1];
        }
    }
    /// The positions that the records have once these are taken away; -1: it is one of them.
    std::vector<int> new_positions() const
    {
        std::vector<int> positions(changes_.size() - 1);
        int open = 0;
        int kept = 0;
        for (std::size_t i = 0; i < positions.size(); ++i) {
            open += changes_[i];
            positions[i] = open > 0 ? -1 : kept++;
        }
        return positions;
    }

private:
    std::vector<int> changes_;
};

template<class Record>
void erase(std::vector<Record>& records, record_lookup& lookup, const std::vector<int>& new_positions)
{
    std::size_t index = 0;
    std::erase_if(records, [&](const Record&) { return new_positions[index++] < 0; });
    if (records.size() < index)
        lookup = record_lookup(records);
}

std::optional<listed> kind_of(std::string_view word) noexcept
{
    if (is_word(word, "JOIN"))
        return listed::joints;
    if (is_word(word, "MEMB") || is_word(word, "BEAM"))
        return listed::members;
    if (is_word(word, "ELEM") || is_word(word, "PLAT"))
        return listed::elements;
    return std::nullopt;
}

/// "DELETE MEMBERS list", "DELETE JOINTS list", "DELETE ELEMENTS list"
record_list list_of_line(structure_reading& context, std::size_t statement)
{
    const std::size_t row = context.deck.statement(statement).first_row;
    row_words words(context.deck, row);
    std::string_view word;
    words.next(word);
    const std::optional<listed> kind = kind_of(words.peek());
    record_list list;
    if (kind)
        list = take_list(context, words, *kind, statement, row);
    if (!list.is_given || !words.peek().empty())
        context.report_unread(row, "no list of what to delete");
    return list;
}

/// Joints have new positions; a record that keeps a deleted one is reported.
void move_joints(structure_reading& context, const std::vector<int>& numbers, const std::vector<int>& new_positions)
{
    each_record_with_joints(context.structure, [&](const char* name, const auto& record, auto& joints) {
        for (int& joint : joints) {
            const int before = joint;
            joint = before < 0 ? -1 : new_positions[static_cast<std::size_t>(before)];
            if (before >= 0 && joint < 0)
                context.findings.add(FindingCode::joint_unknown, place_of(context.structure, record.source), [&] {
                    return std::string(name) + " " + std::to_string(record.number) + " has joint " +
                           std::to_string(numbers[static_cast<std::size_t>(before)]) + ", which the deck deletes";
                });
        }
    });
}

} // namespace

/// A joint that is not there is reported with the record that has it.
void link_joints(structure_reading& context)
{
    each_record_with_joints(context.structure, [&](const char* name, const auto& record, auto& joints) {
        for (int& joint : joints) {
            const int number = joint;
            joint = number > 0 ? context.joints.position(number) : -1;
            if (number > 0 && joint < 0)
                context.findings.add(FindingCode::joint_unknown, place_of(context.structure, record.source), [&] {
                    return std::string(name) + " " + std::to_string(record.number) + " has joint " +
                           std::to_string(number) + ", which the deck does not define";
                });
        }
    });
}

void delete_records(structure_reading& context)
{
    if (context.statements_of(Command::delete_records).empty())
        return;
    Structure& structure = context.structure;
    deleted_records joints(structure.joints.size());
    deleted_records members(structure.members.size());
    deleted_records elements(structure.elements.size());
    for (const std::size_t statement : context.statements_of(Command::delete_records)) {
        const record_list list = list_of_line(context, statement);
        joints.add(list.joints);
        members.add(list.members);
        elements.add(list.elements);
    }
    erase(structure.members, context.members, members.new_positions());
    erase(structure.elements, context.elements, elements.new_positions());
    std::vector<int> numbers;
    for (const Structure::Joint& joint : structure.joints)
        numbers.push_back(joint.number);
    const std::vector<int> new_positions = joints.new_positions();
    erase(structure.joints, context.joints, new_positions);
    move_joints(context, numbers, new_positions);
    context.places = {};
}

} // namespace STAAD::detail
