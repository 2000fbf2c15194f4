#include "staad/model/sd_reader.h"

namespace STAAD {

void SdReader::init()
{
    nodes.clear();
    beams.clear();
    shells.clear();
    load_cases.clear();
    load_defs.clear();
    usr_tables.clear();
    beam_forces.clear();
    raw_load_defs.clear();
    node_index.clear();
    beam_index.clear();
    shell_index.clear();
}

void SdReader::Reset()
{
    *this = {};
}

} // namespace STAAD
