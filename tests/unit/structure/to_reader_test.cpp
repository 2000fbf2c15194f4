/// What the container holds of a complete reading: the host reading's model where that reads a deck as meant, and
/// texts in metres and kilonewtons where it does not.

#include "staad/model/sd_reader.h"
#include "staad/structure/container.h"
#include "staad/structure/local_axes.h"
#include "tests/support/example_files.h"
#include "tests/support/model_equal.h"
#include "tests/support/random_deck.h"
#include "tests/unit/structure/plain_differences.h"
#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace STAAD::test {
namespace {

using texts = std::vector<std::string>;

SdReader container_of(const std::string& text)
{
    SdReader model;
    to_reader(read_text(text).structure, model);
    return model;
}

SdReader host_model_of(const std::string& text)
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromText(text));
    return model;
}

TEST(ToReader, ExamplesInMetresAreAsTheHostReadingHasThem)
{
    for (const char* name : {"concrete-frame.std", "steel-portal.std", "twelve-storey.std"}) {
        const std::string text = examples::content(name);
        EXPECT_EQ(model_differences(host_model_of(text), container_of(text)), texts{}) << name;
    }
}

TEST(ToReader, ExampleInFeetDiffersByUnitsAndShortHeader)
{
    const std::string text = examples::content("imperial-frame.std");
    SdReader host = host_model_of(text);
    SdReader container = container_of(text);
    // Exact factors: a foot is 304.8 mm, which the host reading misses in the last bits, a pound force 4.4482216 N
    // where that has 4.445206.
    ASSERT_EQ(host.nodes.size(), container.nodes.size());
    for (std::size_t i = 0; i < host.nodes.size(); ++i) {
        EXPECT_NEAR(host.nodes[i].x, container.nodes[i].x, 1e-8);
        EXPECT_NEAR(host.nodes[i].y, container.nodes[i].y, 1e-8);
        EXPECT_NEAR(host.nodes[i].z, container.nodes[i].z, 1e-8);
        host.nodes[i].x = container.nodes[i].x;
        host.nodes[i].y = container.nodes[i].y;
        host.nodes[i].z = container.nodes[i].z;
    }
    for (std::size_t i = 0; i < host.beams.size(); ++i) {
        EXPECT_NEAR(host.beams[i].offset_start.y, container.beams[i].offset_start.y, 1e-9);
        host.beams[i].offset_start = container.beams[i].offset_start;
        host.beams[i].offset_end = container.beams[i].offset_end;
    }
    ASSERT_EQ(host.load_defs.size(), container.load_defs.size());
    for (auto& [number, definition] : host.load_defs) {
        LoadDefination& of_container = container.load_defs[number];
        const double factor = number == 1 ? 1.0 : 4.4482216152605 / 4.445206; // 1: a self weight, a factor
        ASSERT_EQ(definition.values.size(), of_container.values.size()) << number;
        for (std::size_t i = 0; i < definition.values.size(); ++i)
            EXPECT_NEAR(of_container.values[i],
                        definition.values[i] * (i == 1 && definition.values[0] != 0.0 ? 1.0 : factor),
                        std::abs(definition.values[i]) * 1e-12)
                << number;
        definition.values = of_container.values;
    }
    // The other differences: texts of the definitions, 18 but for the self weight, in metres; the unit and its two
    // factors; the title that the host reading does not take from "LOAD 3 ROOF LIVE".
    int converted = 0;
    texts others;
    for (const std::string& each : model_differences(host, container))
        if (each.find("raw_load_defs[") == 0)
            ++converted;
        else
            others.push_back(each.substr(0, each.find(':')));
    EXPECT_EQ(converted, 18);
    EXPECT_EQ(others, (texts{"load_cases[3].title", "unit_text", "length_factor", "force_factor"}));
}

/// Why the two readings of a plain deck may differ in a field; empty: there is no reason.
std::string cause_of(const std::string& difference)
{
    const auto has = [&](const char* text) { return difference.find(text) != std::string::npos; };
    if ((has(".sect_text:") || has(".thickness:")) && is_rounding(difference))
        return "mm not cut";
    if (has("concrete_density:"))
        return "density";
    return has(".title: \"\" and \"DEAD LOAD FROM SLAB\"") ? "title of a short header" : "";
}

