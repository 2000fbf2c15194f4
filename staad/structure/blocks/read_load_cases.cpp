#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/statement_names.h"
#include "staad/structure/blocks/sums.h"
#include "staad/structure/values.h"

#include <algorithm>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>

namespace STAAD::detail {
namespace {

/// Words up to the one of the short form, with single blanks between.
std::string words_before(row_words& words, std::string_view short_form)
{
    std::string joined;
    for (std::string_view word; !is_word(words.peek(), short_form) && words.next(word);)
        joined.append(joined.empty() ? "" : " ").append(word);
    return joined;
}

/// Follows the text from case to case.
class case_reader {
public:
    explicit case_reader(structure_reading& context) noexcept : context_(context) {}

    void read(std::size_t statement)
    {
        switch (context_.deck.statement(statement).command) {
        case Command::load_case:
            read_header(statement);
            break;
        case Command::spectrum:
            read_spectrum(statement);
            break;
        case Command::load_generation:
            context_.begin_case(statement, {});
            read_generation(statement);
            break;
        case Command::load_combination:
        case Command::define_reference:
        case Command::end_define_reference:
            context_.begin_case(statement, {});
            break;
        default:
            break;
        }
    }

private:
    /// LOAD n [LOADTYPE type] [TITLE title], LOAD n title, and the same with Rn.
    void read_header(std::size_t statement)
    {
        const std::size_t row = context_.deck.statement(statement).first_row;
        row_words words(context_.deck, row);
        std::string_view word;
        words.next(word); // LOAD
        const std::optional<case_number> number = case_number_of(words.peek());
        if (!number) {
            context_.report(FindingCode::load_number, row, [] { return "a load case without a number from 1 on"; });
            context_.begin_case(statement, {});
            return;
        }
        words.next(word);
        Structure::LoadCase made;
        made.number = number->number;
        made.is_reference = number->is_reference;
        made.source = context_.source_of(row);
        if (is_word(words.peek(), "LOADT")) {
            words.next(word);
            made.type = words_before(words, "TITL");
        }
        if (is_word(words.peek(), "TITL"))
            words.next(word);
        made.title = words.rest();
        open(statement, row, std::move(made));
    }

    void open(std::size_t statement, std::size_t row, Structure::LoadCase made)
    {
        const bool is_reference = made.is_reference;
        auto& cases = is_reference ? context_.structure.reference_cases : context_.structure.load_cases;
        const auto [at, is_new] = (is_reference ? references_ : cases_).try_emplace(made.number, cases.size());
        if (is_new) {
            if (!is_reference)
                highest_ = std::max(highest_, made.number);
            cases.push_back(std::move(made));
        } else {
            context_.report(FindingCode::case_again, row, [&] {
                return "load case " + std::string(is_reference ? "R" : "") + std::to_string(made.number) +
                       " is there again; its loads join those of the first";
            });
        }
        const auto kind = is_reference ? open_case::kind::reference_case : open_case::kind::load_case;
        context_.begin_case(statement, {kind, at->second});
    }

    /// SPECTRUM ... IMR n STARTCASE m: the cases m + 1 to m + n, of single modes; without m after the last so far.
    void read_spectrum(std::size_t statement)
    {
        int count = 0;
        int start = highest_;
        each_row(statement, [&](row_words words) {
            for (std::string_view word; words.next(word);) {
                const std::optional<int> number = whole_value(words.peek());
                if (is_word(word, "IMR") && number)
                    count = *number;
                else if (is_word(word, "STARTC") && number)
                    start = *number;
            }
        });
        make_cases(start, count);
    }

    /// LOAD GENERATION n: the n cases after the last so far.
    void read_generation(std::size_t statement)
    {
        row_words words(context_.deck, context_.deck.statement(statement).first_row);
        std::string_view word;
        words.next(word);
        words.next(word);
        make_cases(highest_, whole_value(words.peek()).value_or(0));
    }

    /// Visits the head and the data of a statement.
    template<class Visit>
    void each_row(std::size_t statement, Visit visit)
    {
        if (has_head(context_, statement))
            visit(row_words(context_.deck, context_.deck.statement(statement).first_row));
        context_.each_data_row(statement, [&](const row_words& words, std::size_t) { visit(words); });
    }

    void make_cases(int after, int count)
    {
        constexpr int most = std::numeric_limits<int>::max();
        if (count < 1 || after < 0 || after == most)
            return;
        const int last = count > most - after ? most : after + count;
        context_.made_cases.push_back({after + 1, last});
        highest_ = std::max(highest_, last);
    }

    structure_reading& context_;
    std::unordered_map<int, std::size_t> cases_; // number to index
    std::unordered_map<int, std::size_t> references_;
    int highest_ = 0; // number of a load case so far
};

} // namespace

void read_load_cases(structure_reading& context)
{
    case_reader reader(context);
    for (std::size_t statement = 0; statement < context.deck.statement_count(); ++statement)
        reader.read(statement);
}

} // namespace STAAD::detail
