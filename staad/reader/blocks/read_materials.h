/// MATERIAL lines: the material names of members and shells.
#ifndef STAAD_READER_BLOCKS_READ_MATERIALS_H
#define STAAD_READER_BLOCKS_READ_MATERIALS_H

#include "staad/model/sd_reader.h"
#include "staad/reader/reading.h"
#include "staad/text/lines.h"

namespace STAAD::detail {

/// Every line of the text that begins with "MATERIAL", wherever it stands.
void assign_materials(SdReader& model, const line_list& lines, reading& run);

} // namespace STAAD::detail

#endif
