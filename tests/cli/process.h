/// Runs a program with its three streams in files.
#ifndef TESTS_CLI_PROCESS_H
#define TESTS_CLI_PROCESS_H

#include <string>
#include <vector>

#ifndef _WIN32
#    include <sys/types.h> // pid_t
#endif

namespace cli_test {

/// Names of files, and of the folder that the program runs in; empty: in that of this one.
struct process_streams {
    std::string in;
    std::string out;
    std::string err;
    std::string folder = {};
};

/// The file that is always empty and takes everything.
#ifdef _WIN32
inline constexpr const char* no_file = "NUL";
#else
inline constexpr const char* no_file = "/dev/null";
#endif

/// Starts the program `words.front()` with the other words as its arguments, and waits for it: its exit
/// code, -1 if a signal ended it.
int run_to_end(std::vector<std::string> words, const process_streams& streams);

#ifndef _WIN32
/// The words as execv() takes them, good as long as `words` is.
std::vector<char*> pointers_to(std::vector<std::string>& words);
/// Starts the program and does not wait. The streams may be one terminal.
pid_t start(std::vector<std::string> words, const process_streams& streams);
/// The exit code of a process, once it has ended; -1 if a signal ended it.
int exit_code_of(pid_t process);
#endif

} // namespace cli_test

#endif
