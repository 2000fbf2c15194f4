/// The listing that belongs to a ".std" file, and the layered project that is built with its forces.
#include "staad/host/force_file.h"

#include "staad/host/platform_services.h"
#include "staad/io/native_path.h"
#include "staad/io/open_file.h"
#include "staad/report/read_report.h"
#include "staad/storeys/layered_project.h"

#include <cstddef>
#include <filesystem>
#include <utility>

namespace STAAD {
namespace {

// Of the Windows dialog: the file must exist, no check box for read-only.
constexpr unsigned file_must_exist = 0x1000;
constexpr unsigned hide_read_only = 0x0004;

/// `name` without its last four characters, or whole if it has fewer.
template<class Text>
Text without_extension(Text name)
{
    constexpr std::size_t extension_size = 4;
    return name.size() < extension_size ? name : name.substr(0, name.size() - extension_size);
}

std::string ask_for_force_file()
{
    return GetPlatformServices().AskForFile({// internal-force output files(*.txt)
                                             u"\u5185\u529B\u8F93\u51FA\u6587\u4EF6(*.txt)|*.txt|"
                                             // all files(*.*)
                                             u"\u6240\u6709\u6587\u4EF6(*.*)|*.*||",
                                             file_must_exist | hide_read_only});
}

std::string force_file_of(const char* path)
{
    return find_force_file(path);
}

std::filesystem::path force_file_of(const std::filesystem::path& path)
{
    std::filesystem::path beside = without_extension(path.native());
    beside += ".txt";
    return detail::can_be_opened(beside) ? beside : native_path(ask_for_force_file());
}

const char* as_argument(const std::string& path)
{
    return path.c_str();
}

const std::filesystem::path& as_argument(const std::filesystem::path& path)
{
    return path;
}

/// `path` is a `const char*` or a path; the reports may be null.
template<class Path>
bool build(StaadProProject_layered& project, const Path& path, int with_forces, ReadReport* of_model,
           ReadReport* of_forces)
{
    SdReader model;
    const bool is_read =
        of_model == nullptr ? model.ReadSDDataFromStdFile(path) : model.ReadSDDataFromStdFile(path, *of_model);
    if (!is_read)
        return false;
    if (with_forces != 0) {
        const auto listing = force_file_of(path);
        if (of_forces == nullptr)
            model.ReadForceMomentFromTxtFile(as_argument(listing));
        else
            model.ReadForceMomentFromTxtFile(as_argument(listing), *of_forces);
    }
    return project.BuildFromModel(std::move(model));
}

} // namespace

std::string force_file_beside(std::string_view path)
{
    return std::string(without_extension(path)) + ".txt";
}

std::string find_force_file(std::string_view path)
{
    std::string beside = force_file_beside(path);
    return detail::can_be_opened(beside.c_str()) ? beside : ask_for_force_file();
}

bool StaadProProject_layered::BuidFromFile(const char* path, int with_forces)
{
    return build(*this, path, with_forces, nullptr, nullptr);
}

bool StaadProProject_layered::BuidFromFile(const char* path, int with_forces, ReadReport& of_model,
                                           ReadReport& of_forces)
{
    of_forces = {};
    return build(*this, path, with_forces, &of_model, &of_forces);
}

bool StaadProProject_layered::BuidFromFile(const std::filesystem::path& path, int with_forces)
{
    return build(*this, path, with_forces, nullptr, nullptr);
}

bool StaadProProject_layered::BuidFromFile(const std::filesystem::path& path, int with_forces, ReadReport& of_model,
                                           ReadReport& of_forces)
{
    of_forces = {};
    return build(*this, path, with_forces, &of_model, &of_forces);
}

} // namespace STAAD
