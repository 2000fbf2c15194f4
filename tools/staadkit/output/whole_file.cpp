#include "output/whole_file.h"

#include "cli/native_path.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

#ifdef _WIN32
#    include <io.h> // _commit
#else
#    include <unistd.h> // fsync
#endif

namespace tool {
namespace {

namespace fs = std::filesystem;

std::error_code last_error()
{
    return {errno, std::generic_category()};
}

/// Waits until what was written stands on the disk: a rename may reach it before the content does.
bool flush_to_disk(std::FILE* file)
{
#ifdef _WIN32
    return _commit(_fileno(file)) == 0;
#else
    return fsync(fileno(file)) == 0;
#endif
}

/// An output file that closes itself, and can tell whether that went well.
class output_file {
public:
    /// `mode` as std::fopen has it.
    output_file(const fs::path& path, const char* mode) : file_(open_file(path, mode)) {}
    ~output_file() { close(); }
    output_file(const output_file&) = delete;
    output_file& operator=(const output_file&) = delete;

    bool is_open() const noexcept { return file_ != nullptr; }

    bool put(std::string_view text)
    {
        return std::fwrite(text.data(), 1, text.size(), file_) == text.size() && std::fflush(file_) == 0;
    }

    bool sync() { return flush_to_disk(file_); }

    bool close()
    {
        std::FILE* const file = file_;
        file_ = nullptr;
        return file == nullptr || std::fclose(file) == 0;
    }

private:
    std::FILE* file_;
};

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

/// Removes the file at its path, unless it was told that this is no longer to be done.
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
    output_file file(path, "w");
    if (!file.is_open() || !file.put(text) || !file.close())
        return last_error();
    return {};
}

/// `target` is no link. With `permissions` none, the new file gets those that any new file gets.
std::error_code write_and_rename(const fs::path& target, fs::perms permissions, std::string_view text)
{
    const fs::path temporary = random_path(target.parent_path());
    output_file file(temporary, "wx"); // never a file that is there already
    if (!file.is_open())
        return last_error();
    removal on_failure(temporary);
    if (!file.put(text) || !file.sync() || !file.close())
        return last_error();
    std::error_code error;
    if (permissions != fs::perms::none)
        fs::permissions(temporary, permissions, error);
    if (!error)
        fs::rename(temporary, target, error);
    if (!error)
        on_failure.cancel();
    return error;
}

/// Where links that lead to no file yet would have it.
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
        path = path.parent_path() / next; // the latter alone if it is absolute
    }
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return path;
}

/// Where a text goes, and how.
struct write_target {
    fs::path path;        ///< at the end of all links
    fs::file_status file; ///< what stands there
    std::error_code error;

    /// A file takes the place of another; into what is no file, a text is written.
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

/// Why this process cannot write to what is there, as far as the system tells.
std::error_code obstacle_at(const fs::path& file)
{
#ifdef _WIN32
    constexpr int for_writing = 2;
    return _waccess(file.c_str(), for_writing) == 0 ? std::error_code() : last_error();
#else
    return access(file.c_str(), W_OK) == 0 ? std::error_code() : last_error();
#endif
}

/// The same of making a file in `folder`.
std::error_code obstacle_in(const fs::path& folder)
{
#ifdef _WIN32
    // The attributes of a folder do not say who may write into it.
    std::error_code error;
    const bool is_there = folder.empty() || fs::is_directory(folder, error);
    return is_there ? std::error_code() : std::make_error_code(std::errc::no_such_file_or_directory);
#else
    return obstacle_at(folder / "."); // the current folder if it is empty, and no other file than a folder
#endif
}

} // namespace

std::error_code obstacle_to_writing(const fs::path& path)
{
    const write_target target = find_target(path);
    if (target.error)
        return target.error;
    return target.is_file() ? obstacle_in(target.path.parent_path()) : obstacle_at(target.path);
}

std::error_code write_whole_file(const fs::path& path, std::string_view text)
{
    const write_target target = find_target(path);
    if (target.error)
        return target.error;
    if (!target.is_file())
        return write_directly(target.path, text);
    const bool is_there = target.file.type() == fs::file_type::regular;
    return write_and_rename(target.path, is_there ? target.file.permissions() : fs::perms::none, text);
}

} // namespace tool
