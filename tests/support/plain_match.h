/// The comparison of two models in the plainest way: one rule after the other, everything compared with
/// everything. What the library finds is compared with it.
#ifndef STAAD_TESTS_SUPPORT_PLAIN_MATCH_H
#define STAAD_TESTS_SUPPORT_PLAIN_MATCH_H

#include "staad/model/sd_reader.h"

namespace STAAD::plain {

/// The counterparts of `model` in `earlier`.
OldProjMaps match(const SdReader& model, const SdReader& earlier);

} // namespace STAAD::plain

#endif
