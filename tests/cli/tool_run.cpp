#include "tool_run.h"

#include "process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <system_error>

#ifndef _WIN32
#    include <unistd.h> // geteuid
#endif

namespace cli_test {
namespace {

std::vector<std::string> call_of(std::vector<std::string> before, const std::vector<std::string>& arguments)
{
    before.emplace_back(STAADKIT_TOOL_PATH);
    before.insert(before.end(), arguments.begin(), arguments.end());
    return before;
}

/// Tests run as many processes at a time.
std::filesystem::path new_folder()
{
    static std::atomic<unsigned> counter{0};
    for (;;) {
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        const std::string name = "staadkit-cli-" + std::to_string(ticks) + "-" + std::to_string(counter++);
        const std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
        if (std::filesystem::create_directory(folder))
            return folder;
    }
}

} // namespace

tool_run::tool_run() : folder_(new_folder()) {}

tool_run::~tool_run()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string tool_run::write(const std::string& name, std::string_view bytes) const
{
    const std::string path = missing(name);
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path;
}

std::string tool_run::missing(const std::string& name) const
{
    return folder() + '/' + name; // the bytes of `name` as they stand, on Windows too
}

tool_result tool_run::operator()(const std::vector<std::string>& arguments, std::string_view input) const
{
    return from(write("stdin", input), arguments);
}

tool_result tool_run::operator()(const char* line, std::string_view input) const
{
    return (*this)(words_of(line), input);
}

tool_result tool_run::into(const std::string& out_path, const std::vector<std::string>& arguments) const
{
    return run(call_of({}, arguments), no_file, out_path);
}

tool_result tool_run::from(const std::string& in_path, const std::vector<std::string>& arguments) const
{
    const std::string out = missing("stdout");
    tool_result result = run(call_of({}, arguments), in_path, out);
    result.out = read_text(out);
    return result;
}

std::vector<std::string> tool_run::names() const
{
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
        const std::string name = entry.path().filename().string();
        if (name != "stdin" && name != "stdout" && name != "stderr")
            found.push_back(name);
    }
    std::sort(found.begin(), found.end());
    return found;
}

#ifndef _WIN32
tool_result tool_run::within(std::size_t megabytes, const std::vector<std::string>& arguments) const
{
    return limited("-v " + std::to_string(megabytes * 1024), arguments);
}

tool_result tool_run::with_small_files(const std::vector<std::string>& arguments) const
{
    return limited("-f 8", arguments);
}

tool_result tool_run::limited(const std::string& limit, const std::vector<std::string>& arguments) const
{
    const std::string script = "ulimit " + limit + " && exec \"$0\" \"$@\"";
    return command(call_of({"/bin/sh", "-c", script}, arguments));
}

std::vector<std::string> tool_run::as_plain_user() const
{
    namespace fs = std::filesystem;
    fs::permissions(folder_, fs::perms::all);
    if (geteuid() != 0)
        return {STAADKIT_TOOL_PATH};
    const char* const setpriv = "/usr/bin/setpriv";
    if (!fs::exists(setpriv))
        return {};
    const std::string copy = missing("staadkit"); // from a folder that is open to all
    fs::copy_file(STAADKIT_TOOL_PATH, copy);
    fs::permissions(copy, fs::perms::others_read | fs::perms::others_exec, fs::perm_options::add);
    return {setpriv, "--reuid=65534", "--regid=65534", "--clear-groups", copy};
}

tool_result tool_run::command(const std::vector<std::string>& words) const
{
    const std::string out = missing("stdout");
    tool_result result = run(words, no_file, out);
    result.out = read_text(out);
    return result;
}
#endif

tool_result tool_run::run(const std::vector<std::string>& command, const std::string& in_path,
                          const std::string& out_path) const
{
    const std::string err = missing("stderr");
    tool_result result;
    result.exit_code = run_to_end(command, {in_path, out_path, err, folder()});
    result.err = read_text(err);
    return result;
}

