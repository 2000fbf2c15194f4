/// Elements and surfaces among the shells of a model.
#ifndef TOOLS_STAADKIT_OUTPUT_ELEMENT_COUNT_H
#define TOOLS_STAADKIT_OUTPUT_ELEMENT_COUNT_H

#include "staad/model/sd_reader.h"

#include <algorithm>
#include <cstddef>

namespace tool {

/// How many shells are elements. They come first, the copies of the surfaces behind them.
inline std::size_t element_count(const STAAD::SdReader& model)
{
    return model.shells.size() - std::min(model.shells.size(), model.surfaces.size());
}

} // namespace tool

#endif
