// Arguments: help, version, slips, and the exit codes that scripts rely on.

#include "tool_run.h"

#include <gtest/gtest.h>

namespace cli_test {
namespace {

constexpr const char* help_calls[][2] = {{"--help", ""},    {"-h", ""},        {"info", "--help"}, {"dump", "-h"},
                                         {"convert", "-h"}, {"storeys", "-h"}, {"compare", "-h"}};

TEST(Usage, HelpNamesEveryExitCode)
{
    const tool_run tool;
    for (const auto& call : help_calls) {
        const tool_result result =
            *call[1] == '\0' ? tool({call[0]}) : tool({std::string(call[0]), std::string(call[1])});
        EXPECT_EQ(result.exit_code, 0) << call[0];
        EXPECT_EQ(result.err, "") << call[0];
        for (const char* line :
             {"  0  done, warnings included", "  1  done, with findings or differences, of a verb that checks",
              "  2  wrong usage", "  3  no model in the input", "  4  output not written"})
            EXPECT_TRUE(has_line(result.out, line)) << call[0] << ' ' << call[1] << ": " << line;
    }
}

TEST(Usage, HelpNamesTheVerbsAndTheirOptions)
{
    const tool_run tool;
    const std::string help = tool({"--help"}).out;
    EXPECT_TRUE(contains(help, "\nVerbs:\n  info "));
    EXPECT_TRUE(contains(help, "\n  dump "));
    EXPECT_TRUE(contains(help, "\n  convert "));
    EXPECT_TRUE(contains(tool({"info", "--help"}).out, "--json"));
    EXPECT_TRUE(contains(tool({"info", "--help"}).out, "Usage: staadkit info [OPTIONS] FILE..."));
    EXPECT_TRUE(contains(tool({"dump", "--help"}).out, "Usage: staadkit dump [OPTIONS] FILE\n"));
    const std::string convert_help = tool({"convert", "--help"}).out;
    EXPECT_TRUE(contains(convert_help, "Usage: staadkit convert [OPTIONS] IN OUT\n"));
    for (const char* option : {"--wind FILE ", "--seismic FILE ", "--force ", "--template wind|seismic ", "--notes "})
        EXPECT_TRUE(contains(convert_help, std::string("\n  ") + option)) << option;
}

TEST(Usage, HelpOfStoreysAndCompare)
{
    const tool_run tool;
    const std::string storeys_help = tool({"storeys", "--help"}).out;
    EXPECT_TRUE(contains(storeys_help, "Usage: staadkit storeys [OPTIONS] FILE\n")) << storeys_help;
    for (const char* option : {"--forces [LISTING] ", "--json ", "--notes "})
        EXPECT_TRUE(contains(storeys_help, std::string("\n  ") + option)) << option;
    const std::string compare_help = tool({"compare", "--help"}).out;
    EXPECT_TRUE(contains(compare_help, "Usage: staadkit compare [OPTIONS] NEW OLD\n")) << compare_help;
    for (const char* option : {"--take-over OUT ", "--yes ", "--force ", "--json ", "--notes "})
        EXPECT_TRUE(contains(compare_help, std::string("\n  ") + option)) << option;
}

TEST(Usage, Version)
{
    const tool_run tool;
    const tool_result result = tool({"--version"});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.out, "staadkit " STAADKIT_VERSION "\n");
}

struct slip {
    const char* why;
    std::vector<std::string> arguments;
    const char* message; ///< stands in the message
    const char* help;    ///< the call that tells more
};

const slip slips[] = {
    {"two letters swapped", {"inof", "a.std"}, "unknown verb 'inof'; did you mean 'info'?", "staadkit --help"},
    {"a letter too many", {"dumpp", "a.std"}, "unknown verb 'dumpp'; did you mean 'dump'?", "staadkit --help"},
    {"verbs are lower case", {"Info", "a.std"}, "unknown verb 'Info'; did you mean 'info'?", "staadkit --help"},
    {"a letter missing in an option",
     {"info", "--jsn", "a.std"},
     "unknown option '--jsn'; did you mean '--json'?",
     "staadkit info --help"},
    {"an option of another verb", {"dump", "--json", "a.std"}, "unknown option '--json'\n", "staadkit dump --help"},
    {"an option before the verb",
     {"--json", "info", "a.std"},
     "option '--json' belongs after the verb",
     "staadkit --help"},
    {"nothing like it: no guess", {"frobnicate"}, "unknown verb 'frobnicate'\n", "staadkit --help"},
    {"one file at a time", {"dump", "a.std", "b.std"}, "one argument too many: 'b.std'", "staadkit dump --help"},
    {"no file", {"info"}, "FILE is required", "staadkit info --help"},
    {"nothing to convert", {"convert"}, "IN is required", "staadkit convert --help"},
    {"nowhere to write to", {"convert", "a.std"}, "OUT is required", "staadkit convert --help"},
    {"two outputs",
     {"convert", "a.std", "b.std", "c.std"},
     "one argument too many: 'c.std'",
     "staadkit convert --help"},
    {"an option of convert",
     {"convert", "--forse", "a.std", "b.std"},
     "unknown option '--forse'; did you mean '--force'?",
     "staadkit convert --help"},
    {"no file behind --wind",
     {"convert", "a.std", "b.std", "--wind"},
     "--wind: 1 required FILE missing",
     "staadkit convert --help"},
    {"no such example",
     {"convert", "--template", "winds"},
     "--template: 'winds' is neither wind nor seismic",
     "staadkit convert --help"},
    {"an example needs no file",
     {"convert", "--template", "wind", "a.std"},
     "IN excludes --template",
     "staadkit convert --help"},
    {"no model", {"storeys", "--json"}, "FILE is required", "staadkit storeys --help"},
    {"nothing to compare with", {"compare", "a.std"}, "OLD is required", "staadkit compare --help"},
    {"a third model",
     {"compare", "a.std", "b.std", "c.std"},
     "one argument too many: 'c.std'",
     "staadkit compare --help"},
    {"no file behind --take-over",
     {"compare", "a.std", "b.std", "--take-over"},
     "--take-over: 1 required OUT missing",
     "staadkit compare --help"},
    {"no such page", {"--print", "mann"}, "--print: 'mann' is none of man|bash|zsh|fish", "staadkit --help"},
    {"no page named", {"--print"}, "--print: 1 required NAME missing", "staadkit --help"},
    {"a slip behind a page", {"--print", "inof"}, "--print: 'inof' is none of", "staadkit --help"},
    {"no verb", {}, "no verb given", "staadkit --help"},
};

TEST(Usage, SlipsAreWrongUsageAndNameWhatWasMeant)
{
    const tool_run tool;
    for (const slip& each : slips) {
        const tool_result result = tool(each.arguments);
        EXPECT_EQ(result.exit_code, 2) << each.why;
        EXPECT_EQ(result.out, "") << each.why;
        EXPECT_TRUE(contains(result.err, each.message)) << each.why << ": " << result.err;
        EXPECT_TRUE(has_line(result.err, std::string("Try: ") + each.help)) << each.why << ": " << result.err;
    }
}

TEST(Usage, OutputThatCannotBeWrittenIsAnError)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";
    const tool_run tool;
    const std::string deck = tool.write("tower.std", tower_deck());
    const std::vector<std::string> calls[] = {
        {"--help"},           {"--version"},  {"info", deck},         {"info", "--json", deck},
        {"info", deck, deck}, {"dump", deck}, {"convert", deck, "-"}, {"convert", "--template", "wind"}};
    for (const auto& call : calls) {
        const tool_result result = tool.into("/dev/full", call);
        EXPECT_EQ(result.exit_code, 4) << call.front();
        EXPECT_TRUE(contains(result.err, "staadkit: error: standard output: ")) << call.front() << ": " << result.err;
    }
}

} // namespace
} // namespace cli_test
