// The parameter files of "convert": examples, every field, refusals, texts as GBK.

#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace cli_test {
namespace {

using nlohmann::ordered_json;

/// The kinds of parameter files: the name of the example is that of the option.
const char* const kinds[] = {"wind", "seismic"};

ordered_json example_of(const tool_run& tool, const std::string& kind)
{
    return ordered_json::parse(tool({"convert", "--template", kind}).out);
}

tool_result convert_with(const tool_run& tool, const std::string& kind, const std::string& parameters,
                         const std::string& deck = small_deck())
{
    const std::string file = tool.write("parameters.json", parameters);
    return tool({"convert", "-", "-", "--" + kind, file}, deck);
}

TEST(ConvertParameters, ExamplesAreTakenBack)
{
    const tool_run tool;
    for (const std::string kind : kinds) {
        const tool_result example = tool({"convert", "--template", kind});
        EXPECT_EQ(example.exit_code, 0) << kind;
        EXPECT_EQ(example.err, "") << kind;
        const tool_result result = convert_with(tool, kind, example.out);
        EXPECT_EQ(result.exit_code, 0) << kind << ": " << result.err;
        EXPECT_FALSE(contains(result.err, "warning")) << kind << ": " << result.err;
    }
}

TEST(ConvertParameters, TheWindOfTheExampleIsWritten)
{
    const tool_run tool;
    const std::string text = convert_with(tool, "wind", example_of(tool, "wind").dump()).out;
    for (const char* line : {"*{ STRUCTURE HIGH : 18.0", "*{ IS BETAZ : 0", "*{ BASE PERIOD : 0.6", "*{ SOIL TYPE : B",
                             "*{ AWEATHER WIDTH : 12 12 18 18", "*{ LEFTWIND MIUS : 0.8 -0.5 -0.70 -0.70",
                             "*{ BACKWIND MIUS : -0.7 -0.7 -0.50 0.80", "*{ INTENSITY NUMBER : 5",
                             "*{ INTENSITY ISOMETRY : 4", "*{ INTENSITY FLOOR : 4"})
        EXPECT_TRUE(has_line(text, line)) << line;
    // 0.45 kN/m2 times 1, 1, 1.04, 1.13 and 1.19, times 0.8; the face behind has 0.5.
    EXPECT_TRUE(contains(text, "\nTYPE 18\nINT 0.36 0.36 0.37 0.41 0.43 HEIG 4.5 9.0 11.5 15.0 18.0\n"
                               "TYPE 19\nINT 0.23 0.23 0.23 0.25 0.27 HEIG 4.5 9.0 11.5 15.0 18.0\n"))
        << text;
}

TEST(ConvertParameters, TheEarthquakeOfTheExampleIsWritten)
{
    const tool_run tool;
    const std::string text = convert_with(tool, "seismic", example_of(tool, "seismic").dump()).out;
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
    const std::string wind = tool.write("w.json", example_of(tool, "wind").dump());
    const std::string seismic = tool.write("s.json", example_of(tool, "seismic").dump());
    const std::string always = "note generated: four wind cases of one number and a seismic case are always written";
    EXPECT_TRUE(contains(tool({"convert", "-", "-", "--wind", wind}, small_deck()).err,
                         always + "; without --seismic the seismic case holds no values\n"));
    EXPECT_TRUE(contains(tool({"convert", "-", "-", "--seismic", seismic}, small_deck()).err,
                         always + "; without --wind the wind holds no values\n"));
    const std::string both = tool({"convert", "-", "-", "--wind", wind, "--seismic", seismic}, small_deck()).err;
    EXPECT_TRUE(contains(both, always + '\n')) << both;
}

TEST(ConvertParameters, EquivalentGravityOfLineLoadsIsTold)
{
    const tool_run tool;
    // 1.0 times 1.5 kN/m is 0.0015 kN/mm.
    const std::string deck =
        small_deck("LOAD 1 LOADTYPE Dead TITLE DL\nMEMBER LOAD\n1 UNI GY -1.5\nPERFORM ANALYSIS\n");
    const tool_result result = convert_with(tool, "seismic", example_of(tool, "seismic").dump(), deck);
    EXPECT_TRUE(contains(result.err, "note gravity: equivalent gravity is written in kN and mm with two decimals: line "
                                     "loads may come to nothing\n    1 UNI GX -0.00 \n"))
        << result.err;
    EXPECT_FALSE(contains(convert_with(tool, "seismic", example_of(tool, "seismic").dump()).err, "note gravity"));
}

TEST(ConvertParameters, EveryFieldIsRequired)
{
    const tool_run tool;
    for (const std::string kind : kinds) {
        const ordered_json example = example_of(tool, kind);
        for (const auto& field : example.items()) {
            ordered_json less = example;
            less.erase(field.key());
            const tool_result result = convert_with(tool, kind, less.dump());
            if (field.key() == "title") {
                EXPECT_EQ(result.exit_code, 0) << "free text";
                continue;
            }
            EXPECT_EQ(result.exit_code, 2) << field.key();
            EXPECT_EQ(result.out, "") << field.key();
            EXPECT_EQ(result.err, tool.missing("parameters.json") + ": error field-missing: field " + field.key() +
                                      " is missing\n");
        }
    }
}

TEST(ConvertParameters, EveryFieldHasItsType)
{
    const tool_run tool;
    for (const std::string kind : kinds) {
        const ordered_json example = example_of(tool, kind);
        for (const auto& field : example.items()) {
            // An object is no value of any field, null neither.
            for (const ordered_json& value : {ordered_json::object(), ordered_json()}) {
                ordered_json wrong = example;
                wrong[field.key()] = value;
                const tool_result result = convert_with(tool, kind, wrong.dump());
                EXPECT_EQ(result.exit_code, 2) << field.key();
                EXPECT_TRUE(contains(result.err, ": error field-value: field " + field.key() + " must be "))
                    << result.err;
            }
        }
    }
}

TEST(ConvertParameters, ManyFaultsAreToldAtOnce)
{
    const tool_run tool;
    const tool_result result = convert_with(tool, "wind", "{}");
    EXPECT_EQ(result.exit_code, 2);
    // Thirteen fields, the free title among them.
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 12) << result.err;
}

