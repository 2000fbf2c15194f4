/// Load cases, reference cases and combinations, and which of them are sums of which.
#ifndef STAAD_STRUCTURE_CASE_GRAPH_H
#define STAAD_STRUCTURE_CASE_GRAPH_H

#include "staad/structure/structure.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace STAAD::detail {

/// Nodes are numbered from 0: load cases, reference cases and combinations in the order of the structure, then the
/// numbers that sums name and no record has. Of a load case and a combination of one number sums mean the load case,
/// of two combinations the later. Cost: one visit of every term.
class case_graph {
public:
    enum class node_kind : std::uint8_t { load_case, combination, missing };

    struct node {
        int number = 0;
        bool is_reference = false;
        node_kind kind = node_kind::missing;
        bool has_own_loads = false; ///< other than sums
        bool is_plain_sum = false;  ///< a combination that is neither SRSS nor ABS
        std::size_t first_edge = 0;
    };
    struct edge {
        int to;
        double factor;
        Structure::Source source; ///< of the sum
    };
    struct edges {
        const edge* first;
        const edge* past_last;
        const edge* begin() const noexcept { return first; }
        const edge* end() const noexcept { return past_last; }
        std::size_t size() const noexcept { return static_cast<std::size_t>(past_last - first); }
    };

    explicit case_graph(const Structure& structure);

    int size() const noexcept { return static_cast<int>(nodes_.size()); }
    const node& operator[](int index) const noexcept { return nodes_[static_cast<std::size_t>(index)]; }
    edges terms_of(int index) const noexcept;
    /// The node of a record of the structure itself; of a copy that of its number, -1 if none has it.
    int node_of(const Structure::Combination& combination) const noexcept;
    int node_of(const Structure::LoadCase& load_case) const noexcept;

    class walker;

private:
    void add_terms(const std::vector<Structure::CaseFactor>& terms, Structure::Source source);
    /// The node of a number; a new one if none has it.
    int named(const Structure::CaseFactor& term);

    const Structure* structure_;
    std::vector<node> nodes_;
    std::vector<edge> edges_;
    std::unordered_map<int, int> cases_; // number to node, combinations included
    std::unordered_map<int, int> references_;
};

/// Walks from nodes to the terms of their sums, depth first, no node twice between two calls of begin().
class case_graph::walker {
public:
    explicit walker(const case_graph& graph) : graph_(&graph), state_(static_cast<std::size_t>(graph.size())) {}

    void begin() noexcept { done_ += 2; }

    /// `passes(node)`: its terms are walked, too; `leave(node)`: all that come after it are done; `back(edge)`: a term
    /// that comes to a node from which the walk came there.
    template<class Passes, class Leave, class Back>
    void walk(int root, Passes passes, Leave leave, Back back)
    {
        enter(root, true);
        while (!path_.empty()) {
            step& top = path_.back();
            if (top.next == top.past) {
                state(top.node) = done_;
                leave(top.node);
                path_.pop_back();
                continue;
            }
            const edge& term = *top.next++;
            if (state(term.to) == on_path())
                back(term);
            else
                enter(term.to, passes(term.to));
        }
    }

private:
    struct step {
        int node;
        const edge* next;
        const edge* past;
    };
    std::uint64_t on_path() const noexcept { return done_ - 1; }
    std::uint64_t& state(int node) noexcept { return state_[static_cast<std::size_t>(node)]; }
    void enter(int node, bool passes)
    {
        if (state(node) == done_)
            return;
        state(node) = on_path();
        const edges terms = graph_->terms_of(node);
        path_.push_back({node, passes ? terms.begin() : terms.end(), terms.end()});
    }

    const case_graph* graph_;
    std::vector<std::uint64_t> state_; // by node: done_, on_path(), or of an earlier walk
    std::uint64_t done_ = 0;
    std::vector<step> path_;
};

} // namespace STAAD::detail

#endif
