/// Results on standard output: one buffer, and one check that all of it was written.
#ifndef TOOLS_STAADKIT_OUTPUT_STD_OUTPUT_H
#define TOOLS_STAADKIT_OUTPUT_STD_OUTPUT_H

#include "cli/verbs.h"

#include <string>
#include <string_view>

namespace tool {

/// Buffered writer to standard output. After a failed write nothing more is written.
class std_output {
public:
    std_output();
    std_output(const std_output&) = delete;
    std_output& operator=(const std_output&) = delete;

    void put(std::string_view text);
    void put(char c);
    bool failed() const noexcept { return failed_; }

    /// Writes the rest. Returns `so_far` if all was written; else prints an error and returns `not_written`.
    exit_code close(exit_code so_far);

private:
    void flush();
    void write(std::string_view text);

    std::string buffer_;
    int error_ = 0;
    bool failed_ = false;
};

/// Writes `text` to standard output as the only result; see std_output::close.
exit_code print_result(std::string_view text, exit_code so_far);

} // namespace tool

#endif