TEST(ToReader, PlainDecksDifferByNamedCausesAlone)
{
    std::map<std::string, int> causes;
    for (std::uint64_t seed = 1; seed <= 150; ++seed) {
        const decks::random_deck deck = decks::make_random_deck(seed, 8, decks::deck_kind::plain);
        const SdReader host = host_model_of(deck.text);
        SdReader container = container_of(deck.text);
        causes["self weight on all"] += take_self_weights_on_all(host, container);
        EXPECT_TRUE(container.concrete_density == 25.5 || host.concrete_density == container.concrete_density)
            << seed; // of the last DENSITY line
        for (const std::string& difference : model_differences(host, container)) {
            EXPECT_NE(cause_of(difference), "") << "seed " << seed << ", " << difference;
            ++causes[cause_of(difference)];
        }
    }
    EXPECT_EQ(causes.size(), 4U);
    for (const auto& [cause, count] : causes) {
        EXPECT_GT(count, 0) << cause;
        RecordProperty(cause, count);
    }
}

TEST(ToReader, HoldsWhatTheHostReadingMisses)
{
    const struct {
        const char* cause;
        texts lines;
        texts fields; ///< that differ, each once
    } table[] = {
        {"a list that the host reading does not know", {"CONSTANTS", "BETA 90 ALL", "FINISH"}, {"beams"}},
        {"the later of two equal numbers, in the place of the earlier",
         {"SURFACE INCIDENCE", "1 2 3 SURFACE 1", "2 3 4 SURFACE 1", "FINISH"},
         {"shells", "surfaces", "surface_index"}},
        {"a load on the last line",
         {"LOAD 1 LOADTYPE Dead TITLE D", "MEMBER LOAD", "1 UNI GY -5"},
         {"beams", "load_defs", "raw_load_defs"}},
        {"a case after a combination",
         {"LOAD 1 LOADTYPE Dead TITLE D", "LOAD COMB 2", "1 1", "LOAD 3 LOADTYPE Live TITLE L", "FINISH"},
         {"load_cases"}},
        {"LOAD LIST is no case 0", {"LOAD 1 LOADTYPE Dead TITLE D", "LOAD LIST 1", "FINISH"}, {"load_cases"}},
        {"a sum of cases",
         {"LOAD 1 LOADTYPE Dead TITLE D", "SELFWEIGHT Y -1 LIST 1", "LOAD 2 LOADTYPE Dead TITLE D", "REPEAT LOAD",
          "1 2", "FINISH"},
         {"beams", "load_defs", "raw_load_defs"}},
        {"a definition that does not go in",
         {"LOAD 1 LOADTYPE Dead TITLE D", "ELEMENT LOAD", "11 PR GY -1", "FINISH"},
         {"load_defs", "raw_load_defs"}},
    };
    for (const auto& each : table) {
        std::string text;
        for (const char* line : frame_lines)
            text += std::string(line) + "\n";
        for (const std::string& line : each.lines)
            text += line + "\n";
        texts fields;
        for (const std::string& difference : model_differences(host_model_of(text), container_of(text))) {
            const std::string field = difference.substr(0, difference.find_first_of("[.:"));
            if (std::find(fields.begin(), fields.end(), field) == fields.end())
                fields.push_back(field);
        }
        EXPECT_EQ(fields, each.fields) << each.cause;
    }
}

TEST(ToReader, ReplacesWhatAReadingReplaces)
{
    SdReader model = host_model_of(examples::content("steel-portal.std"));
    model.beam_forces[1] = {};
    model.wl_param.soil_type = "B";
    model.eq_param.point_number = 7;
    model.old_proj_maps.members_new_to_old[3] = 4;
    const Structure structure = read_text(examples::content("concrete-frame.std")).structure;
    SdReader expected;
    to_reader(structure, expected);
    expected.wl_param.soil_type = "B";
    expected.eq_param.point_number = 7;
    expected.old_proj_maps.members_new_to_old[3] = 4;
    to_reader(structure, model);
    EXPECT_EQ(model_differences(model, expected), texts{});
}