void expect_answers(const tool_run& tool, const std::vector<call_row>& calls, const std::string& before)
{
    const auto is_as_wanted = [](const std::string& text, const std::string& want) {
        return want.empty() ? text.empty() : contains('\n' + text, '\n' + want);
    };
    for (const call_row& each : calls) {
        const tool_result result = tool(words_of(before + each.line));
        EXPECT_EQ(result.exit_code, each.exit_code) << each.why;
        EXPECT_FALSE(contains(result.out + result.err, "\x1B")) << each.why << ": drives the terminal";
        EXPECT_TRUE(is_as_wanted(result.err, each.err)) << each.why << ": " << each.line << '\n' << result.err;
        EXPECT_TRUE(is_as_wanted(result.out, each.out)) << each.why << ": " << each.line << '\n' << result.out;
    }
}

std::string tower_deck()
{
    return "STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n"
           "1 0 -0.5 0; 2 6 -0.5 0; 3 0 3.7 0; 4 6 3.7 0; 5 0 7.3 0; 6 6 7.3 0;\n"
           "7 0 10.9 0; 8 6 10.9 0; 9 0 -0.5 8.25;\nMEMBER INCIDENCES\n"
           "1 1 3; 2 2 4; 3 3 5; 4 4 6; 5 5 7; 6 6 8; 7 3 4; 8 5 6; 9 7 8;\n10 1 4; 11 3 4; 12 9 3;\n"
           "ELEMENT INCIDENCES SHELL\n101 3 4 6 5;\nELEMENT PROPERTY\n101 THICKNESS 0.2\nSURFACE INCIDENCE\n"
           "5 6 8 7 SUR 1\nSURFACE PROPERTY\n1 THICKNESS 0.15\nSTART GROUP DEFINITION\nJOINT\n_BASE 1 2 9\n"
           "MEMBER\n_COLUMNS 1 TO 6\nEND GROUP DEFINITION\nSTART USER TABLE\nTABLE 1\nUNIT METER KN\n"
           "WIDE FLANGE\nH300\n0.3 0.15 0.0065 0.009\nH400\n0.4 0.2 0.008 0.013\nEND\nMEMBER PROPERTY AMERICAN\n"
           "1 2 UPTABLE 1 H300\n3 4 TABLE ST PIPE OD 0.2 ID 0.18\n5 6 TAPERED 0.6 0.008 0.6 0.25 0.012\n"
           "7 TO 9 PRIS YD 0.5 ZD 0.3\n10 PRIS AX 0.01 IZ 0.0002\n11 TABLE ST HN400X200X8X13\nCONSTANTS\n"
           "BETA 90 MEMB 1 2\nMATERIAL STEEL ALL\nSUPPORTS\n1 2 2 FIXED\n9 400 PINNED\nMEMBER TRUSS\n10 11\n"
           "MEMBER RELEASE\n7 8 START MY MZ\nMEMBER OFFSET\n9 START 0.1 0 0\nLOAD 1 LOADTYPE Dead TITLE DL\n"
           "SELFWEIGHT Y -1\nMEMBER LOAD\n7 TO 9 UNI GY -5\n7 CON GY -10 3\nJOINT LOAD\n7 8 FX 12\n"
           "LOAD 2 LOADTYPE Wind TITLE WIND X\nJOINT LOAD\n7 8 FX 5\n7 FZ 5\nLOAD COMB 3 ALL\n1 1.2 2 1.4\n"
           "PERFORM ANALYSIS\nFINISH\n";
}

std::string small_deck(std::string_view more_lines)
{
    return "STAAD SPACE\n"
           "UNIT METER KN\n"
           "JOINT COORDINATES\n"
           "1 0 0 0; 2 0 3 0;\n"
           "MEMBER INCIDENCES\n"
           "1 1 2;\n" +
           std::string(more_lines) + "FINISH\n";
}

std::string read_file(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::string read_text(const std::string& path)
{
    std::string text = read_file(path);
#ifdef _WIN32
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at))
        text.erase(at, 1);
#endif
    return text;
}

std::vector<std::string> words_of(const std::string& line)
{
    std::vector<std::string> words;
    std::istringstream stream(line);
    for (std::string word; stream >> std::quoted(word, '\'');)
        words.push_back(word);
    return words;
}

std::vector<std::string> lines_of(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

bool has_line(std::string_view text, std::string_view line)
{
    const std::string all = '\n' + std::string(text);
    return contains(all, '\n' + std::string(line) + '\n');
}

} // namespace cli_test
