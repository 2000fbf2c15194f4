#include "staad/structure/blocks/blocks.h"

#include "staad/structure/assignments.h"
#include "staad/structure/lists.h"
#include "staad/structure/values.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD::detail {
namespace {

using behaviour = Structure::Behaviour;

constexpr std::pair<Command, behaviour> commands[] = {
    {Command::member_truss, behaviour::truss},
    {Command::member_tension, behaviour::tension},
    {Command::member_compression, behaviour::compression},
    {Command::member_cable, behaviour::cable},
};

/// The words of a command after its first two: "MEMBER TENSION 0" has a number there that is no list.
void check_head(structure_reading& context, std::size_t statement)
{
    const std::size_t row = context.deck.statement(statement).first_row;
    if (context.deck.row(row).kind != RowKind::head)
        return;
    row_words words(context.deck, row);
    std::string_view word;
    words.next(word);
    words.next(word);
    number_words numbers(words);
    while (numbers.next()) {
    }
    if (!words.peek().empty())
        context.report_unread(row, "a word after the kind of members");
}

class behaviour_blocks {
public:
    explicit behaviour_blocks(structure_reading& context) noexcept : context_(context) {}

    void read()
    {
        std::vector<std::pair<std::size_t, behaviour>> statements;
        for (const auto& [command, kind] : commands)
            for (const std::size_t statement : context_.statements_of(command))
                statements.emplace_back(statement, kind);
        std::sort(statements.begin(), statements.end());
        for (const auto& [statement, kind] : statements)
            read_block(statement, kind);
        members_.hand_out(context_.structure.members.size(),
                          [&](std::size_t position, behaviour kind, Structure::Source source) {
                              Structure::Member& member = context_.structure.members[position];
                              member.behaviour = kind;
                              member.behaviour_source = source;
                          });
    }

private:
    void read_block(std::size_t statement, behaviour kind)
    {
        check_head(context_, statement);
        context_.each_item(statement,
                           [&](row_words& words, std::size_t row) { read_item(words, statement, row, kind); });
    }

    void read_item(row_words& words, std::size_t statement, std::size_t row, behaviour kind)
    {
        const record_list list = take_list(context_, words, listed::members, statement, row);
        if (!list.is_given) {
            context_.report_unread(row, "no list of members");
            return;
        }
        members_.add(list.members, kind, context_.source_of(row));
        // "TENSION 0" says no more than the command; what a cable is stretched by has no place in the structure.
        row_words ahead = words;
        std::string_view word;
        if (ahead.next(word) && is_word(word, "TENS") && number_words(ahead).next() == 0.0)
            words = ahead;
        if (!words.peek().empty())
            context_.report_unread(row, "a word after the list of members");
    }

    structure_reading& context_;
    line_assignments<behaviour> members_;
};

} // namespace

void read_behaviour(structure_reading& context)
{
    behaviour_blocks(context).read();
}

} // namespace STAAD::detail
