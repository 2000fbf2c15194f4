#include "staad/structure/blocks/sums.h"

#include "staad/structure/blocks/loads.h"
#include "staad/structure/case_graph.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>

namespace STAAD::detail {
namespace {

class pair_reader {
public:
    pair_reader(structure_reading& context, bool are_references, std::vector<Structure::CaseFactor>& terms) noexcept
        : context_(context), are_references_(are_references), terms_(terms)
    {
    }

    void read_row(row_words words, std::size_t row)
    {
        if (open_ && count_of(words) % 2 == 0) // a row of whole pairs
            end();
        row_ = row;
        do
            for (std::string_view word; words.next(word);)
                if (!take(word)) {
                    context_.report_unread(row, "no pair of case and factor");
                    open_.reset();
                    return;
                }
        while (words.next_item());
    }

    /// A number without a factor is left over.
    void end()
    {
        if (open_)
            context_.report_unread(row_, "a case without a factor");
        open_.reset();
    }

private:
    static std::size_t count_of(row_words words) noexcept
    {
        std::size_t count = 0;
        do
            for (std::string_view word; words.next(word);)
                ++count;
        while (words.next_item());
        return count;
    }

    bool take(std::string_view word)
    {
        if (!open_) {
            open_ = case_number_of(word);
            return open_.has_value();
        }
        const std::optional<double> factor = real_value(word);
        if (factor)
            terms_.push_back({open_->number, open_->is_reference || are_references_, *factor});
        open_.reset();
        return factor.has_value();
    }

    structure_reading& context_;
    bool are_references_;
    std::vector<Structure::CaseFactor>& terms_;
    std::optional<case_number> open_; // whose factor is still to come
    std::size_t row_ = 0;             // where it stands
};

} // namespace

std::optional<case_number> case_number_of(std::string_view word) noexcept
{
    case_number found;
    found.is_reference = word.size() > 1 && to_upper_ascii(word.front()) == 'R';
    const std::optional<int> number = whole_value(word.substr(found.is_reference ? 1 : 0));
    found.number = number.value_or(0);
    return found.number > 0 ? std::optional(found) : std::nullopt;
}

void read_pairs(structure_reading& context, std::size_t statement, bool are_references,
                std::vector<Structure::CaseFactor>& terms)
{
    pair_reader reader(context, are_references, terms);
    context.each_data_row(statement, [&](const row_words& words, std::size_t row) { reader.read_row(words, row); });
    reader.end();
}

void read_sum(structure_reading& context, std::size_t statement, load_list& loads)
{
    Structure::Load load;
    load.kind = Structure::Load::Kind::cases;
    load.source = context.source_of_statement(statement);
    read_pairs(context, statement, context.deck.statement(statement).command == Command::reference_load, load.sum);
    if (!load.sum.empty())
        loads.push_back(std::move(load));
    else
        context.report_unread(context.deck.statement(statement).first_row, "a sum of no cases");
}

namespace {

/// Numbers of cases that the analysis makes, as ranges that do not touch, ascending.
std::vector<Structure::Range> merged(std::vector<Structure::Range> ranges)
{
    std::ranges::sort(ranges, {}, &Structure::Range::first);
    std::vector<Structure::Range> merged;
    for (const Structure::Range& range : ranges)
        if (!merged.empty() && range.first <= merged.back().last)
            merged.back().last = std::max(merged.back().last, range.last);
        else
            merged.push_back(range);
    return merged;
}

bool holds(const std::vector<Structure::Range>& ranges, int number) noexcept
{
    const auto after = std::ranges::upper_bound(ranges, number, {}, &Structure::Range::first);
    return after != ranges.begin() && std::prev(after)->last >= number;
}

} // namespace

void check_sums(structure_reading& context)
{
    const std::vector<Structure::Range> made = merged(context.made_cases);
    case_graph graph(context.structure);
    const auto text_of = [&](const case_graph::node& named) {
        return std::string(named.is_reference ? "R" : "") + std::to_string(named.number);
    };
    for (int from = 0; from < graph.size(); ++from)
        for (const case_graph::edge& term : graph.terms_of(from))
            if (const case_graph::node& named = graph[term.to];
                named.kind == case_graph::node_kind::missing && (named.is_reference || !holds(made, named.number)))
                context.findings.add(FindingCode::case_unknown, place_of(context.structure, term.source),
                                     [&] { return "no load case " + text_of(named); });
    case_graph::walker walker(graph);
    walker.begin();
    for (int from = 0; from < graph.size(); ++from)
        walker.walk(
            from, [](int) { return true; }, [](int) {},
            [&](const case_graph::edge& term) {
                context.findings.add(FindingCode::line_unread, place_of(context.structure, term.source), [&] {
                    return "a sum that comes to itself by " + text_of(graph[term.to]) + ", which is left out of it";
                });
            });
}

} // namespace STAAD::detail