struct value_case {
    const char* why;
    const char* kind;
    const char* field;
    const char* value; ///< JSON
    const char* message;
};

const value_case refused_values[] = {
    {"a number in quotes", "wind", "base_press", "\"0.45\"", "field base_press must be a number"},
    {"a number for a flag", "wind", "is_betaz", "1", "field is_betaz must be true or false"},
    {"a number for a text", "wind", "soil_type", "2", "field soil_type must be a text"},
    {"half a point", "wind", "intensity_number", "5.5", "field intensity_number must be a whole number of 32 bits"},
    {"a whole number written as a real one", "wind", "intensity_number", "5.0",
     "field intensity_number must be a whole number of 32 bits"},
    {"2 to the 31st", "wind", "intensity_number", "2147483648",
     "field intensity_number must be a whole number of 32 bits"},
    {"below minus 2 to the 31st", "wind", "intensity_number", "-2147483649",
     "field intensity_number must be a whole number of 32 bits"},
    {"2 to the 64th less 1, which is -1 in 64 bits", "wind", "intensity_number", "18446744073709551615",
     "field intensity_number must be a whole number of 32 bits"},
    {"past 64 bits", "wind", "intensity_number", "18446744073709551616",
     "field intensity_number must be a whole number of 32 bits"},
    {"three widths", "wind", "aweather_width", "[1, 2, 3]", "field aweather_width must be a list of 4"},
    {"five widths", "wind", "aweather_width", "[1, 2, 3, 4, 5]", "field aweather_width must be a list of 4"},
    {"three winds", "wind", "mius", "[[0,0,0,0],[0,0,0,0],[0,0,0,0]]", "field mius must be a list of 4"},
    {"a wind of three faces", "wind", "mius", "[[0,0,0,0],[0,0,0,0],[0,0,0],[0,0,0,0]]",
     "field mius[2] must be a list of 4"},
    {"a face that is no number", "wind", "mius", "[[0,0,0,0],[0,\"x\",0,0],[0,0,0,0],[0,0,0,0]]",
     "field mius[1][1] must be a number"},
    {"sixteen numbers in one list", "wind", "mius", "[0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0]",
     "field mius must be a list of 4"},
    {"profiles of two types", "wind", "intensities", "[[1], [1]]", "field intensities must be a list of 16"},
    {"a number for a list", "wind", "heights", "3.6", "field heights must be a list"},
    {"a null among numbers", "wind", "heights", "[4.5, null]", "field heights[1] must be a number"},
    {"more than a line", "wind", "soil_type", "\"B\\nFINISH\"",
     "field soil_type must be one line without control characters"},
    {"a line end of another system", "wind", "soil_type", "\"B\\r\"",
     "field soil_type must be one line without control characters"},
    {"no such character in GBK", "wind", "soil_type", "\"B \\ud83d\\ude00\"",
     "field soil_type has characters that GBK lacks"},
    {"two directions", "seismic", "dir_active", "[true, false]", "field dir_active must be a list of 3"},
    {"a factor that is no whole number", "seismic", "dir_factor", "[1, 1.5, 1]",
     "field dir_factor[1] must be a whole number of 32 bits"},
    {"a flag that is a number", "seismic", "dir_active", "[true, 0, true]",
     "field dir_active[1] must be true or false"},
    {"a load number that is a real one", "seismic", "loadno", "[1, 2.5]",
     "field loadno[1] must be a whole number of 32 bits"},
    {"a title in two lines", "seismic", "spectrum_title_x", "\"A\\nB\"",
     "field spectrum_title_x must be one line without control characters"},
};

