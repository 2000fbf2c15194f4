#include "staad/model/load.h"

namespace STAAD {

bool LoadDefination::operator==(const LoadDefination& other) const
{
    return kind == other.kind && direction == other.direction && load_case == other.load_case && values == other.values;
}

} // namespace STAAD