TEST(ToReader, KeepsAxesOfDecksWithZUp)
{
    // Level, up, down, leaning, and up with a beta angle: the container's y is the deck's z, its z the deck's y with
    // the sign turned.
    const deck_reading reading = read_text("STAAD SPACE\nSET Z UP\nUNIT METER KN\nJOINT COORDINATES\n"
                                           "1 0 0 0; 2 5 2 0; 3 0 0 4; 4 1 2 6\nMEMBER INCIDENCES\n"
                                           "1 1 2; 2 1 3; 3 3 1; 4 3 4; 5 1 3\nCONSTANTS\nBETA 30 MEMB 4 5\n");
    ASSERT_EQ(reading.structure.members.size(), 5U);
    SdReader model;
    to_reader(reading.structure, model);
    const Structure back = structure_of(model);
    for (std::size_t i = 0; i < 5; ++i) {
        const LocalAxes of_deck = local_axes(reading.structure, reading.structure.members[i]);
        const LocalAxes held = local_axes(back, back.members[i]);
        const double expected[] = {of_deck.z.x, of_deck.z.y, of_deck.z.z, -of_deck.y.x, -of_deck.y.y, -of_deck.y.z};
        const double given[] = {held.y.x, held.y.y, held.y.z, held.z.x, held.z.y, held.z.z};
        for (std::size_t k = 0; k < 6; ++k)
            EXPECT_NEAR(given[k], expected[k], 1e-12) << "member " << i + 1 << ", " << k;
    }
    const std::vector<double> beta{0.0, -90.0, 90.0, 30.0, -60.0};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(model.beams[i].beta, beta[i]) << "member " << i + 1;
}

/// What stands in the container for lines after the frame: texts alone, "; " between.
struct row {
    const char* what;
    const char* set; ///< before the frame
    texts lines;
    const char* held;
    const char* reported; ///< codes
};

std::string numbers_text(const std::vector<double>& values)
{
    std::string text;
    for (const double value : values) {
        char number[40];
        std::snprintf(number, sizeof number, " %.9g", value);
        text += number;
    }
    return text;
}

/// "SUPPORT FIXED: 1 4; SECTION 1 ...; LOAD 1 text | direction values: 1 2", of what is there.
std::string held_by(const SdReader& model)
{
    texts parts;
    const auto described = [&](const char* word, const auto& records) {
        for (const auto& [text, numbers] : records) {
            parts.push_back(std::string(word) + " " + text + ":");
            for (const unsigned number : numbers)
                parts.back() += " " + std::to_string(number);
        }
    };
    described("S", model.supports);
    described("R", model.releases);
    for (const SdBeam& beam : model.beams)
        if (!beam.sect_name.empty())
            parts.push_back(std::to_string(beam.id) + " " + beam.sect_name +
                            (beam.sect_text == beam.sect_name ? "" : " = " + beam.sect_text));
    for (const auto& [number, table] : model.usr_tables)
        for (const auto& [name, numbers] : table.records)
            if (name.front() >= 'A')
                parts.push_back(table.type + " " + name + " " + numbers);
    for (const SdShell& shell : model.shells)
        if (shell.thickness != 0)
            parts.push_back("E" + std::to_string(shell.id) + " " + std::to_string(shell.thickness));
    for (const auto& [number, raw] : model.raw_load_defs) {
        const LoadDefination& definition = model.load_defs.at(number);
        std::string part = std::to_string(raw.load_case) + " " + raw.text + " | " + definition.direction +
                           numbers_text(definition.values) + ":";
        for (const SdNode& node : model.nodes)
            for (const int each : node.extra_ids)
                part += each == number ? " " + std::to_string(node.id) : "";
        for (const SdBeam& beam : model.beams)
            for (const int each : beam.int_list)
                part += each == number ? " " + std::to_string(beam.id) : "";
        parts.push_back(part);
    }
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : "; ") + part;
    return text;
}

