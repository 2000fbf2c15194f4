#include "staad/io/whole_file.h"

#include "staad/io/output_file.h"

#include <cerrno>
#include <random>
#include <string>

#ifdef _WIN32
#    include "staad/io/windows_path.h"

#    include <io.h> // _waccess
#else
#    include <unistd.h> // access
#endif

namespace STAAD {
namespace {

namespace fs = std::filesystem;
using detail::output_file;

std::error_code last_error()
{
    return {errno, std::generic_category()};
}

/// `path` in the form that the system's own functions need.
fs::path system_form(const fs::path& path)
{
#ifdef _WIN32
    return detail::long_path(path.native());
#else
    return path;
#endif
}

/// A path in `folder` that is most likely free.
fs::path random_path(const fs::path& folder)
{
    constexpr char digits[] = "0123456789abcdef";
    std::random_device random;
    std::string name = ".staadkit-";
    for (int i = 0; i < 16; ++i)
        name += digits[random() % 16];
    return folder / (name + ".tmp");
}

/// Scope guard: deletes the file unless cancelled.
class removal {
public:
    explicit removal(const fs::path& path) : path_(path) {}
    ~removal()
    {
        std::error_code ignored;
        if (!cancelled_)
            fs::remove(path_, ignored);
    }
    removal(const removal&) = delete;
    removal& operator=(const removal&) = delete;

    void cancel() noexcept { cancelled_ = true; }

private:
    const fs::path& path_;
    bool cancelled_ = false;
};

std::error_code write_directly(const fs::path& path, std::string_view text)
{
    output_file file(path);
    file.write(text);
    return file.close();
}

/// `target` is no link. With `permissions` none, the new file gets those that any new file gets.
std::error_code write_and_rename(const fs::path& target, fs::perms permissions, std::string_view text)
{
    const fs::path temporary = random_path(target.parent_path());
    output_file file(temporary, "wx"); // never a file that is there already
    if (!file.is_open())
        return file.close();
    removal on_failure(temporary);
    file.write(text);
    file.flush_to_disk();
    std::error_code error = file.close();
    if (!error && permissions != fs::perms::none)
        fs::permissions(temporary, permissions, error);
    if (!error)
        fs::rename(temporary, target, error);
    if (!error)
        on_failure.cancel();
    return error;
}

/// The end of a chain of links, which need not exist.
fs::path end_of_links(fs::path path, std::error_code& error)
{
    constexpr int most_links = 40;
    for (int i = 0; i < most_links; ++i) {
        std::error_code no_file; // is no error here
        if (!fs::is_symlink(fs::symlink_status(path, no_file)))
            return path;
        const fs::path next = fs::read_symlink(path, error);
        if (error)
            return path;
        path = path.parent_path() / next; // `next` alone if it is absolute
    }
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return path;
}

/// Where a text goes, and how.
struct write_target {
    fs::path path;        ///< at the end of all links
    fs::file_status file; ///< what stands there
    std::error_code error;

    /// A file is replaced; to anything else the text is written directly.
    bool is_file() const { return file.type() == fs::file_type::regular || file.type() == fs::file_type::not_found; }
};

write_target find_target(const fs::path& path)
{
    write_target target{path, {}, {}};
    target.file = fs::status(path, target.error);
    if (target.file.type() == fs::file_type::none)
        return target;
    target.error.clear();
    if (target.file.type() == fs::file_type::directory)
        target.error = std::make_error_code(std::errc::is_a_directory);
    else if (target.file.type() == fs::file_type::regular)
        target.path = fs::canonical(path, target.error);
    else if (target.file.type() == fs::file_type::not_found)
        target.path = end_of_links(path, target.error);
    return target;
}

/// Why this process cannot write to an existing file, as far as the system reports it.
std::error_code obstacle_at(const fs::path& file)
{
#ifdef _WIN32
    constexpr int for_writing = 2;
    return _waccess(file.c_str(), for_writing) == 0 ? std::error_code() : last_error();
#else
    return access(file.c_str(), W_OK) == 0 ? std::error_code() : last_error();
#endif
}

/// Why it cannot make a file in `folder`.
std::error_code obstacle_in(const fs::path& folder)
{
#ifdef _WIN32
    // On Windows the attributes of a folder do not show who may write into it.
    std::error_code error;
    const bool is_there = folder.empty() || fs::is_directory(folder, error);
    return is_there ? std::error_code() : std::make_error_code(std::errc::no_such_file_or_directory);
#else
    return obstacle_at(folder / "."); // the current folder if it is empty; fails for what is no folder
#endif
}

} // namespace

std::error_code obstacle_to_writing(const fs::path& path)
{
    const write_target target = find_target(system_form(path));
    if (target.error)
        return target.error;
    return target.is_file() ? obstacle_in(target.path.parent_path()) : obstacle_at(target.path);
}

std::error_code write_whole_file(const fs::path& path, std::string_view text)
{
    const write_target target = find_target(system_form(path));
    if (target.error)
        return target.error;
    if (!target.is_file())
        return write_directly(target.path, text);
    const bool is_there = target.file.type() == fs::file_type::regular;
    return write_and_rename(target.path, is_there ? target.file.permissions() : fs::perms::none, text);
}

} // namespace STAAD
