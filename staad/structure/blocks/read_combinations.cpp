#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/statement_names.h"
#include "staad/structure/blocks/sums.h"
#include "staad/text/words.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace STAAD::detail {
namespace {

/// LOAD COMB [SRSS|ABS] n title; none, reported, if it has no number.
std::optional<Structure::Combination> read_header(structure_reading& context, std::size_t statement)
{
    const std::size_t row = context.deck.statement(statement).first_row;
    row_words words(context.deck, row);
    std::string_view word;
    words.next(word); // LOAD
    words.next(word); // COMBINATION
    Structure::Combination made;
    if (const std::string method = to_upper_ascii(words.peek()); method == "SRSS" || method == "ABS") {
        made.method = method;
        words.next(word);
    }
    const std::optional<case_number> number = case_number_of(words.peek());
    if (!number || number->is_reference) {
        context.report(FindingCode::load_number, row, [] { return "a combination without a number from 1 on"; });
        return std::nullopt;
    }
    words.next(word);
    made.number = number->number;
    made.title = words.rest();
    made.source = context.source_of_statement(statement);
    return made;
}

} // namespace

void read_combinations(structure_reading& context)
{
    std::vector<Structure::Combination>& combinations = context.structure.combinations;
    std::unordered_set<int> numbers;
    for (const Structure::LoadCase& load_case : context.structure.load_cases)
        numbers.insert(load_case.number);
    bool is_open = false;
    for (const std::size_t statement : context.statements_of(Command::load_combination)) {
        if (has_head(context, statement)) {
            std::optional<Structure::Combination> made = read_header(context, statement);
            is_open = made.has_value();
            if (!made)
                continue;
            if (!numbers.insert(made->number).second)
                context.report(FindingCode::case_again, context.deck.statement(statement).first_row,
                               [&] { return "there is a case " + std::to_string(made->number) + " already"; });
            combinations.push_back(*std::move(made));
        }
        if (is_open)
            read_pairs(context, statement, false, combinations.back().terms);
    }
    check_sums(context);
}

} // namespace STAAD::detail
