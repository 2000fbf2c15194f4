#include "process.h"

#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

extern char** environ;

namespace cli_test {

std::vector<char*> pointers_to(std::vector<std::string>& words)
{
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

pid_t start(std::vector<std::string> words, const process_streams& streams)
{
    constexpr int to_write = O_WRONLY | O_CREAT | O_TRUNC | O_NOCTTY;
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    if (!streams.folder.empty())
        posix_spawn_file_actions_addchdir_np(&files, streams.folder.c_str());
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, streams.in.c_str(), O_RDONLY | O_NOCTTY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, streams.out.c_str(), to_write, 0600);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, streams.err.c_str(), to_write, 0600);
    pid_t process = 0;
    const int error = posix_spawn(&process, words.front().c_str(), &files, nullptr, pointers_to(words).data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (error != 0)
        throw std::runtime_error("cannot start " + words.front());
    return process;
}

int exit_code_of(pid_t process)
{
    int status = 0;
    if (waitpid(process, &status, 0) != process)
        throw std::runtime_error("lost process " + std::to_string(process));
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int run_to_end(std::vector<std::string> words, const process_streams& streams)
{
    return exit_code_of(start(std::move(words), streams));
}

} // namespace cli_test
