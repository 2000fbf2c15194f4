/// What the container holds as text, as a deck that the complete reading reads.
#ifndef STAAD_STRUCTURE_CONTAINER_CONTAINER_TEXT_H
#define STAAD_STRUCTURE_CONTAINER_CONTAINER_TEXT_H

#include "staad/model/sd_reader.h"

#include <cstddef>
#include <string>
#include <vector>

namespace STAAD::detail {

/// Lines of a deck without joints and members: units, user tables, sections, supports, releases and loads, with the
/// numbers of the container in their lists.
struct container_text {
    std::string text;
    /// Of each load definition its number and the line that it stands on, ascending by line.
    struct definition_line {
        std::size_t line;
        int definition;
    };
    std::vector<definition_line> definitions;
};

container_text text_of_container(const SdReader& model);

} // namespace STAAD::detail

#endif
