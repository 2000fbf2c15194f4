// What happens to an earlier output file when the disk, the folder or the tool itself goes away while a new one is
// made.

#include "process.h"
#include "tool_run.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <future>
#include <iterator>
#include <stdexcept>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cli_test {
namespace {

namespace fs = std::filesystem;

using names = std::vector<std::string>;

std::string deck_of(int joints)
{
    std::string deck = "UNIT METER KN\nJOINT COORDINATES\n";
    for (int joint = 1; joint <= joints; ++joint)
        deck += std::to_string(joint) + " 0 " + std::to_string(joint) + " 0\n";
    return deck + "MEMBER INCIDENCES\n1 1 2\nFINISH\n";
}

/// The tool with a model on its standard input, of which it has got one half: what is done now happens in the middle of
/// its run.
class waiting_tool {
public:
    waiting_tool(const tool_run& tool, names words, std::string text) : text_(std::move(text))
    {
        const process_streams streams{tool.missing("pipe"), tool.missing("stdout"), tool.missing("stderr")};
        if (mkfifo(streams.in.c_str(), 0600) != 0)
            throw std::runtime_error("cannot make a pipe");
        // At both ends, so that opening waits for nobody; the tool must not have this one, or the end never comes.
        feeder_ = open(streams.in.c_str(), O_RDWR | O_CLOEXEC);
        result_ = std::async(std::launch::async, [words, streams] {
            tool_result result;
            result.exit_code = run_to_end(words, streams);
            result.err = read_text(streams.err);
            return result;
        });
        feed(0, text_.size() / 2);
        while (bytes_to_read() > 0 && !has_ended())
            std::this_thread::yield();
    }
    ~waiting_tool() { stop_feeding(); }
    waiting_tool(const waiting_tool&) = delete;
    waiting_tool& operator=(const waiting_tool&) = delete;

    /// Gives it the other half.
    tool_result finish()
    {
        feed(text_.size() / 2, text_.size());
        stop_feeding();
        return result_.get();
    }

private:
    void feed(std::size_t begin, std::size_t end)
    {
        if (write(feeder_, text_.data() + begin, end - begin) != static_cast<ssize_t>(end - begin))
            throw std::runtime_error("cannot feed the tool");
    }

    void stop_feeding()
    {
        if (feeder_ != -1)
            close(feeder_);
        feeder_ = -1;
    }

    int bytes_to_read() const
    {
        int count = 0;
        return ioctl(feeder_, FIONREAD, &count) == 0 ? count : 0;
    }

    bool has_ended() const { return result_.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }

