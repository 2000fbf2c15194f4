/// A line on the terminal that says what is going on.
#ifndef TOOLS_STAADKIT_CLI_PROGRESS_LINE_H
#define TOOLS_STAADKIT_CLI_PROGRESS_LINE_H

#include <cstddef>
#include <string>

namespace tool {

/// "reading forces.txt, 214 MB ..." on standard error as long as the object lives, then nothing. Shown for
/// long files only, and only where somebody watches.
class progress_line {
public:
    explicit progress_line(const std::string& path);
    ~progress_line();
    progress_line(const progress_line&) = delete;
    progress_line& operator=(const progress_line&) = delete;

private:
    std::size_t width_ = 0;
};

} // namespace tool

#endif
