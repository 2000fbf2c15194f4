/// 1-based positions in the model's lists: members and shells name their joints by them.
#ifndef STAAD_MODEL_POSITIONS_H
#define STAAD_MODEL_POSITIONS_H

#include <cstddef>
#include <vector>

namespace STAAD {

/// The record at the 1-based `position`; null if the list has none. `position` may be any number.
template<class Record>
const Record* at_position(const std::vector<Record>& list, int position) noexcept
{
    const auto index = static_cast<std::size_t>(position) - 1;
    return position > 0 && index < list.size() ? &list[index] : nullptr;
}

template<class Record>
Record* at_position(std::vector<Record>& list, int position) noexcept
{
    return const_cast<Record*>(at_position(static_cast<const std::vector<Record>&>(list), position));
}

} // namespace STAAD

#endif
