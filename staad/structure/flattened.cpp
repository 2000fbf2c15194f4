#include "staad/structure/flattened.h"

#include "staad/report/read_limit.h"
#include "staad/structure/case_graph.h"

#include <cstddef>

namespace STAAD {
namespace detail {

class case_flattener {
public:
    explicit case_flattener(const Structure& structure)
        : structure_(&structure), graph_(structure), walker_(graph_), factor_(static_cast<std::size_t>(graph_.size())),
          place_(factor_.size())
    {
    }

    std::vector<Structure::CaseFactor> of(const Structure::Combination& combination)
    {
        const int root = graph_.node_of(combination);
        if (root < 0 || !combination.method.empty())
            return combination.terms;
        const auto passes = [this](int node) { return graph_[node].is_plain_sum; };
        spread(root, passes, combination.source);
        return gathered([&](int node) { return !passes(node); });
    }

    std::vector<Structure::CaseFactor> of(const Structure::LoadCase& load_case)
    {
        const int root = graph_.node_of(load_case);
        if (root < 0)
            return {};
        const auto passes = [this](int node) {
            return graph_[node].is_plain_sum ||
                   (graph_[node].kind == case_graph::node_kind::load_case && graph_.terms_of(node).size() > 0);
        };
        spread(root, passes, load_case.source);
        return gathered([&](int node) { return graph_[node].has_own_loads || !passes(node); });
    }

private:
    /// Walks what is below `root` and gives every node there the factor that all ways to it come to. A term to a node
    /// left later than its own comes back to a sum that it is in.
    template<class Passes>
    void spread(int root, Passes passes, Structure::Source source)
    {
        left_.clear();
        walker_.begin();
        walker_.walk(
            root, passes,
            [this](int node) {
                place_[static_cast<std::size_t>(node)] = left_.size();
                factor_[static_cast<std::size_t>(node)] = 0.0;
                left_.push_back(node);
            },
            [](const case_graph::edge&) {});
        factor_[static_cast<std::size_t>(root)] = 1.0;
        for (std::size_t i = left_.size(); i-- > 0;)
            if (left_[i] == root || passes(left_[i]))
                hand_on(i, source);
    }

    void hand_on(std::size_t place, Structure::Source source)
    {
        const int node = left_[place];
        take(graph_.terms_of(node).size(), source);
        for (const case_graph::edge& term : graph_.terms_of(node))
            if (place_[static_cast<std::size_t>(term.to)] < place)
                factor_[static_cast<std::size_t>(term.to)] += factor_[static_cast<std::size_t>(node)] * term.factor;
    }

    /// The nodes of the last walk that are wanted. Those without terms were left as soon as they were met.
    template<class IsWanted>
    std::vector<Structure::CaseFactor> gathered(IsWanted is_wanted) const
    {
        std::vector<Structure::CaseFactor> sum;
        for (const int node : left_)
            if (is_wanted(node))
                sum.push_back(
                    {graph_[node].number, graph_[node].is_reference, factor_[static_cast<std::size_t>(node)]});
        return sum;
    }

    void take(std::size_t terms, Structure::Source source)
    {
        const FileLines lines = origin(*structure_, source);
        if (terms > most_numbers_per_list - visited_)
            throw ReadLimitError(lines.first, lines.last, most_numbers_per_list);
        visited_ += terms;
    }

    const Structure* structure_;
    case_graph graph_;
    case_graph::walker walker_;
    std::vector<double> factor_;     // by node
    std::vector<std::size_t> place_; // by node, in left_
    std::vector<int> left_;          // nodes in the order in which the walk left them
    std::size_t visited_ = 0;
};

} // namespace detail

FlattenedCases::FlattenedCases(const Structure& structure)
    : flattener_(std::make_unique<detail::case_flattener>(structure))
{
}

FlattenedCases::~FlattenedCases() = default;

std::vector<Structure::CaseFactor> FlattenedCases::of(const Structure::Combination& combination)
{
    return flattener_->of(combination);
}

std::vector<Structure::CaseFactor> FlattenedCases::of(const Structure::LoadCase& load_case)
{
    return flattener_->of(load_case);
}

std::vector<Structure::CaseFactor> flattened(const Structure& structure, const Structure::Combination& combination)
{
    return FlattenedCases(structure).of(combination);
}

std::vector<Structure::CaseFactor> flattened(const Structure& structure, const Structure::LoadCase& load_case)
{
    return FlattenedCases(structure).of(load_case);
}

} // namespace STAAD
