#include "output/model_output.h"

#include "cli/messages.h"
#include "cli/text_encoding.h"
#include "output/std_output.h"
#include "staad/io/native_path.h"
#include "staad/io/whole_file.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tool {
namespace {

namespace fs = std::filesystem;

bool is_same_file(const std::string& one, const std::string& other)
{
    std::error_code not_both;
    return fs::equivalent(STAAD::native_path(one), STAAD::native_path(other), not_both);
}

} // namespace

std::string output_name(const std::string& path)
{
    return path == "-" ? "<stdout>" : path;
}

std::string why_not_there(const std::string& path, const std::vector<std::string>& inputs, bool force)
{
    if (path == "-")
        return {};
    std::error_code no_file;
    if (!force && fs::is_regular_file(STAAD::native_path(path), no_file)) {
        const bool is_input = std::any_of(inputs.begin(), inputs.end(),
                                          [&path](const std::string& input) { return is_same_file(input, path); });
        const std::string what = !is_input ? "is there already" : inputs.size() == 1 ? "is the input" : "is an input";
        return what + "; --force overwrites it";
    }
    const std::error_code obstacle = STAAD::obstacle_to_writing(STAAD::native_path(path));
    return obstacle ? obstacle.message() : std::string();
}

exit_code fail_to_write(const std::string& path, const std::string& reason)
{
    print_error(printable_name(path) + ": " + reason);
    return not_written;
}

exit_code write_output(const std::string& path, std::string_view text, exit_code so_far)
{
    if (path == "-")
        return print_result(text, so_far);
    const std::error_code error = STAAD::write_whole_file(STAAD::native_path(path), text);
    return error ? fail_to_write(path, error.message()) : so_far;
}

} // namespace tool
