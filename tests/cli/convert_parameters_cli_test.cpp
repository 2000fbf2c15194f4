// The parameter files of "convert": examples, every field, refusals, texts as GBK.

#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>

namespace cli_test {
namespace {

using nlohmann::ordered_json;

/// The kinds of parameter files: the name of the example is that of the option.
const char* const kinds[] = {"wind", "seismic"};

std::string example_of(const std::string& kind)
{
    return tool_run()({"convert", "--template", kind}).out;
}

tool_result convert_with(const std::string& kind, const std::string& parameters, const std::string& deck = small_deck())
{
    const tool_run tool;
    tool.write("parameters.json", parameters);
    return tool({"convert", "-", "-", "--" + kind, "parameters.json"}, deck);
}

TEST(ConvertParameters, ExamplesAreTakenBack)
{
    const tool_run tool;
    for (const std::string kind : kinds) {
        const tool_result example = tool({"convert", "--template", kind});
        EXPECT_EQ(example.exit_code, 0) << kind;
        EXPECT_EQ(example.err, "") << kind;
        const tool_result result = convert_with(kind, example.out);
        EXPECT_EQ(result.exit_code, 0) << kind << ": " << result.err;
        EXPECT_FALSE(contains(result.err, "warning")) << kind << ": " << result.err;
    }
}

TEST(ConvertParameters, TheWindOfTheExampleIsWritten)
{
    const std::string text = convert_with("wind", example_of("wind")).out;
    for (const char* line : {"*{ STRUCTURE HIGH : 18.0", "*{ IS BETAZ : 0", "*{ BASE PERIOD : 0.6", "*{ SOIL TYPE : B",
                             "*{ AWEATHER WIDTH : 12 12 18 18", "*{ LEFTWIND MIUS : 0.8 -0.5 -0.70 -0.70",
                             "*{ BACKWIND MIUS : -0.7 -0.7 -0.50 0.80", "*{ INTENSITY NUMBER : 5",
                             "*{ INTENSITY ISOMETRY : 4", "*{ INTENSITY FLOOR : 4"})
        EXPECT_TRUE(has_line(text, line)) << line;
    // 0.45 kN/m2 times 1, 1, 1.04, 1.13 and 1.19, times 0.8; the leeward face has 0.5.
    EXPECT_TRUE(contains(text, "\nTYPE 18\nINT 0.36 0.36 0.37 0.41 0.43 HEIG 4.5 9.0 11.5 15.0 18.0\n"
                               "TYPE 19\nINT 0.23 0.23 0.23 0.25 0.27 HEIG 4.5 9.0 11.5 15.0 18.0\n"))
        << text;
}

TEST(ConvertParameters, TheEarthquakeOfTheExampleIsWritten)
{
    const std::string text = convert_with("seismic", example_of("seismic")).out;
    for (const char* line : {"*{ DIRECTION FACTOR : 1 1 0 1.00 1 1", "*{ Y FREEDOM : 0", "*{ EQ TYPE : 3",
                             "*{ POST METHOD : 1", "*{ FORCE TYPE : 1", "*{ EQ INTENSITY : 8", "*{ EQ GROUP : 1",
                             "*{ SPECIAL ACCELERATE : 0", "*{ POINT NUMBER : 10", "*{ DAMPING FACTOR : 0.05",
                             "*{ PROPORTION FACTOR : 9.8", "*{ LOADNO FACTOR : 1 1.0000 2 0.5000 "})
        EXPECT_TRUE(has_line(text, line)) << line;
    for (const std::string axis : {"X", "Z"})
        EXPECT_TRUE(contains(text, "\nSPECTRUM CQC " + axis +
                                       " 1 ACC SCALE 9.8 DAMP 0.05\n"
                                       "0.00 0.0720; 0.10 0.1600; 0.35 0.1600; 0.50 0.1161; 0.70 0.0857; \n"
                                       "1.00 0.0622; 1.40 0.0459; 1.75 0.0376; 2.50 0.0352; 4.00 0.0304; \n"))
            << text;
}

TEST(ConvertParameters, NotesSayWhatIsStillMissing)
{
    const tool_run tool;
    tool.write("w.json", example_of("wind"));
    tool.write("s.json", example_of("seismic"));
    const std::string always = "note generated: four wind cases of one number and a seismic case are always written";
    EXPECT_TRUE(contains(tool("convert - - --wind w.json", small_deck()).err,
                         always + "; without --seismic the seismic case holds no values\n"));
    EXPECT_TRUE(contains(tool("convert - - --seismic s.json", small_deck()).err,
                         always + "; without --wind the wind holds no values\n"));
    EXPECT_TRUE(contains(tool("convert - - --wind w.json --seismic s.json", small_deck()).err, always + '\n'));
}

TEST(ConvertParameters, EquivalentGravityOfLineLoadsIsNoted)
{
    // 1.0 times 1.5 kN/m is 0.0015 kN/mm.
    const std::string deck =
        small_deck("LOAD 1 LOADTYPE Dead TITLE DL\nMEMBER LOAD\n1 UNI GY -1.5\nPERFORM ANALYSIS\n");
    const tool_result result = convert_with("seismic", example_of("seismic"), deck);
    EXPECT_TRUE(contains(result.err, "note gravity: equivalent gravity is written in kN and mm with two decimals: line "
                                     "loads may come to nothing\n    1 UNI GX -0.00 \n"))
        << result.err;
    EXPECT_FALSE(contains(convert_with("seismic", example_of("seismic")).err, "note gravity"));
}

TEST(ConvertParameters, WhatADumpHoldsIsAParameterFile)
{
    const tool_run tool;
    const ordered_json model = ordered_json::parse(tool("dump -", small_deck()).out);
    const std::string plain = tool("convert - -", small_deck()).out;
    EXPECT_EQ(convert_with("wind", model["wl_param"].dump()).out, plain);
    EXPECT_EQ(convert_with("seismic", model["eq_param"].dump()).out, plain);
}

#ifdef _WIN32
const std::string folder_error = "folder: error file-unreadable: Permission denied\n";
#else
const std::string folder_error = "folder: error file-unreadable: Is a directory\n";
#endif

TEST(ConvertParameters, ErrorsNameTheFileAndLeaveTheEarlierOutput)
{
    const tool_run tool;
    tool.write("in.std", small_deck());
    const std::string out = tool.write("out.std", "precious");
    std::filesystem::create_directory(tool.missing("folder"));
    tool.write("oops.json", "{\n oops");
    ordered_json wind = ordered_json::parse(example_of("wind"));
    wind["heights"].push_back(20);
    wind["base_press"] = -1;
    tool.write("bad.json", wind.dump());
    const std::vector<call_row> calls = {
        {"no file", "--wind none.json", 2, "none.json: error file-unreadable: No such file or directory\n"},
        {"a folder", "--seismic folder", 2, folder_error},
        {"no JSON", "--seismic oops.json", 2, "oops.json:2: error json: column 2: "},
        {"values that do not fit", "--wind bad.json", 2,
         "bad.json: error field-value: field base_press must not be negative\n"
         "bad.json: error list-length: field heights has 6 values, intensity_number is 5\n"
         "bad.json: error list-length: field intensities[0] has 5 values, heights has 6 (and 15 more of this kind)\n"},
    };
    expect_answers(tool, calls, "convert --force in.std out.std ");
    EXPECT_EQ(read_file(out), "precious");
}

TEST(ConvertParameters, WarningsFollowTheNotes)
{
    ordered_json seismic = ordered_json::parse(example_of("seismic"));
    seismic["spectrum_title_z"] = "";
    const tool_result result = convert_with("seismic", seismic.dump());
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(result.err.ends_with(
        "\nparameters.json: warning spectrum: the spectrum of z is not written: spectrum_title_z is empty\n"))
        << result.err;
}

} // namespace
} // namespace cli_test
