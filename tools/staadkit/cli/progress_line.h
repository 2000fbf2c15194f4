/// A line on the terminal that shows the progress of long work.
#ifndef TOOLS_STAADKIT_CLI_PROGRESS_LINE_H
#define TOOLS_STAADKIT_CLI_PROGRESS_LINE_H

#include <chrono>
#include <cstddef>
#include <string>

namespace tool {

/// "reading forces.txt: 45 of 214 MB" or "40 of 112 files" on standard error, if that is a terminal and the
/// work takes longer than a second. If two exist at a time, one for the files and one for the bytes of a file,
/// the earlier one is shown.
class progress_line {
public:
    enum class unit { bytes, files };

    /// `name` is that of the file being read; not shown when files are counted.
    explicit progress_line(std::string name, unit counted = unit::bytes);
    ~progress_line();
    progress_line(const progress_line&) = delete;
    progress_line& operator=(const progress_line&) = delete;

    /// To be called often; `total` is 0 if it is unknown.
    void update(std::size_t done, std::size_t total);

private:
    std::string text(std::size_t done, std::size_t total) const;

    std::string name_;
    unit counted_;
    bool may_show_;
    std::chrono::steady_clock::time_point next_; ///< when the line is shown or renewed
};

/// Removes the line from the terminal until its next update; to be called before anything else is written
/// there.
void clear_progress();

} // namespace tool

#endif
