#include "tool_run.h"

#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace cli_test {
namespace {

/// The three streams of the process to be, each a file.
class redirections {
public:
    redirections(const std::string& in, const std::string& out, const std::string& err)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, in.c_str(), O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    }
    ~redirections() { posix_spawn_file_actions_destroy(&actions_); }
    redirections(const redirections&) = delete;
    redirections& operator=(const redirections&) = delete;

    const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_;
};

int run_to_end(std::vector<std::string> words, const redirections& streams)
{
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    pid_t process = 0;
    if (posix_spawn(&process, pointers.front(), streams.get(), nullptr, pointers.data(), environ) != 0)
        throw std::runtime_error("cannot start " + words.front());
    int status = 0;
    if (waitpid(process, &status, 0) != process)
        throw std::runtime_error("lost " + words.front());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::vector<std::string> call_of(std::vector<std::string> before, const std::vector<std::string>& arguments)
{
    before.emplace_back(STAADKIT_TOOL_PATH);
    before.insert(before.end(), arguments.begin(), arguments.end());
    return before;
}

std::filesystem::path new_folder()
{
    std::string name = (std::filesystem::temp_directory_path() / "staadkit-cli-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("cannot create " + name);
    return name;
}

} // namespace

tool_run::tool_run() : folder_(new_folder()) {}

tool_run::~tool_run()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string tool_run::write(const std::string& name, std::string_view bytes) const
{
    const std::string path = missing(name);
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path;
}

std::string tool_run::missing(const std::string& name) const
{
    return (folder_ / name).string();
}

tool_result tool_run::operator()(const std::vector<std::string>& arguments, std::string_view input) const
{
    return from(write("stdin", input), arguments);
}

tool_result tool_run::into(const std::string& out_path, const std::vector<std::string>& arguments) const
{
    return run(call_of({}, arguments), "/dev/null", out_path);
}

tool_result tool_run::from(const std::string& in_path, const std::vector<std::string>& arguments) const
{
    const std::string out = missing("stdout");
    tool_result result = run(call_of({}, arguments), in_path, out);
    result.out = read_file(out);
    return result;
}

tool_result tool_run::within(std::size_t megabytes, const std::vector<std::string>& arguments) const
{
    return limited("-v " + std::to_string(megabytes * 1024), arguments);
}

tool_result tool_run::with_small_files(const std::vector<std::string>& arguments) const
{
    return limited("-f 8", arguments);
}

std::vector<std::string> tool_run::names() const
{
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
        const std::string name = entry.path().filename().string();
        if (name != "stdin" && name != "stdout" && name != "stderr")
            found.push_back(name);
    }
    std::sort(found.begin(), found.end());
    return found;
}

tool_result tool_run::limited(const std::string& limit, const std::vector<std::string>& arguments) const
{
    const std::string command = "ulimit " + limit + " && exec \"$0\" \"$@\"";
    const std::string out = missing("stdout");
    tool_result result = run(call_of({"/bin/sh", "-c", command}, arguments), "/dev/null", out);
    result.out = read_file(out);
    return result;
}

tool_result tool_run::run(const std::vector<std::string>& command, const std::string& in_path,
                          const std::string& out_path) const
{
    const std::string err = missing("stderr");
    tool_result result;
    result.exit_code = run_to_end(command, redirections(in_path, out_path, err));
    result.err = read_file(err);
    return result;
}

std::string tower_deck()
{
    return "STAAD SPACE\n"
           "UNIT METER KN\n"
           "JOINT COORDINATES\n"
           "1 0 -0.5 0; 2 6 -0.5 0; 3 0 3.7 0; 4 6 3.7 0; 5 0 7.3 0; 6 6 7.3 0;\n"
           "7 0 10.9 0; 8 6 10.9 0; 9 0 -0.5 8.25;\n"
           "MEMBER INCIDENCES\n"
           "1 1 3; 2 2 4; 3 3 5; 4 4 6; 5 5 7; 6 6 8; 7 3 4; 8 5 6; 9 7 8;\n"
           "10 1 4; 11 3 4; 12 9 3;\n"
           "ELEMENT INCIDENCES SHELL\n"
           "101 3 4 6 5;\n"
           "ELEMENT PROPERTY\n"
           "101 THICKNESS 0.2\n"
           "SURFACE INCIDENCE\n"
           "5 6 8 7 SUR 1\n"
           "SURFACE PROPERTY\n"
           "1 THICKNESS 0.15\n"
           "START GROUP DEFINITION\n"
           "JOINT\n"
           "_BASE 1 2 9\n"
           "MEMBER\n"
           "_COLUMNS 1 TO 6\n"
           "END GROUP DEFINITION\n"
           "START USER TABLE\n"
           "TABLE 1\n"
           "UNIT METER KN\n"
           "WIDE FLANGE\n"
           "H300\n"
           "0.3 0.15 0.0065 0.009\n"
           "H400\n"
           "0.4 0.2 0.008 0.013\n"
           "END\n"
           "MEMBER PROPERTY AMERICAN\n"
           "1 2 UPTABLE 1 H300\n"
           "3 4 TABLE ST PIPE OD 0.2 ID 0.18\n"
           "5 6 TAPERED 0.6 0.008 0.6 0.25 0.012\n"
           "7 TO 9 PRIS YD 0.5 ZD 0.3\n"
           "10 PRIS AX 0.01 IZ 0.0002\n"
           "11 TABLE ST HN400X200X8X13\n"
           "CONSTANTS\n"
           "BETA 90 MEMB 1 2\n"
           "MATERIAL STEEL ALL\n"
           "SUPPORTS\n"
           "1 2 2 FIXED\n"
           "9 400 PINNED\n"
           "MEMBER TRUSS\n"
           "10 11\n"
           "MEMBER RELEASE\n"
           "7 8 START MY MZ\n"
           "MEMBER OFFSET\n"
           "9 START 0.1 0 0\n"
           "LOAD 1 LOADTYPE Dead TITLE DL\n"
           "SELFWEIGHT Y -1\n"
           "MEMBER LOAD\n"
           "7 TO 9 UNI GY -5\n"
           "7 CON GY -10 3\n"
           "JOINT LOAD\n"
           "7 8 FX 12\n"
           "LOAD 2 LOADTYPE Wind TITLE WIND X\n"
           "JOINT LOAD\n"
           "7 8 FX 5\n"
           "7 FZ 5\n"
           "LOAD COMB 3 ALL\n"
           "1 1.2 2 1.4\n"
           "PERFORM ANALYSIS\n"
           "FINISH\n";
}

std::string small_deck(std::string_view more_lines)
{
    return "STAAD SPACE\n"
           "UNIT METER KN\n"
           "JOINT COORDINATES\n"
           "1 0 0 0; 2 0 3 0;\n"
           "MEMBER INCIDENCES\n"
           "1 1 2;\n" +
           std::string(more_lines) + "FINISH\n";
}

std::string read_file(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

bool has_line(std::string_view text, std::string_view line)
{
    const std::string all = '\n' + std::string(text);
    return contains(all, '\n' + std::string(line) + '\n');
}

} // namespace cli_test
