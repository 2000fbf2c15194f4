#include "staad/structure/blocks/blocks.h"

#include "staad/structure/assignments.h"
#include "staad/structure/lists.h"
#include "staad/structure/values.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

using cracked = Structure::Cracked;

constexpr std::pair<std::string_view, double cracked::*> factors[] = {
    {"RAX", &cracked::ax}, {"RAY", &cracked::ay}, {"RAZ", &cracked::az},
    {"RIX", &cracked::ix}, {"RIY", &cracked::iy}, {"RIZ", &cracked::iz},
};

double* factor_of(cracked& record, std::string_view word) noexcept
{
    for (const auto& [name, member] : factors)
        if (is_word(word, name) && word.size() == name.size())
            return &(record.*member);
    return nullptr;
}

/// "REDUCTION RAX f RIY f"; none without a factor. What is none is reported.
std::optional<cracked> read_factors(structure_reading& context, row_words& words, std::size_t row)
{
    cracked record;
    bool has_factor = false;
    std::string_view word;
    bool is_understood = words.next(word) && is_word(word, "REDU");
    while (is_understood && words.next(word)) {
        double* factor = factor_of(record, word);
        const std::optional<double> value = factor != nullptr ? number_words(words).next() : std::nullopt;
        is_understood = value && *value >= 0.0;
        if (is_understood) {
            *factor = *value;
            has_factor = true;
        }
    }
    if (!is_understood || !has_factor)
        context.report_unread(row, "factors of cracked members");
    return has_factor ? std::optional(record) : std::nullopt;
}

/// The records that members have, without the lines that later ones replace, in the order of the text.
void keep_used(Structure& structure, const std::vector<cracked>& records)
{
    std::vector<int> used(records.size(), -1);
    for (const Structure::Member& member : structure.members)
        if (member.cracked >= 0)
            used[static_cast<std::size_t>(member.cracked)] = 0;
    for (std::size_t i = 0; i < records.size(); ++i)
        if (used[i] == 0) {
            used[i] = static_cast<int>(structure.cracked.size());
            structure.cracked.push_back(records[i]);
        }
    for (Structure::Member& member : structure.members)
        if (member.cracked >= 0)
            member.cracked = used[static_cast<std::size_t>(member.cracked)];
}

} // namespace

void read_cracked(structure_reading& context)
{
    std::vector<cracked> records;
    line_assignments<int> members; // positions in `records`
    context.each_item(Command::member_cracked, [&](row_words& words, std::size_t statement, std::size_t row) {
        const record_list list = take_list(context, words, listed::members, statement, row);
        if (!list.is_given) {
            context.report_unread(row, "factors of no member");
        } else if (const std::optional<cracked> record = read_factors(context, words, row)) {
            members.add(list.members, static_cast<int>(records.size()), context.source_of(row));
            records.push_back(*record);
        }
    });
    members.hand_out(context.structure.members.size(), [&](std::size_t position, int record, Structure::Source source) {
        context.structure.members[position].cracked = record;
        context.structure.members[position].cracked_source = source;
    });
    keep_used(context.structure, records);
}

} // namespace STAAD::detail
