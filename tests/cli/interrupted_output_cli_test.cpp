// What becomes of an earlier output file when the disk, the folder or the tool itself goes away while a new one is
// written.

#include "process.h"
#include "tool_run.h"

#include <gtest/gtest.h>

#include <csignal>
#include <iterator>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace cli_test {
namespace {

namespace fs = std::filesystem;

using names = std::vector<std::string>;

void redirect(int stream, const std::string& file, int flags)
{
    dup2(open(file.c_str(), flags, 0600), stream);
}

/// The tool with this process as its debugger, which stops it where something is to happen to it.
class stopped_tool {
public:
    stopped_tool(names words, const process_streams& streams) : words_(std::move(words)), error_file_(streams.err)
    {
        const std::vector<char*> pointers = pointers_to(words_);
        process_ = fork();
        if (process_ != 0)
            return;
        redirect(STDIN_FILENO, streams.in, O_RDONLY);
        redirect(STDOUT_FILENO, streams.out, O_WRONLY);
        redirect(STDERR_FILENO, streams.err, O_WRONLY | O_CREAT | O_TRUNC);
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0)
            execv(pointers.front(), pointers.data());
        _exit(127);
    }

    /// Runs it to the beginning of its next `system_call`; false if it ends before, or cannot be traced.
    bool run_to(std::uint64_t system_call, std::uint64_t first_argument)
    {
        while (wait() && WIFSTOPPED(status_)) {
            ptrace(PTRACE_SETOPTIONS, process_, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD);
            __ptrace_syscall_info info{};
            ptrace(PTRACE_GET_SYSCALL_INFO, process_, sizeof info, &info);
            if (info.op == PTRACE_SYSCALL_INFO_ENTRY && info.entry.nr == system_call &&
                (first_argument == any || info.entry.args[0] == first_argument))
                return true;
            ptrace(PTRACE_SYSCALL, process_, nullptr, nullptr);
        }
        return false;
    }

    /// Lets it run to its end.
    tool_result finish()
    {
        ptrace(PTRACE_DETACH, process_, nullptr, nullptr);
        wait();
        return {WIFEXITED(status_) ? WEXITSTATUS(status_) : -1, {}, read_text(error_file_)};
    }

    void kill()
    {
        ::kill(process_, SIGKILL);
        wait();
    }

    static constexpr std::uint64_t any = ~std::uint64_t{0};

private:
    bool wait() { return waitpid(process_, &status_, 0) == process_; }

    names words_;
    std::string error_file_;
    pid_t process_ = -1;
    int status_ = 0;
};

/// A file "out.std" that is there before the tool writes it anew.
class InterruptedOutput : public testing::Test {
protected:
    InterruptedOutput()
    {
        fs::create_directory(folder_);
        tool_.write("there/out.std", "precious");
    }

    void SetUp() override
    {
        stopped_tool any_tool({STAADKIT_TOOL_PATH, "--version"}, streams());
        if (!any_tool.run_to(SYS_exit_group, stopped_tool::any))
            GTEST_SKIP() << "processes cannot be traced here";
        any_tool.kill();
    }

    process_streams streams() const { return {in_, no_file, tool_.missing("stderr")}; }

    /// The call that reads standard input, and so has seen the output file but not begun to write it.
    names call() const { return {STAADKIT_TOOL_PATH, "convert", "--force", "-", out_}; }

    std::string want() const { return tool_({"convert", in_, "-"}).out; }

    const tool_run tool_;
    const std::string folder_ = tool_.missing("there");
    const std::string out_ = folder_ + "/out.std";
    const std::string in_ = tool_.write("in.std", small_deck());
};

TEST_F(InterruptedOutput, AToolThatIsKilledLeavesTheEarlierFile)
{
    stopped_tool stopped(call(), streams());
    // All is written then and goes to the disk; the earlier file still has the name.
    ASSERT_TRUE(stopped.run_to(SYS_fsync, stopped_tool::any));
    stopped.kill();
    EXPECT_EQ(read_file(out_), "precious");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 2) << "what the tool could no longer remove";
    EXPECT_EQ(tool_({"convert", "--force", in_, out_}).exit_code, 0) << "a later run is not disturbed by it";
    EXPECT_EQ(read_text(out_), want());
}

TEST_F(InterruptedOutput, AFolderThatGoesAwayIsReportedAndNotMadeAnew)
{
    stopped_tool stopped(call(), streams());
    ASSERT_TRUE(stopped.run_to(SYS_read, STDIN_FILENO));
    fs::remove_all(folder_);
    const tool_result result = stopped.finish();
    EXPECT_EQ(result.exit_code, 4);
    EXPECT_TRUE(has_line(result.err, "staadkit: error: " + out_ + ": No such file or directory")) << result.err;
    EXPECT_FALSE(fs::exists(folder_));
}

TEST_F(InterruptedOutput, AFileThatGoesAwayIsThereAgain)
{
    stopped_tool stopped(call(), streams());
    ASSERT_TRUE(stopped.run_to(SYS_read, STDIN_FILENO));
    fs::remove(out_);
    EXPECT_EQ(stopped.finish().exit_code, 0);
    EXPECT_EQ(read_text(out_), want());
}

TEST_F(InterruptedOutput, APermissionThatIsLostLeavesTheEarlierFile)
{
    fs::permissions(folder_, fs::perms::all);
    names words = tool_.as_plain_user();
    if (words.empty())
        GTEST_SKIP() << "no setpriv here";
    words.insert(words.end(), {"convert", "--force", "-", out_});
    stopped_tool stopped(words, streams());
    ASSERT_TRUE(stopped.run_to(SYS_read, STDIN_FILENO));
    fs::permissions(folder_, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    const tool_result result = stopped.finish();
    EXPECT_EQ(result.exit_code, 4);
    EXPECT_TRUE(has_line(result.err, "staadkit: error: " + out_ + ": Permission denied")) << result.err;
    EXPECT_EQ(read_file(out_), "precious");
    fs::permissions(folder_, fs::perms::owner_all);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 1);
}

TEST_F(InterruptedOutput, ADiskThatIsFullLeavesTheEarlierFile)
{
    std::string joints;
    for (int joint = 3; joint <= 5000; ++joint) // more than the disk holds
        joints += std::to_string(joint) + " 0 " + std::to_string(joint) + " 0\n";
    std::string deck = small_deck();
    deck.insert(deck.find("MEMBER"), joints);
    // A small disk in memory, which only the shell and the tool see. It is gone when the shell ends, so the shell
    // prints what is left on it.
    const std::string script = "mount -t tmpfs -o size=32k none \"$1\" || exit 77; printf precious >\"$1/out.std\"; "
                               "\"$0\" convert --force \"$2\" \"$1/out.std\"; code=$?; cat \"$1\"/*; ls -A \"$1\"; "
                               "exit $code";
    const process_streams files{no_file, tool_.missing("stdout"), tool_.missing("stderr")};
    const int code = run_to_end({"/usr/bin/unshare", "--user", "--map-root-user", "--mount", "/bin/sh", "-c", script,
                                 STAADKIT_TOOL_PATH, folder_, tool_.write("large.std", deck)},
                                files);
    const std::string messages = read_text(files.err);
    if (code == 77 || contains(messages, "unshare"))
        GTEST_SKIP() << "no disk to be made here: " << messages;
    EXPECT_EQ(code, 4);
    EXPECT_TRUE(has_line(messages, "staadkit: error: " + out_ + ": No space left on device")) << messages;
    EXPECT_EQ(read_text(files.out), "preciousout.std\n");
}

} // namespace
} // namespace cli_test
