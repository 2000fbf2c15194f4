/// A structure as JSON; docs/structure.schema.json describes the document.
#ifndef TOOLS_STAADKIT_DUMP_STRUCTURE_JSON_H
#define TOOLS_STAADKIT_DUMP_STRUCTURE_JSON_H

#include "output/std_output.h"
#include "staad/structure/structure.h"

namespace tool {

/// Writes the structure as a whole document, record by record. Throws std::bad_alloc.
void put_structure_json(std_output& out, const STAAD::Structure& structure);

} // namespace tool

#endif
