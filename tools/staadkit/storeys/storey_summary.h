/// The data that "storeys" reports about a model.
#ifndef TOOLS_STAADKIT_STOREYS_STOREY_SUMMARY_H
#define TOOLS_STAADKIT_STOREYS_STOREY_SUMMARY_H

#include "staad/model/sd_reader.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// The records at one level, by their numbers, in the order of the file.
struct level_contents {
    std::vector<int> joints;
    std::vector<int> members;
    std::vector<int> elements; ///< shells that are not copies of surfaces
    std::vector<int> surfaces;
    std::array<std::size_t, 4> members_of{}; ///< by STAAD::BeamType
    std::size_t members_with_forces = 0;

    std::size_t shells() const noexcept { return elements.size() + surfaces.size(); }
};

struct storey_summary {
    int number = 0;      ///< from 1, the lowest
    double base = 0.0;   ///< mm
    double height = 0.0; ///< mm
    level_contents contents;
    std::vector<int> sections; ///< numbers of the sections that its members have, ascending
};

/// Why a record belongs to no storey.
enum class outside : std::size_t { at_lowest_level, above_top_level, unknown_joints, no_levels };
inline constexpr std::size_t outside_reasons = 4;

const char* outside_word(outside reason) noexcept;

/// A section by its number in the project.
struct numbered_section {
    int number = 0;
    std::string property;
    std::string material;     ///< of the first member that has it
    std::size_t members = 0;  ///< of all storeys
    std::size_t in_none = 0;  ///< members in no storey
    std::vector<int> storeys; ///< the storeys that have such members, ascending
};

struct storeys_summary {
    std::vector<double> levels;          ///< mm, ascending
    std::vector<storey_summary> storeys; ///< the lowest first; none if the model has no levels
    std::array<level_contents, outside_reasons> in_none;
    std::vector<numbered_section> sections;
};

/// The storeys of a model and their contents. The model is consumed; forces are counted if it has any.
storeys_summary summarise_storeys(STAAD::SdReader model);

} // namespace tool

#endif
