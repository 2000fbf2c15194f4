// Arguments: help, version, slips, and the exit codes that scripts rely on.

#include "force_decks.h"

#include <gtest/gtest.h>

namespace cli_test {
namespace {

struct help_row {
    const char* verb;
    std::string usage; ///< of its help
    std::vector<std::string> options;
};

const help_row helps[] = {
    {"info",
     "info [OPTIONS] FILE...",
     {"-h,--help", "--reading host|complete", "--json", "--notes", "--color auto|never|always", "-q,--quiet"}},
    {"dump", "dump [OPTIONS] FILE", {"--reading host|complete", "--form container|structure", "--notes"}},
    {"convert",
     "convert [OPTIONS] IN OUT",
     {"--wind FILE", "--seismic FILE", "--reading host|complete", "--force", "--template wind|seismic", "--notes"}},
    {"forces",
     "forces [OPTIONS] MODEL FORCES",
     {"--reading host|complete", "--member", "--case", "--extremes", "--pkpm", "--json", "--csv"}},
    {"storeys", "storeys [OPTIONS] FILE", {"--forces [LISTING]", "--reading host|complete", "--json", "--notes"}},
    {"compare",
     "compare [OPTIONS] NEW OLD",
     {"--reading host|complete", "--take-over OUT", "--yes", "--force", "--json", "--notes"}},
    {"help", "help [OPTIONS] [VERB]", {"--color auto|never|always", "-q,--quiet"}},
};

TEST(Usage, HelpNamesCallOptionsAndExitCodes)
{
    const tool_run tool;
    const std::string all = tool("--help").out;
    EXPECT_EQ(tool("help").out, all);
    EXPECT_EQ(tool("-h").out, all);
    EXPECT_TRUE(contains(all, "\nUsage: staadkit [OPTIONS] VERB\n") && contains(all, "\n  --version ")) << all;
    for (const help_row& each : helps) {
        EXPECT_TRUE(contains(all, std::string("\n  ") + each.verb + ' ')) << each.verb;
        const tool_result result = tool({each.verb, "--help"});
        EXPECT_EQ(result.exit_code, 0) << each.verb;
        EXPECT_EQ(result.err, "") << each.verb;
        EXPECT_TRUE(has_line(result.out, "Usage: staadkit " + each.usage)) << result.out;
        for (const std::string& option : each.options)
            EXPECT_TRUE(contains(result.out, "\n  " + option + ' ')) << option << " is not in\n" << result.out;
        for (const char* line :
             {"  0  done, warnings included", "  1  done, with findings or differences, by a verb that checks",
              "  2  wrong usage", "  3  no model in the input", "  4  output not written"})
            EXPECT_TRUE(has_line(result.out, line) && has_line(all, line)) << each.verb << ": " << line;
        const tool_result asked = tool({"help", each.verb});
        EXPECT_EQ(asked.exit_code, 0) << each.verb;
        EXPECT_EQ(asked.out, result.out) << each.verb;
    }
}

TEST(Usage, Version)
{
    const tool_run tool;
    const tool_result result = tool("--version");
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.out, "staadkit " STAADKIT_VERSION "\n");
}

struct slip {
    const char* why;
    const char* line;
    const char* message; ///< stands in the message
    const char* help;    ///< the call that says more
};

const slip slips[] = {
    {"two letters swapped", "inof a.std", "unknown verb 'inof'; did you mean 'info'?\n", "staadkit --help"},
    {"verbs are lower case", "Info a.std", "unknown verb 'Info'; did you mean 'info'?\n", "staadkit --help"},
    {"a letter missing in an option", "info --jsn a.std", "unknown option '--jsn'; did you mean '--json'?\n",
     "staadkit info --help"},
    {"an option of another verb", "dump --json a.std", "unknown option '--json'\n", "staadkit dump --help"},
    {"an option before the verb", "--json info a.std", "option '--json' belongs after the verb", "staadkit --help"},
    {"nothing like it: no guess", "frobnicate", "unknown verb 'frobnicate'\n", "staadkit --help"},
    {"one file at a time", "dump a.std b.std", "one argument too many: 'b.std'", "staadkit dump --help"},
    {"no file", "info", "FILE is required", "staadkit info --help"},
    {"nothing to convert", "convert", "IN is required", "staadkit convert --help"},
    {"nowhere to write to", "convert a.std", "OUT is required", "staadkit convert --help"},
    {"two outputs", "convert a.std b.std c.std", "one argument too many: 'c.std'", "staadkit convert --help"},
    {"an option of convert", "convert --forse a.std b.std", "unknown option '--forse'; did you mean '--force'?",
     "staadkit convert --help"},
    {"no file after --wind", "convert a.std b.std --wind", "--wind: 1 required FILE missing",
     "staadkit convert --help"},
    {"no such example", "convert --template winds", "--template: 'winds' is neither wind nor seismic",
     "staadkit convert --help"},
    {"an example needs no file", "convert --template wind a.std", "IN excludes --template", "staadkit convert --help"},
    {"no model", "forces", "MODEL is required", "staadkit forces --help"},
    {"no listing", "forces a.std", "FORCES is required", "staadkit forces --help"},
    {"both on standard input", "forces - -", "standard input is the model already", "staadkit forces --help"},
    {"nothing to compare with", "compare a.std", "OLD is required", "staadkit compare --help"},
    {"a third model", "compare a.std b.std c.std", "one argument too many: 'c.std'", "staadkit compare --help"},
    {"--yes to nothing", "compare a.std b.std --yes", "--yes requires --take-over", "staadkit compare --help"},
    {"--force of nothing", "compare a.std b.std --force", "--force requires --take-over", "staadkit compare --help"},
    {"help on no verb", "help inof", "unknown verb 'inof'; did you mean 'info'?", "staadkit --help"},
    {"help on two verbs", "help info dump", "one argument too many: 'dump'", "staadkit help --help"},
    {"no such reading", "storeys --reading full a.std", "--reading: 'full' is neither host nor complete",
     "staadkit storeys --help"},
    {"no such form", "dump --form model a.std", "--form: 'model' is neither container nor structure",
     "staadkit dump --help"},
    {"no such colours", "info --color alway a.std", "--color: 'alway' is none of auto, never and always",
     "staadkit info --help"},
    {"the value of an option before the verb is no verb", "--color never inof",
     "unknown verb 'inof'; did you mean 'info'?", "staadkit --help"},
    {"no verb", "", "no verb given", "staadkit --help"},
};

TEST(Usage, SlipsAreWrongUsageAndNameWhatWasMeant)
{
    const tool_run tool;
    for (const slip& each : slips) {
        const tool_result result = tool(each.line);
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
    const force_files files;
    for (const char* line :
         {"--help", "--version", "info frame.std", "info --json frame.std", "info frame.std frame.std",
          "dump frame.std", "convert frame.std -", "convert --template wind", "forces --pkpm frame.std frame.txt",
          "forces --json frame.std frame.txt", "forces --csv frame.std frame.txt", "storeys --notes frame.std",
          "storeys --json frame.std", "compare --notes frame.std frame.std", "compare --json frame.std frame.std"}) {
        const tool_result result = files.tool.into("/dev/full", words_of(line));
        EXPECT_EQ(result.exit_code, 4) << line;
        EXPECT_TRUE(contains(result.err, "staadkit: error: standard output: ")) << line << ": " << result.err;
    }
}

} // namespace
} // namespace cli_test
