/// The two forms of a load case header.
#ifndef STAAD_READER_BLOCKS_LOAD_HEADER_H
#define STAAD_READER_BLOCKS_LOAD_HEADER_H

#include <cstddef>

namespace STAAD::detail {

/// "LOAD 1 LOADTYPE Dead TITLE DL". A header of fewer words, such as "LOAD 1" or "LOAD 1 DEAD LOAD",
/// names its case in another way.
inline constexpr std::size_t words_of_full_load_header = 6;

} // namespace STAAD::detail

#endif
