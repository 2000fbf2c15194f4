#include "staad/structure/blocks/blocks.h"

#include "staad/structure/lists.h"
#include "staad/text/words.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

using group_kind = Structure::GroupKind;

/// The kind that a line of one word begins.
std::optional<group_kind> kind_of(std::string_view word) noexcept
{
    if (is_word(word, "JOIN"))
        return group_kind::joints;
    if (is_word(word, "MEMB"))
        return group_kind::members;
    if (is_word(word, "ELEM"))
        return group_kind::elements;
    if (is_word(word, "FLOO"))
        return group_kind::floor;
    if (is_word(word, "SOLI"))
        return group_kind::solids;
    if (is_word(word, "GEOM"))
        return group_kind::geometry;
    return std::nullopt;
}

/// The group of a name and kind, the one that is there already or a new one.
Structure::Group& group_of(structure_reading& context, std::string_view name, group_kind kind)
{
    std::vector<Structure::Group>& groups = context.structure.groups;
    std::vector<int>& named = context.groups[to_upper_ascii(name)];
    for (const int each : named)
        if (groups[static_cast<std::size_t>(each)].kind == kind)
            return groups[static_cast<std::size_t>(each)];
    named.push_back(static_cast<int>(groups.size()));
    groups.push_back({std::string(name), kind, {}, {}});
    return groups.back();
}

/// Reports numbers that no record of the kind has, as any list does.
void check_numbers(structure_reading& context, row_words words, std::size_t statement, std::size_t row, group_kind kind)
{
    switch (kind) {
    case group_kind::joints:
        take_list(context, words, listed::joints, statement, row);
        break;
    case group_kind::members:
    case group_kind::floor:
        take_list(context, words, listed::members, statement, row);
        break;
    case group_kind::elements:
        take_list(context, words, listed::elements, statement, row);
        break;
    case group_kind::geometry:
        take_list(context, words, listed::members_and_elements, statement, row);
        break;
    case group_kind::solids:
        break;
    }
}

void read_group(structure_reading& context, row_words& words, std::size_t statement, std::size_t row, group_kind kind)
{
    std::string_view name;
    words.next(name);
    check_numbers(context, words, statement, row, kind);
    const std::vector<int> numbers = take_numbers(context, words, row);
    if (!words.peek().empty())
        context.report_unread(row, "a word among the numbers of a group");
    Structure::Group& group = group_of(context, name, kind);
    group.numbers.insert(group.numbers.end(), numbers.begin(), numbers.end());
    group.sources.push_back(context.source_of(row));
}

void read_block(structure_reading& context, std::size_t statement)
{
    std::optional<group_kind> kind;
    context.each_data_row(statement, [&](row_words& words, std::size_t row) {
        const std::string_view first = words.peek();
        if (is_word(first, "END"))
            return;
        if (first.front() != '_') {
            if (const auto begun = kind_of(first))
                kind = begun;
            else
                context.report_unread(row, "neither a group nor a kind of groups");
        } else if (kind) {
            read_group(context, words, statement, row, *kind);
        } else {
            context.report_unread(row, "a group of no kind");
        }
    });
}

} // namespace

void read_groups(structure_reading& context)
{
    for (const std::size_t statement : context.statements_of(Command::groups))
        read_block(context, statement);
}

} // namespace STAAD::detail
