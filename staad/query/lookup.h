/// Look-ups in a model's lists.
#ifndef STAAD_QUERY_LOOKUP_H
#define STAAD_QUERY_LOOKUP_H

#include "staad/export.h"

#include <cstddef>

namespace STAAD {

class SdReader;

/// Number of elements in SdReader::shells; they come first. The rest are copies of surfaces.
STAAD_API std::size_t element_count(const SdReader& model) noexcept;

} // namespace STAAD

#endif
