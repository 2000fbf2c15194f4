/// A line on the terminal that says how far a long work is.
#ifndef TOOLS_STAADKIT_CLI_PROGRESS_LINE_H
#define TOOLS_STAADKIT_CLI_PROGRESS_LINE_H

#include <chrono>
#include <cstddef>
#include <string>

namespace tool {

/// "reading forces.txt: 45 of 214 MB" or "40 of 112 files" on standard error, if that is a terminal and the work
/// takes longer than a second. Of two at a time, the files and the bytes of one of them, the earlier one shows.
class progress_line {
public:
    enum class unit { bytes, files };

    /// `name` is that of the file being read; of files it is not shown.
    explicit progress_line(std::string name, unit counted = unit::bytes);
    ~progress_line();
    progress_line(const progress_line&) = delete;
    progress_line& operator=(const progress_line&) = delete;

    /// To be called often; 0 as `total` where it is not known.
    void update(std::size_t done, std::size_t total);

private:
    std::string text(std::size_t done, std::size_t total) const;

    std::string name_;
    unit counted_;
    bool may_show_;
    std::chrono::steady_clock::time_point next_; ///< when the line is shown or renewed
};

/// Takes the line off the terminal until its next update: before anything else is written there.
void clear_progress();

} // namespace tool

#endif
