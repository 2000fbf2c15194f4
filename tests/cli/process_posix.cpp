#include "process.h"

#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace cli_test {
namespace {

/// The three streams of the process to be, each a file.
class redirections {
public:
    explicit redirections(const process_streams& streams)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, streams.in.c_str(), O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, streams.out.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                         0600);
        posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, streams.err.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                         0600);
    }
    ~redirections() { posix_spawn_file_actions_destroy(&actions_); }
    redirections(const redirections&) = delete;
    redirections& operator=(const redirections&) = delete;

    const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_;
};

} // namespace

int run_to_end(std::vector<std::string> words, const process_streams& streams)
{
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const redirections redirected(streams);
    pid_t process = 0;
    if (posix_spawn(&process, pointers.front(), redirected.get(), nullptr, pointers.data(), environ) != 0)
        throw std::runtime_error("cannot start " + words.front());
    int status = 0;
    if (waitpid(process, &status, 0) != process)
        throw std::runtime_error("lost " + words.front());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace cli_test
