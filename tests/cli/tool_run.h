/// Runs the built tool with files of its own, and catches what it prints.
#ifndef TESTS_CLI_TOOL_RUN_H
#define TESTS_CLI_TOOL_RUN_H

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace cli_test {

/// The tool, not the program that runs it, is built with it: it then takes more address space than any limit on
/// memory, and several times the time.
#ifdef STAADKIT_TOOL_HAS_ADDRESS_SANITIZER
inline constexpr bool tool_has_address_sanitizer = true;
#else
inline constexpr bool tool_has_address_sanitizer = false;
#endif

struct tool_result {
    int exit_code = -1; ///< -1: ended by a signal
    std::string out;
    std::string err;
};

/// A folder that goes away with the test, and the tool run beside it.
class tool_run {
public:
    tool_run();
    ~tool_run();
    tool_run(const tool_run&) = delete;
    tool_run& operator=(const tool_run&) = delete;

    /// Writes a file into the folder, byte for byte; gives its path.
    std::string write(const std::string& name, std::string_view bytes) const;
    /// A path in the folder at which nothing stands.
    std::string missing(const std::string& name) const;

    /// Runs the tool in the folder to its end, `input` on its standard input.
    tool_result operator()(const std::vector<std::string>& arguments, std::string_view input = {}) const;
    /// The same with the words of a line, which blanks part; a word in single quotes may have blanks.
    tool_result operator()(const char* line, std::string_view input = {}) const;
    /// The same with standard output going to `out_path`; `out` of the result stays empty.
    tool_result into(const std::string& out_path, const std::vector<std::string>& arguments) const;
    /// The same with standard input coming from `in_path`.
    tool_result from(const std::string& in_path, const std::vector<std::string>& arguments) const;
#ifndef _WIN32
    /// The same with no more than so much memory to take.
    tool_result within(std::size_t megabytes, const std::vector<std::string>& arguments) const;
    /// The same with no file that is written growing larger than 4 or 8 KB, as the shell counts.
    tool_result with_small_files(const std::vector<std::string>& arguments) const;
    /// What starts the tool as a user whom permissions bind, its arguments to follow; empty if there is no way. Opens
    /// the folder to all.
    std::vector<std::string> as_plain_user() const;
    /// Runs any command to its end.
    tool_result command(const std::vector<std::string>& words) const;
#endif

    std::string folder() const
    {
        return folder_.string();
    }
    /// The names of all that stands in the folder, streams of the tool excepted, ascending.
    std::vector<std::string> names() const;

private:
#ifndef _WIN32
    tool_result limited(const std::string& limit, const std::vector<std::string>& arguments) const;
#endif
    tool_result run(const std::vector<std::string>& command, const std::string& in_path,
                    const std::string& out_path) const;

    std::filesystem::path folder_;
};

/// A call with the words of a line, and what it answers.
struct call_row {
    const char* why;
    std::string line;
    int exit_code;
    std::string err = {}; ///< begins a line of standard error; empty: there is nothing on it
    std::string out = {}; ///< the same of standard output
};

/// Makes the calls, each with the words of `before` before its own.
void expect_answers(const tool_run& tool, const std::vector<call_row>& calls, const std::string& before = {});

/// A deck whose answers the tests know: a small tower with everything that "info" shows.
std::string tower_deck();
/// The least deck that is a model, with `more_lines` before its end.
std::string small_deck(std::string_view more_lines = {});

/// All the bytes of a file; empty if there is none.
std::string read_file(const std::string& path);
/// The same of a text that the tool wrote, with the line ends that texts have in memory.
std::string read_text(const std::string& path);

std::vector<std::string> lines_of(const std::string& text);
/// The words of a line.
std::vector<std::string> words_of(const std::string& line);

bool contains(std::string_view text, std::string_view part);
/// True if one of the lines of `text` is exactly `line`.
bool has_line(std::string_view text, std::string_view line);

} // namespace cli_test

#endif