TEST(ConvertParameters, RefusedValuesNameTheirField)
{
    const tool_run tool;
    for (const value_case& each : refused_values) {
        ordered_json wrong = example_of(tool, each.kind);
        wrong[each.field] = ordered_json::parse(each.value);
        const tool_result result = convert_with(tool, each.kind, wrong.dump());
        EXPECT_EQ(result.exit_code, 2) << each.why;
        EXPECT_EQ(result.err, tool.missing("parameters.json") + ": error field-value: " + each.message + '\n')
            << each.why;
    }
}

const value_case taken_values[] = {
    {"a whole number for a real one", "wind", "base_press", "1", "*{ BASE PRESS : 1.0"},
    {"an exponent", "wind", "structure_high", "1.5e2", "*{ STRUCTURE HIGH : 150.0"},
    {"the largest whole number", "wind", "intensity_number", "2147483647", "*{ INTENSITY NUMBER : 2147483647"},
    {"the smallest whole number", "wind", "intensity_number", "-2147483648", "*{ INTENSITY NUMBER : -2147483648"},
    {"class B, in GBK", "wind", "soil_type", "\"B\xE7\xB1\xBB\"", "*{ SOIL TYPE : B\xC0\xE0"},
    {"the same with an escape", "wind", "soil_type", "\"B\\u7c7b\"", "*{ SOIL TYPE : B\xC0\xE0"},
    {"rare", "seismic", "eq_type", "\"\xE7\xBD\x95\xE9\x81\x87\"", "*{ EQ TYPE : 4"},
    {"the third group", "seismic", "eq_group", "\"\xE7\xAC\xAC\xE4\xB8\x89\xE7\xBB\x84\"", "*{ EQ GROUP : 3"},
    {"a title in GBK", "seismic", "spectrum_title_z", "\"\xE7\xBD\x95\xE9\x81\x87\"", "\xBA\xB1\xD3\xF6"},
};

TEST(ConvertParameters, ValuesAreWritten)
{
    const tool_run tool;
    for (const value_case& each : taken_values) {
        ordered_json changed = example_of(tool, each.kind);
        changed[each.field] = ordered_json::parse(each.value);
        const tool_result result = convert_with(tool, each.kind, changed.dump());
        EXPECT_EQ(result.exit_code, 0) << each.why << ": " << result.err;
        EXPECT_TRUE(has_line(result.out, each.message)) << each.why;
    }
}

TEST(ConvertParameters, WhatADumpHoldsIsAParameterFile)
{
    const tool_run tool;
    const ordered_json model = ordered_json::parse(tool({"dump", "-"}, small_deck()).out);
    const std::string plain = tool({"convert", "-", "-"}, small_deck()).out;
    EXPECT_EQ(convert_with(tool, "wind", model["wl_param"].dump()).out, plain);
    EXPECT_EQ(convert_with(tool, "seismic", model["eq_param"].dump()).out, plain);
}

struct text_case {
    const char* why;
    const char* text;
    const char* message; ///< behind the name of the file
};

