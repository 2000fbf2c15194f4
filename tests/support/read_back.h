/// What a model is after it was written and read again, worked out from the model alone.
#ifndef STAAD_TESTS_SUPPORT_READ_BACK_H
#define STAAD_TESTS_SUPPORT_READ_BACK_H

#include "staad/model/sd_reader.h"

namespace STAAD {

/// The model that a reading of the text of `model` gives. `model` was read from a file: its texts and numbers
/// are such as a file can hold, and its parameter blocks are empty. Every field that does not come back as it
/// was is stated in read_back.cpp; all others do.
SdReader read_back(const SdReader& model);

} // namespace STAAD

#endif
