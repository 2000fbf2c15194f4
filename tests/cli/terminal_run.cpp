#include "terminal_run.h"

#include "process.h"

#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>

namespace cli_test {
namespace {

/// Our end of a terminal.
class terminal {
public:
    explicit terminal(unsigned short columns = 0) : end_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        const winsize size{24, columns, 0, 0};
        if (end_ == -1 || grantpt(end_) != 0 || unlockpt(end_) != 0 || ioctl(end_, TIOCSWINSZ, &size) != 0)
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

    /// All that is shown until no process has the other end open any more.
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

/// What the terminal shows is `err` of the result. Of an empty `out_path` standard output is the terminal, too.
tool_result run_at(const terminal& screen, std::string_view typed, const std::vector<std::string>& environment,
                   const std::vector<std::string>& arguments, const std::string& out_path)
{
    std::vector<std::string> words = {"/usr/bin/env", "-u", "NO_COLOR", "TERM=xterm"};
    words.insert(words.end(), environment.begin(), environment.end());
    words.emplace_back(STAADKIT_TOOL_PATH);
    words.insert(words.end(), arguments.begin(), arguments.end());
    const int other_end = open(screen.path().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC); // open until the tool has it
    screen.type(typed);
    const pid_t process = start(words, {screen.path(), out_path.empty() ? screen.path() : out_path, screen.path()});
    close(other_end);
    tool_result result;
    result.err = screen.shown();
    result.exit_code = exit_code_of(process);
    return result;
}

} // namespace

tool_result at_terminal(const tool_run& tool, const std::vector<std::string>& arguments, std::string_view typed)
{
    const std::string out = tool.missing("stdout");
    tool_result result = run_at(terminal(), typed, {"NO_COLOR=1"}, arguments, out);
    result.out = read_file(out);
    return result;
}

tool_result on_screen(unsigned short columns, const std::vector<std::string>& environment,
                      const std::vector<std::string>& arguments)
{
    tool_result result = run_at(terminal(columns), {}, environment, arguments, {});
    std::swap(result.out, result.err);
    for (std::size_t at = result.out.find('\r'); at != std::string::npos; at = result.out.find('\r', at))
        result.out.erase(at, 1);
    return result;
}

} // namespace cli_test
