/// Load cases in words.
#ifndef TOOLS_STAADKIT_INFO_LOAD_WORDS_H
#define TOOLS_STAADKIT_INFO_LOAD_WORDS_H

#include "staad/model/load.h"

namespace tool {

/// "dead", "live", "wind", "seismic"; "unknown" for all others.
inline const char* load_type_word(STAAD::LoadCase::LoadType type) noexcept
{
    constexpr const char* words[] = {"unknown", "dead", "live", "wind", "seismic"};
    return words[type];
}

} // namespace tool

#endif
