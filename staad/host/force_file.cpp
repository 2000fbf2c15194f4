#include "staad/host/force_file.h"

#include "staad/host/platform_services.h"
#include "staad/io/file_access.h"

#include <cstddef>

namespace STAAD {
namespace {

// Of the Windows dialog: the file must exist, no check box for read-only.
constexpr unsigned file_must_exist = 0x1000;
constexpr unsigned hide_read_only = 0x0004;

} // namespace

std::string force_file_beside(std::string_view path)
{
    constexpr std::size_t extension_size = 4;
    if (path.size() >= extension_size)
        path.remove_suffix(extension_size);
    return std::string(path) + ".txt";
}

std::string find_force_file(std::string_view path)
{
    std::string beside = force_file_beside(path);
    if (detail::can_be_opened(beside.c_str()))
        return beside;
    return GetPlatformServices().AskForFile({// internal-force output files(*.txt)
                                             u"\u5185\u529B\u8F93\u51FA\u6587\u4EF6(*.txt)|*.txt|"
                                             // all files(*.*)
                                             u"\u6240\u6709\u6587\u4EF6(*.*)|*.*||",
                                             file_must_exist | hide_read_only});
}

} // namespace STAAD
