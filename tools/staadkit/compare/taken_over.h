/// What a model would take over from an earlier one, and what of it would be lost.
#ifndef TOOLS_STAADKIT_COMPARE_TAKEN_OVER_H
#define TOOLS_STAADKIT_COMPARE_TAKEN_OVER_H

#include "staad/model/sd_reader.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// A group, or a description of supports or releases, of the earlier model.
struct taken_list {
    std::string name; ///< of a group, else the description
    std::string kind; ///< of a group, as the file has it
    std::size_t numbers = 0;
    std::vector<int> lost;  ///< those of them without a counterpart, repeats kept
    bool by_joints = false; ///< element numbers that are taken for those of joints

    std::size_t taken() const noexcept { return numbers - lost.size(); }
};

/// Names of a model's own definitions that make room for the earlier ones.
struct replaced_lists {
    std::vector<std::string> groups;
    std::vector<std::string> supports;
    std::vector<std::string> releases;

    bool empty() const noexcept { return groups.empty() && supports.empty() && releases.empty(); }
};

struct taken_over {
    std::vector<taken_list> groups; ///< those of which nothing is left are dropped
    std::vector<taken_list> supports;
    std::vector<taken_list> releases;
    replaced_lists replaced;
};

/// What SdReader::TakeOverFrom would do, told from the `old_proj_maps` of `now`.
taken_over summarise_take_over(const STAAD::SdReader& now, const STAAD::SdReader& earlier);

} // namespace tool

#endif