    std::string text_; // no more than a pipe holds
    int feeder_ = -1;
    std::future<tool_result> result_;
};

/// Waits until a file in the folder is half written; false if the tool ended before.
bool wait_for_half_a_file(const std::string& folder, const std::future<int>& tool)
{
    for (;;) {
        for (const auto& entry : fs::directory_iterator(folder))
            if (entry.path().filename().string().rfind(".staadkit-", 0) == 0)
                return true;
        if (tool.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
            return false;
    }
}

pid_t number_in(const std::string& file)
{
    return static_cast<pid_t>(std::stol(read_file(file)));
}

/// Kills the tool as soon as it has begun to write; true if it was not faster than that.
bool kill_in_the_middle(const tool_run& tool, const names& arguments)
{
    const std::string process = tool.missing("process");
    names words = {"/bin/sh", "-c", "echo $$ >\"$0\"; exec \"$@\"", process, STAADKIT_TOOL_PATH};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::future<int> code = std::async(std::launch::async, [&tool, words] {
        return run_to_end(words, {no_file, tool.missing("stdout"), tool.missing("stderr")});
    });
    const bool is_writing = wait_for_half_a_file(tool.folder(), code);
    if (is_writing)
        kill(number_in(process), SIGKILL);
    return code.get() == -1 && is_writing;
}

TEST(InterruptedOutput, AToolThatIsKilledLeavesTheEarlierFile)
{
    constexpr int most_attempts = 50;
    const tool_run tool;
    const std::string in = tool.write("in.std", deck_of(100'000));
    const std::string out = tool.write("out.std", "precious");
    int attempt = 1;
    while (attempt <= most_attempts && !kill_in_the_middle(tool, {"convert", "--force", in, out})) {
        tool.write("out.std", "precious");
        ++attempt;
    }
    ASSERT_LE(attempt, most_attempts) << "the tool was always faster";
    // If the new file has the name already, it is whole; else the earlier one has it.
    const std::string left = read_file(out);
    const std::string want = tool({"convert", in, "-"}).out;
    EXPECT_TRUE(left == "precious" || left == want) << left.size() << " bytes";
    // Nobody was left to remove what had been written by then; a later run is not disturbed by it.
    EXPECT_EQ(tool({"convert", "--force", in, out}).exit_code, 0);
    EXPECT_EQ(read_text(out), want);
}

TEST(InterruptedOutput, AFolderThatGoesAwayIsToldAndNotMadeAnew)
{
    const tool_run tool;
    fs::create_directory(tool.missing("there"));
    const std::string out = tool.write("there/out.std", "precious");
    waiting_tool waiting(tool, {STAADKIT_TOOL_PATH, "convert", "--force", "-", out}, small_deck());
    fs::remove_all(tool.missing("there"));
    const tool_result result = waiting.finish();
    EXPECT_EQ(result.exit_code, 4);
    EXPECT_TRUE(has_line(result.err, "staadkit: error: " + out + ": No such file or directory")) << result.err;
    EXPECT_FALSE(fs::exists(tool.missing("there")));
}

TEST(InterruptedOutput, AFileThatGoesAwayIsThereAgain)
{
    const tool_run tool;
    const std::string out = tool.write("out.std", "old");
    waiting_tool waiting(tool, {STAADKIT_TOOL_PATH, "convert", "--force", "-", out}, small_deck());
    fs::remove(out);
    EXPECT_EQ(waiting.finish().exit_code, 0);
    EXPECT_EQ(read_text(out), tool({"convert", tool.write("in.std", small_deck()), "-"}).out);
}

TEST(InterruptedOutput, APermissionThatIsLostLeavesTheEarlierFile)
{
    const tool_run tool;
    fs::create_directory(tool.missing("there"));
    const std::string out = tool.write("there/out.std", "precious");
    fs::permissions(tool.folder(), fs::perms::all);
    fs::permissions(tool.missing("there"), fs::perms::all);
    names words = {STAADKIT_TOOL_PATH};
    if (geteuid() == 0) { // to whom every folder is open: run as nobody, from where nobody can
        const std::string copy = tool.missing("staadkit");
        fs::copy_file(STAADKIT_TOOL_PATH, copy);
        fs::permissions(copy, fs::perms::others_read | fs::perms::others_exec, fs::perm_options::add);
        words = {"/usr/bin/setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", copy};
        if (!fs::exists(words.front()))
            GTEST_SKIP() << "no setpriv here";
    }
    words.insert(words.end(), {"convert", "--force", "-", out});
    waiting_tool waiting(tool, words, small_deck());
    fs::permissions(tool.missing("there"), fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    const tool_result result = waiting.finish();
    EXPECT_EQ(result.exit_code, 4);
    EXPECT_TRUE(has_line(result.err, "staadkit: error: " + out + ": Permission denied")) << result.err;
    EXPECT_EQ(read_file(out), "precious");
    fs::permissions(tool.missing("there"), fs::perms::owner_all);
    EXPECT_EQ(std::distance(fs::directory_iterator(tool.missing("there")), {}), 1);
}

TEST(InterruptedOutput, ADiskThatIsFullLeavesTheEarlierFile)
{
    const tool_run tool;
    fs::create_directory(tool.missing("disk"));
    const std::string in = tool.write("in.std", deck_of(5000)); // more than the disk holds
    // A small disk of its own in a world of its own, which goes with it; so what is left on it is told by the shell.
    const std::string script = "mount -t tmpfs -o size=32k none \"$1\" || exit 77; printf precious >\"$1/out.std\"; "
                               "\"$0\" convert --force \"$2\" \"$1/out.std\"; code=$?; cat \"$1\"/*; ls -A \"$1\"; "
                               "exit $code";
    const std::string out = tool.missing("stdout");
    const std::string err = tool.missing("stderr");
    const int code = run_to_end({"/usr/bin/unshare", "--user", "--map-root-user", "--mount", "/bin/sh", "-c", script,
                                 STAADKIT_TOOL_PATH, tool.missing("disk"), in},
                                {no_file, out, err});
    if (code == 77 || contains(read_text(err), "unshare"))
        GTEST_SKIP() << "no disk to be made here: " << read_text(err);
    EXPECT_EQ(code, 4);
    EXPECT_TRUE(
        has_line(read_text(err), "staadkit: error: " + tool.missing("disk") + "/out.std: No space left on device"))
        << read_text(err);
    EXPECT_EQ(read_text(out), "preciousout.std\n");
}

} // namespace
} // namespace cli_test
