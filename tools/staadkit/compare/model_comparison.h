/// How a model differs from an earlier one: the data that "compare" reports.
#ifndef TOOLS_STAADKIT_COMPARE_MODEL_COMPARISON_H
#define TOOLS_STAADKIT_COMPARE_MODEL_COMPARISON_H

#include "staad/compare/take_over.h"
#include "staad/model/sd_reader.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// What is compared, and what is not, in the words of the report.
inline constexpr const char* compared_parts[] = {"joints", "members", "elements", "surfaces", "sections"};
inline constexpr const char* parts_not_compared[] = {
    "supports",    "releases",     "groups",      "materials", "thicknesses", "offsets",
    "beta angles", "member kinds", "user tables", "loads",     "units",
};

/// Joints, members, elements or surfaces of both models, paired as STAAD::pair_records does.
struct kind_comparison {
    std::size_t in_new = 0;
    std::size_t in_old = 0;
    std::size_t matched = 0;
    std::size_t renumbered = 0; ///< of those matched
    std::vector<int> moved;     ///< numbers in both
    std::vector<int> added;     ///< numbers in the new model
    std::vector<int> gone;      ///< numbers in the old one

    bool differs() const noexcept { return !moved.empty() || !added.empty() || !gone.empty(); }
};

/// A joint that has been moved, in mm and the axes of the file.
struct moved_joint {
    int number = 0;
    std::array<double, 3> old_place{};
    std::array<double, 3> new_place{};

    /// The largest move along one axis.
    double largest_shift() const;
};

/// Matched members whose property text changed in the same way.
struct section_change {
    std::string old_property;
    std::string new_property;
    std::vector<int> members; ///< numbers in the new model
};

struct model_comparison {
    kind_comparison joints;
    kind_comparison members;
    kind_comparison elements; ///< shells that are not copies of surfaces
    kind_comparison surfaces;
    std::vector<moved_joint> moved_joints;   ///< as joints.moved
    std::vector<section_change> resectioned; ///< in the order of the texts

    std::size_t resectioned_members() const noexcept;
    bool differ() const noexcept;
};

/// Names of a model's own definitions that the earlier ones replace.
struct replaced_lists {
    std::vector<std::string> groups;
    std::vector<std::string> supports;
    std::vector<std::string> releases;
};

/// How two models differ, and what the new one would take over.
struct compared_models {
    model_comparison comparison;
    STAAD::TakenOver taken;
    replaced_lists replaced;
};

/// Changes neither model.
compared_models compare_models(const STAAD::SdReader& now, const STAAD::SdReader& earlier);

} // namespace tool

#endif
