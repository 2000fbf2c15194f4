#include "terminal_run.h"

#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace cli_test {
namespace {

/// Our end of a terminal.
class terminal {
public:
    terminal() : end_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (end_ == -1 || grantpt(end_) != 0 || unlockpt(end_) != 0)
            throw std::runtime_error("no terminal to be had");
    }
    ~terminal() { close(end_); }
    terminal(const terminal&) = delete;
    terminal& operator=(const terminal&) = delete;

    std::string path() const { return ptsname(end_); }

    void type(std::string_view text) const
    {
        if (write(end_, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
            throw std::runtime_error("the terminal takes no input");
    }

    /// All that is shown until nobody holds the other end any more.
    std::string shown() const
    {
        std::string text;
        char block[4096];
        for (ssize_t count = 0; (count = read(end_, block, sizeof block)) > 0;)
            text.append(block, static_cast<std::size_t>(count));
        return text;
    }

private:
    int end_;
};

pid_t start(std::vector<std::string> words, const std::string& terminal_path, const std::string& out_path)
{
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t streams;
    posix_spawn_file_actions_init(&streams);
    posix_spawn_file_actions_addopen(&streams, STDIN_FILENO, terminal_path.c_str(), O_RDWR | O_NOCTTY, 0);
    posix_spawn_file_actions_addopen(&streams, STDOUT_FILENO, out_path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_adddup2(&streams, STDIN_FILENO, STDERR_FILENO);
    pid_t process = 0;
    const int error = posix_spawn(&process, pointers.front(), &streams, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&streams);
    if (error != 0)
        throw std::runtime_error("cannot start " + words.front());
    return process;
}

} // namespace

tool_result at_terminal(const tool_run& tool, const std::vector<std::string>& arguments, std::string_view typed)
{
    const std::string out = tool.missing("stdout");
    std::vector<std::string> words = {STAADKIT_TOOL_PATH};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const terminal screen;
    const int other_end = open(screen.path().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC); // open until the tool has it
    screen.type(typed);
    const pid_t process = start(words, screen.path(), out);
    close(other_end);
    tool_result result;
    result.err = screen.shown();
    int status = 0;
    if (waitpid(process, &status, 0) != process)
        throw std::runtime_error("lost " + words.front());
    result.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.out = read_file(out);
    return result;
}

} // namespace cli_test
