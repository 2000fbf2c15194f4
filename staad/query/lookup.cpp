#include "staad/query/lookup.h"

#include "staad/model/sd_reader.h"

#include <algorithm>

namespace STAAD {
namespace {

template<class Records>
int locate(const Records& records, int id)
{
    const auto found = std::find_if(records.begin(), records.end(), [id](const auto& r) { return r.id == id; });
    return found == records.end() ? -1 : static_cast<int>(found - records.begin()) + 1;
}

} // namespace

std::size_t element_count(const SdReader& model) noexcept
{
    return model.shells.size() - std::min(model.shells.size(), model.surfaces.size());
}

int SdReader::locateBeamIndex(int id) const
{
    return locate(beams, id);
}

int SdReader::locateNodeIndex(int id) const
{
    return locate(nodes, id);
}

int SdReader::locateShellIndex(int id) const
{
    return locate(shells, id);
}

} // namespace STAAD
