/// The normalised text of a model, which does not change.
#ifndef STAAD_WRITER_NORMALISED_TEXT_H
#define STAAD_WRITER_NORMALISED_TEXT_H

#include "staad/export.h"
#include "staad/model/sd_reader.h"

#include <string>

namespace STAAD {

/// The text that SdReader::WriteDataToText gives, byte for byte, of a model that is not changed: members
/// and elements have new numbers in the text alone.
///
/// Threads: several may write one model at the same time.
/// Throws:  std::bad_alloc.
/// Cost:    linear in the model; distinct texts and unsorted lists are sorted; memory for the text twice.
STAAD_API std::string normalised_text(const SdReader& model);

} // namespace STAAD

#endif
