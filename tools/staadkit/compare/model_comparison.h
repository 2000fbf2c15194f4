/// How a model differs from an earlier one: what "compare" tells before it is put in words.
#ifndef TOOLS_STAADKIT_COMPARE_MODEL_COMPARISON_H
#define TOOLS_STAADKIT_COMPARE_MODEL_COMPARISON_H

#include "staad/model/sd_reader.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// Joints, members, elements or surfaces of both models.
///
/// What stands at the same place is the same, whatever its number. What has no counterpart there, and the
/// number of something of the other model that has none either, has been moved.
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

    /// How far along the axis of the longest way.
    double largest_shift() const;
};

/// Matched members that had one property text and have another.
struct section_change {
    std::string old_property;
    std::string new_property;
    std::vector<int> members; ///< numbers in the new model
};

struct model_comparison {
    kind_comparison joints;
    kind_comparison members;
    kind_comparison elements; ///< shells that are no copies of surfaces
    kind_comparison surfaces;
    std::vector<moved_joint> moved_joints;   ///< as joints.moved
    std::vector<section_change> resectioned; ///< in the order of the texts

    std::size_t resectioned_members() const noexcept;
    bool differ() const noexcept;
};

/// Fills the `old_proj_maps` of both models: of `now` as SdReader::MakeMap does, those of `earlier` are empty
/// afterwards.
model_comparison compare_models(STAAD::SdReader& now, STAAD::SdReader& earlier);

} // namespace tool

#endif
