#include "staad/io/native_path.h"

#include "staad/io/windows_path.h"

namespace STAAD {

std::filesystem::path native_path(std::string_view name)
{
#ifdef _WIN32
    return detail::wide_path(name);
#else
    return name;
#endif
}

} // namespace STAAD