std::string codes_of(const ReadReport& report)
{
    std::string codes;
    for (const Finding& finding : report.findings)
        codes += (codes.empty() ? "" : " ") + finding.code;
    return codes;
}

TEST(ToReader, HoldsTextsInMetresAndKilonewtons)
{
    // After SET Z UP members 4 and 5 of the frame stand upright: their beta changes.
    constexpr const char* two_columns = "changed-in-container changed-in-container";
    const row rows[] = {
        // Supports and releases.
        {"words without numbers stay", "", {"SUPPORTS", "1 4 FIXED BUT MX MZ"}, "S FIXED BUT MX MZ: 1 4", ""},
        {"1 kip/ft is 4.4482216152605 kN / 0.3048 m",
         "",
         {"UNIT FEET KIP", "SUPPORTS", "1 FIXED BUT KFY 1"},
         "S FIXED BUT KFY 14.593902937206364: 1",
         ""},
        {"1000 N/mm is 1000 kN/m; a moment spring of 2e6 N mm is 2 kN m",
         "",
         {"UNIT MMS NEWTON", "SUPPORTS", "1 FIXED BUT MX KFY 1000 KMZ 2000000"},
         "S FIXED BUT MX KFY 1000 KMZ 2: 1",
         ""},
        {"a number that is no spring stays",
         "",
         {"UNIT MMS KN", "MEMBER RELEASE", "1 START MP 0.5"},
         "R START MP 0.5: 1",
         ""},
        {"one line for both ends is one text", "", {"MEMBER RELEASE", "1 2 BOTH MY MZ"}, "R BOTH MY MZ: 1 2", ""},
        {"of both ends one is replaced by a later line",
         "",
         {"MEMBER RELEASE", "1 BOTH MY", "1 END MZ"},
         "R END MZ: 1; R START MY: 1",
         ""},
        {"letters of Z up: the upright axis z is the container's y",
         "SET Z UP",
         {"MEMBER RELEASE", "2 START MZ KFY 5"},
         "R START MY KFZ 5: 2",
         two_columns},
        {"springs of releases, 5 N/mm",
         "",
         {"UNIT MMS NEWTON", "MEMBER RELEASE", "1 START KFX 5"},
         "R START KFX 5: 1",
         ""},
        {"letters of Z up: held X and Z of the file, upright Z, are FZ and FY",
         "SET Z UP",
         {"SUPPORTS", "1 FIXED BUT FY MX MY MZ"},
         "S FIXED BUT FX MX MY MZ: 1",
         two_columns},
        {"kept as it is written",
         "",
         {"SUPPORTS", "1 INCLINED 1 0 0 PINNED"},
         "S INCLINED 1 0 0 PINNED: 1",
         "changed-in-container"},
        // Sections.
        {"mm to nearest: 0.2996 m is 300, where the host cuts 299",
         "",
         {"MEMBER PROPERTY", "1 PRIS YD 0.5 ZD 0.2996"},
         "1 PRIS YD 0.5 ZD 0.2996 = PRIS500X300",
         ""},
        {"2 ft by 1 ft are 609.6 by 304.8 mm",
         "",
         {"UNIT FEET KIP", "MEMBER PROPERTY", "1 PRIS YD 2 ZD 1"},
         "1 PRIS YD 0.6096 ZD 0.3048 = PRIS610X305",
         ""},
        {"in the order of the text",
         "",
         {"MEMBER PROPERTY", "1 PRIS ZD 0.3 YD 0.5"},
         "1 PRIS ZD 0.3 YD 0.5 = PRIS300X500",
         ""},
        {"a circle does not show that it is one",
         "",
         {"UNIT MMS KN", "MEMBER PROPERTY", "1 PRIS YD 550"},
         "1 PRIS YD 0.55 = PRIS550",
         "changed-in-container"},
        {"areas and inertia by their own units",
         "",
         {"UNIT MMS KN", "MEMBER PROPERTY", "1 PRIS AX 20000 IZ 3e8"},
         "1 PRIS AX 0.02 IZ 0.0003",
         ""},
        {"round tube in mm",
         "",
         {"UNIT MMS KN", "MEMBER PROPERTY", "1 PRIS ROUND STA 500 END 300 THICKNESS 10"},
         "1 PRIS ROUND STA 0.5 END 0.3 THICKNESS 0.01",
         ""},
        {"tube and pipe",
         "",
         {"UNIT MMS KN", "MEMBER PROPERTY", "1 TABLE ST TUBE TH 6 WT 100 DT 200", "2 TABLE ST PIPE OD 200 ID 180"},
         "1 TABLE ST TUBE TH 0.006 WT 0.1 DT 0.2; 2 TABLE ST PIPE OD 0.2 ID 0.18 = TABLE ST PIP200X10",
         ""},
        {"the gap of a double angle, half an inch",
         "",
         {"UNIT INCHES KIP", "MEMBER PROPERTY", "1 TABLE LD L40404 SP 0.5"},
         "1 TABLE LD L40404 SP 0.0127",
         ""},
        {"tapered",
         "",
         {"UNIT MMS KN", "MEMBER PROPERTY", "1 TAPERED 350 8 700 220 12"},
         "1 TAPERED 0.35 0.008 0.7 0.22 0.012 = TAPERED350X8X700X220X12",
         ""},
        {"chosen by the analysis program", "", {"MEMBER PROPERTY", "1 ASSIGN BEAM"}, "", "not-in-container"},
        {"a row in inches: 10 in are 0.254 m",
         "",
         {"START USER TABLE", "TABLE 1", "UNIT INCHES KIP", "WIDE FLANGE", "H10", "10 5 2.5 1", "END"},
         "WIDE FLANGE H10 0.254 0.127 0.0635 0.0254",
         ""},
        {"the columns of a channel have powers of their own: 1 mm2, 1 mm4",
         "",
         {"START USER TABLE", "TABLE 1", "UNIT MMS KN", "CHANNEL", "C1", "1000 200 8 80 12 1e6 1e6 1e4 20 500 500",
          "END"},
         "CHANNEL C1 0.001 0.2 0.008 0.08 0.012 1e-06 1e-06 1e-08 0.02 0.0005 0.0005",
         ""},
        // Thickness.
        {"whole mm to nearest; the mean of 100, 200, 300 and 400 mm",
         "",
         {"ELEMENT PROPERTY", "12 THICKNESS 0.1996", "11 THICKNESS 0.1 0.2 0.3 0.4"},
         "E11 250; E12 200",
         "changed-in-container"},
        // Loads.
        {"1 kip/ft again; 5 ft are 1.524 m",
         "",
         {"UNIT FEET KIP", "LOAD 1", "MEMBER LOAD", "1 UNI GY -1 0 5"},
         "1 MEMBER LOAD UNI GY -14.593902937206364 0 1.524 | GZ -0.0145939029 0 1524: 1",
         ""},
        {"a kip; x of the file is y of the model",
         "",
         {"UNIT FEET KIP", "LOAD 1", "JOINT LOAD", "1 FX 1"},
         "1 JOINT LOAD FX 4.4482216152605 | Z 0 4.44822162 0 0 0 0: 1",
         ""},
        {"in metres as written",
         "",
         {"LOAD 1", "MEMBER LOAD", "1 2 CON Y -5.0 1.50"},
         "1 MEMBER LOAD CON Y -5.0 1.50 | Z -5 1500: 1 2",
         ""},
        {"Z up: local z is upright, the container's Z",
         "SET Z UP",
         {"LOAD 1", "MEMBER LOAD", "1 UNI Z -5"},
         "1 MEMBER LOAD UNI Y -5 | Z -0.005: 1",
         two_columns},
        {"Z up: local y is level, the container's X with the sign turned",
         "SET Z UP",
         {"LOAD 1", "MEMBER LOAD", "1 UNI Y -5"},
         "1 MEMBER LOAD UNI Z 5 | X 0.005: 1",
         two_columns},
        {"Z up: global Z is the container's, GY in texts",
         "SET Z UP",
         {"LOAD 1", "MEMBER LOAD", "1 UNI GZ -5"},
         "1 MEMBER LOAD UNI GY -5 | GZ -0.005: 1",
         two_columns},
        {"Z up: FX is FZ in texts, x of the model",
         "SET Z UP",
         {"LOAD 1", "JOINT LOAD", "1 FX 3"},
         "1 JOINT LOAD FZ 3 | Z 3 0 0 0 0 0: 1",
         two_columns},
        {"self weight without a list", "", {"LOAD 1", "SELFWEIGHT Y -1"}, "1 SELFWEIGHT Y -1 | Z -1: 1 2 3 4 5 6", ""},
        {"area and floor loads by list",
         "",
         {"LOAD 1", "AREA LOAD", "1 2 ALOAD -0.5", "FLOOR LOAD", "1 TO 3 FLOAD -2 GY"},
         "1 AREA LOAD ALOAD -0.5 | Z -5e-07: 1 2; 1 FLOOR LOAD FLOAD -2 GY | Z: 1 2 3",
         ""},
        {"a sum is the loads it comes to, by factor; texts are made anew",
         "",
         {"LOAD 1", "MEMBER LOAD", "1 CON GY -10.0 1.0", "LOAD 2", "REPEAT LOAD", "1 1.5"},
         "1 MEMBER LOAD CON GY -10.0 1.0 | GZ -10 1000: 1; 2 MEMBER LOAD CON GY -15 1 | GZ -15 1000: 1",
         ""},
        {"what has no place",
         "",
         {"LOAD 1", "ELEMENT LOAD", "11 PR GY -1", "TEMPERATURE LOAD", "1 TEMP 20", "FLOOR LOAD", "YRANGE 0 9 FLOAD -1",
          "LOAD COMB 2", "1 1.5"},
         "",
         "not-in-container not-in-container not-in-container not-in-container"},
        {"a floor by its group",
         "",
         {"START GROUP DEFINITION", "FLOOR", "_SLAB 1 TO 3", "END GROUP DEFINITION", "LOAD 1", "FLOOR LOAD",
          "_SLAB FLOAD -2 GY"},
         "",
         "not-in-container"},
        {"the load of a reference case that a sum comes to has no place, those of members have",
         "",
         {"DEFINE REFERENCE LOADS", "LOAD R1", "ELEMENT LOAD", "11 PR GY -1", "MEMBER LOAD", "1 UNI GY -2",
          "END DEFINE REFERENCE LOADS", "LOAD 1", "REFERENCE LOAD", "R1 0.5"},
         "1 MEMBER LOAD UNI GY -1 | GZ -0.001: 1",
         "not-in-container"},
        {"a load that another case repeats is reported where it stands alone",
         "",
         {"LOAD 1", "ELEMENT LOAD", "11 PR GY -1", "LOAD 2", "REPEAT LOAD", "1 2"},
         "",
         "not-in-container"},
        {"cables, cracked sections, springs under elements, constants",
         "",
         {"MEMBER CABLE", "1", "MEMBER CRACKED", "2 REDUCTION RIZ 0.5", "DEFINE MATERIAL START", "ISOTROPIC A", "E 2e8",
          "END DEFINE MATERIAL", "SUPPORTS", "11 PLATE MAT DIRECT Y SUBGRADE 1000"},
         "",
         "not-in-container not-in-container not-in-container not-in-container"},
    };
    for (const row& each : rows) {
        const deck_reading reading = read_in_frame(each.lines, each.set);
        ASSERT_TRUE(reading.is_given) << each.what;
        const std::string unread = warnings(reading.report);
        EXPECT_TRUE(unread.empty() || unread == "form-kept") << each.what << ": " << unread;
        SdReader model;
        ReadReport report;
        to_reader(reading.structure, model, report);
        EXPECT_EQ(held_by(model), each.held) << each.what;
        EXPECT_EQ(codes_of(report), each.reported) << each.what;
        EXPECT_EQ(model.unit_text, "UNIT METER KN") << each.what;
    }
}

} // namespace
} // namespace STAAD::test
