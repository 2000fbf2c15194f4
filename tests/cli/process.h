/// Runs a program with its three streams in files.
#ifndef TESTS_CLI_PROCESS_H
#define TESTS_CLI_PROCESS_H

#include <string>
#include <vector>

namespace cli_test {

/// Names of files.
struct process_streams {
    std::string in;
    std::string out;
    std::string err;
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

} // namespace cli_test

#endif