const text_case refused_texts[] = {
    {"nothing", "", ":1: error json: column 1: "},
    {"a word on the third line", "{\n  \"base_press\": 0.45,\n  oops\n}", ":3: error json: column 3: "},
    {"an end too early", "{\"base_press\": 0.45", ":1: error json: column 20: "},
    {"more behind the end", "{}\n{}", ":2: error json: column 1: "},
    {"a list", "[1]", ":1: error json: no object: {\"NAME\": VALUE, ...}\n"},
    {"a number past any", "{\"base_press\": 1e999}",
     ": error field-value: field base_press holds a number past the range of 64-bit reals\n"},
    {"NaN is no JSON", "{\"base_press\": NaN}", ":1: error json: column "},
    {"no UTF-8", "{\"soil_type\": \"\xB2\xE3\"}", ":1: error json: column "},
    {"a field twice", "{\"base_press\": 1, \"base_press\": 2}",
     ": error field-twice: field base_press is there twice\n"},
    {"a field that is none", "{\"base_pres\": 1}",
     ": error field-unknown: unknown field 'base_pres'; did you mean 'base_press'?\n"},
    {"a field that is nothing like one", "{\"x\": 1}", ": error field-unknown: unknown field 'x'\n"},
    {"a field of the other file", "{\"eq_type\": 1}", ": error field-unknown: unknown field 'eq_type'\n"},
};

TEST(ConvertParameters, RefusedTextsNameTheirPlace)
{
    const tool_run tool;
    for (const text_case& each : refused_texts) {
        const tool_result result = convert_with(tool, "wind", each.text);
        EXPECT_EQ(result.exit_code, 2) << each.why;
        EXPECT_EQ(result.out, "") << each.why;
        EXPECT_TRUE(contains(result.err, tool.missing("parameters.json") + each.message))
            << each.why << ": " << result.err;
    }
}

TEST(ConvertParameters, FilesThatCannotBeRead)
{
    const tool_run tool;
    const std::string none = tool.missing("none.json");
    const tool_result missing = tool({"convert", "-", "-", "--wind", none}, small_deck());
    EXPECT_EQ(missing.exit_code, 2);
    EXPECT_EQ(missing.err, none + ": error file-unreadable: No such file or directory\n");
    const tool_result folder = tool({"convert", "-", "-", "--seismic", tool.folder()}, small_deck());
    EXPECT_EQ(folder.exit_code, 2);
#ifdef _WIN32
    const std::string reason = "Permission denied";
#else
    const std::string reason = "Is a directory";
#endif
    EXPECT_EQ(folder.err, tool.folder() + ": error file-unreadable: " + reason + '\n');
}

TEST(ConvertParameters, RefusedFilesLeaveTheEarlierOutput)
{
    const tool_run tool;
    const std::string in = tool.write("in.std", small_deck());
    const std::string out = tool.write("out.std", "precious");
    const std::string bad = tool.write("bad.json", "{}");
    EXPECT_EQ(tool({"convert", "--force", in, out, "--wind", bad}).exit_code, 2);
    EXPECT_EQ(read_file(out), "precious");
}

const value_case doubtful_values[] = {
    {"one profile is shorter", "wind", "heights", "[3, 6, 9, 12]",
     "warning list-length: heights has 4 values, intensities[0] has 5: the profile is written so (and 15 more of this "
     "kind)"},
    {"no such word", "seismic", "eq_type", "\"frequent\"",
     "warning field-word: eq_type is none of \xE8\xBF\x9C, \xE8\xBF\x91, \xE5\xA4\x9A\xE9\x81\x87, "
     "\xE7\xBD\x95\xE9\x81\x87: no EQ TYPE line is written"},
    {"no such group", "seismic", "eq_group", "\"1\"", "warning field-word: eq_group is none of "},
    {"more cases than listed", "seismic", "loadno_count", "3",
     "warning list-length: loadno_count is 3, loadno has 2 numbers, loadno_factor has 2: the smallest counts"},
    {"fewer periods than points", "seismic", "periods", "[0, 1]",
     "warning spectrum: the spectrum of x is not written: point_number is 10, periods has 2 values, spectrum_x has 10"},
    {"a spectrum without a title", "seismic", "spectrum_title_z", "\"\"",
     "warning spectrum: the spectrum of z is not written: spectrum_title_z is empty"},
    {"a vertical spectrum without the freedom", "seismic", "spectrum_title_y", "\"SPECTRUM Y\"",
     "warning spectrum: the spectrum of y is not written: y_freedom is false"},
};

TEST(ConvertParameters, ValuesThatDoNotFitEachOtherAreWrittenAndTold)
{
    const tool_run tool;
    for (const value_case& each : doubtful_values) {
        ordered_json changed = example_of(tool, each.kind);
        changed[each.field] = ordered_json::parse(each.value);
        const tool_result result = convert_with(tool, each.kind, changed.dump());
        EXPECT_EQ(result.exit_code, 0) << each.why;
        EXPECT_TRUE(contains(result.err, tool.missing("parameters.json") + ": " + each.message))
            << each.why << ": " << result.err;
    }
}

} // namespace
} // namespace cli_test
