/// One joint, member, element or surface from one item of text.
#ifndef STAAD_READER_BLOCKS_GEOMETRY_ITEMS_H
#define STAAD_READER_BLOCKS_GEOMETRY_ITEMS_H

#include "staad/model/geometry.h"

#include <cstddef>
#include <string_view>

namespace STAAD::detail {

// Each sets the fields that the item carries on a fresh record, as the record's constructor tells,
// and gives the number of words, so that the caller can report an item that is too short.

std::size_t read_item(std::string_view item, SdNode& node);
std::size_t read_item(std::string_view item, SdBeam& member);
std::size_t read_item(std::string_view item, SdShell& element);
std::size_t read_item(std::string_view item, SdSurface& surface);

} // namespace STAAD::detail

#endif
