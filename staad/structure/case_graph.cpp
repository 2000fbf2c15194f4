#include "staad/structure/case_graph.h"

#include <functional>

namespace STAAD::detail {
namespace {

using load_kind = Structure::Load::Kind;

/// Position of a record that is one of `records` itself; -1 of any other.
template<class Record>
int position_in(const std::vector<Record>& records, const Record& record) noexcept
{
    const Record* const begin = records.data();
    const bool is_within = !std::less<>()(&record, begin) && std::less<>()(&record, begin + records.size());
    return is_within ? static_cast<int>(&record - begin) : -1;
}

case_graph::node node_for(const Structure::LoadCase& load_case, bool is_reference)
{
    case_graph::node made{load_case.number, is_reference, case_graph::node_kind::load_case, false, false, 0};
    for (const Structure::Load& load : load_case.loads)
        made.has_own_loads |= load.kind != load_kind::cases;
    return made;
}

int found_in(const std::unordered_map<int, int>& nodes, int number) noexcept
{
    const auto found = nodes.find(number);
    return found == nodes.end() ? -1 : found->second;
}

} // namespace

case_graph::case_graph(const Structure& structure) : structure_(&structure)
{
    for (const Structure::LoadCase& load_case : structure.load_cases) {
        cases_.try_emplace(load_case.number, size());
        nodes_.push_back(node_for(load_case, false));
    }
    for (const Structure::LoadCase& load_case : structure.reference_cases) {
        references_.try_emplace(load_case.number, size());
        nodes_.push_back(node_for(load_case, true));
    }
    const int first_combination = size();
    for (const Structure::Combination& combination : structure.combinations) {
        const auto [at, is_new] = cases_.try_emplace(combination.number, size());
        if (!is_new && at->second >= first_combination)
            at->second = size();
        nodes_.push_back({combination.number, false, node_kind::combination, false, combination.method.empty(), 0});
    }
    // Terms may add nodes: numbers that no record has, which have no terms.
    int index = 0;
    const auto add_sums = [&](const Structure::LoadCase& load_case) {
        nodes_[static_cast<std::size_t>(index++)].first_edge = edges_.size();
        for (const Structure::Load& load : load_case.loads)
            add_terms(load.sum, load.source);
    };
    for (const Structure::LoadCase& load_case : structure.load_cases)
        add_sums(load_case);
    for (const Structure::LoadCase& load_case : structure.reference_cases)
        add_sums(load_case);
    for (const Structure::Combination& combination : structure.combinations) {
        nodes_[static_cast<std::size_t>(index++)].first_edge = edges_.size();
        add_terms(combination.terms, combination.source);
    }
    for (; index < size(); ++index)
        nodes_[static_cast<std::size_t>(index)].first_edge = edges_.size();
}

void case_graph::add_terms(const std::vector<Structure::CaseFactor>& terms, Structure::Source source)
{
    for (const Structure::CaseFactor& term : terms)
        edges_.push_back({named(term), term.factor, source});
}

int case_graph::named(const Structure::CaseFactor& term)
{
    const auto [at, is_new] = (term.is_reference ? references_ : cases_).try_emplace(term.number, size());
    if (is_new)
        nodes_.push_back({term.number, term.is_reference, node_kind::missing, false, false, 0});
    return at->second;
}

case_graph::edges case_graph::terms_of(int index) const noexcept
{
    const std::size_t next = static_cast<std::size_t>(index) + 1;
    const std::size_t past = next < nodes_.size() ? nodes_[next].first_edge : edges_.size();
    return {edges_.data() + nodes_[next - 1].first_edge, edges_.data() + past};
}

int case_graph::node_of(const Structure::Combination& combination) const noexcept
{
    const int position = position_in(structure_->combinations, combination);
    return position < 0
               ? found_in(cases_, combination.number)
               : static_cast<int>(structure_->load_cases.size() + structure_->reference_cases.size()) + position;
}

int case_graph::node_of(const Structure::LoadCase& load_case) const noexcept
{
    if (const int position = position_in(structure_->load_cases, load_case); position >= 0)
        return position;
    if (const int position = position_in(structure_->reference_cases, load_case); position >= 0)
        return static_cast<int>(structure_->load_cases.size()) + position;
    return found_in(load_case.is_reference ? references_ : cases_, load_case.number);
}

} // namespace STAAD::detail
