// The complete reading: chosen by --reading with every verb, shown by "info", printed by "dump --form structure".

#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace cli_test {
namespace {

using complete_json = nlohmann::ordered_json;

/// In millimetres and kilonewtons, z up, each line with its number.
const char* const lower_case_deck =
    "staad space tower\n"                                                                      // 1
    "unit mms kn\n"                                                                            // 2
    "set z up\n"                                                                               // 3
    "joint coordinates\n"                                                                      // 4
    "1 0 0 0; 2 0 0 3000; 3 4000 0 3000; 7 4000 0 0\n"                                         // 5
    "member incidences\n"                                                                      // 6
    "1 1 2; 2 2 3\n"                                                                           // 7
    "3 7 3\n"                                                                                  // 8
    "start group definition\nfloor\n_f 2 9\nend group definition\n"                            // 9
    "element incidences\n"                                                                     // 13
    "11 1 2 3\n"                                                                               // 14
    "member property american\n"                                                               // 15
    "1 3 pris yd 500 zd 300.5\n"                                                               // 16
    "define material start\nisotropic C30\ne 30\npoisson 0.2\nend\n"                           // 17
    "constants\nmaterial C30 all\n"                                                            // 22
    "supports\n1 7 fixed but mz\n"                                                             // 24
    "member release\n2 start mz\n"                                                             // 26
    "define reference loads\nload r1 title own\nselfweight z -1\nend define reference loads\n" // 28
    "load 4 loadtype Roof Live title LL\n"                                                     // 32
    "member load\n1 to 3 uni gz -5; 1 3 con gz -6\n"                                           // 33
    "element load\n11 pr -2\n"                                                                 // 35
    "reference load\nr1 1.5\n"                                                                 // 37
    "load comb 5 both\n4 1.2 r1 -1\n"                                                          // 39
    "floor diaphragm\ndia 1 type rig\ninactive members 2\n"                                    // 41 to 43
    "perform analysis\n"                                                                       // 44
    "calculate rayleigh frequency\n"                                                           // 45
    "finish\n";                                                                                // 46

TEST(Complete, ReadingIsChosenWithEveryVerb)
{
    const tool_run tool;
    tool.write("a.std", lower_case_deck);
    tool.write("a.txt", "x\n");
    expect_answers(tool, {{"the default of info", "info -q a.std", 0, "", "kind: space, Z up\n"},
                          {"", "info -q --reading complete a.std", 0, "", "kind: space, Z up\n"},
                          {"several files", "info -q a.std a.std", 0, "",
                           "a.std: 4 joints, 3 members, 1 element, 0 surfaces, 1 load case\n"},
                          {"no command in upper case", "info --reading host a.std", 3, "a.std: error no-unit: "},
                          {"", "dump a.std", 3, "a.std: error no-unit: "},
                          {"", "dump -q --reading complete a.std", 0, "", "  \"unit_text\": \"UNIT METER KN\""},
                          {"", "storeys a.std", 3, "a.std: error no-unit: "},
                          {"", "storeys -q --reading complete a.std", 0, "", "a.std\n"},
                          {"", "convert a.std -", 3, "a.std: error no-unit: "},
                          {"", "convert -q --reading complete a.std -", 0, "", "MEMBER INCIDENCES"},
                          {"", "compare a.std a.std", 3, "a.std: error no-unit: "},
                          {"", "compare -q --reading complete a.std a.std", 0, "", "NEW: a.std\n"},
                          {"", "forces a.std a.txt", 3, "a.std: error no-unit: "},
                          {"the model is read", "forces -q --reading complete a.std a.txt", 3, "a.txt: error "},
                          {"what the container has no place for", "storeys --notes --reading complete a.std", 0,
                           "a.std:36: note not-in-container: ", "a.std\n"}});
}

struct value_row {
    const char* why;
    const char* pointer;
    const char* want;
};

void expect_values(const complete_json& document, const std::vector<value_row>& rows)
{
    for (const value_row& each : rows)
        EXPECT_EQ(document.at(complete_json::json_pointer(each.pointer)), complete_json::parse(each.want))
            << each.pointer << ": " << each.why;
}

TEST(Complete, DumpOfTheStructure)
{
    const tool_result result = tool_run()("dump -q --form structure --reading complete -", lower_case_deck);
    ASSERT_EQ(result.exit_code, 0) << result.err;
    const complete_json document = complete_json::parse(result.out);
    std::string keys;
    for (const auto& entry : document.items())
        keys += entry.key() + ' ';
    EXPECT_EQ(keys, "head joints members elements sections materials supports groups load_cases reference_cases "
                    "combinations kept ");
    expect_values(
        document,
        {{"", "/head/up", "\"Z\""},
         {"", "/head/axes", R"({"x": "X", "y": "Y", "z": "Z"})"},
         {"", "/joints/3", R"({"number": 7, "x": 4000, "y": 0, "z": 0, "lines": [[5, 5]]})"},
         {"joints by their numbers", "/members/2/start", "7"},
         {"its own line, section, material", "/members/2/lines", "[[8, 8], [16, 16], [23, 23]]"},
         {"and the release", "/members/1/lines", "[[7, 7], [23, 23], [27, 27]]"},
         {"", "/members/1/section", "null"},
         {"about z", "/members/1/start_release/released", "[false, false, false, false, false, true]"},
         {"three corners", "/elements/0/joints", "[1, 2, 3]"},
         {"real mm", "/sections/0/values", R"([{"name": "YD", "value": 500}, {"name": "ZD", "value": 300.5}])"},
         {"", "/sections/0/area", "150250"},
         {"", "/materials/0/e", "30"},
         {"not given", "/materials/0/density", "null"},
         {"the second joint", "/supports/1/number", "7"},
         {"numbers without a record, too", "/groups/0/numbers", "[2, 9]"},
         {"", "/load_cases/0/type", "\"Roof Live\""},
         {"all three in one run", "/load_cases/0/loads/0/members", "[[1, 3]]"},
         {"", "/load_cases/0/loads/0/direction", "\"global_z\""},
         {"kN/mm", "/load_cases/0/loads/0/values", "[-5]"},
         {"member 2 is not among them", "/load_cases/0/loads/1/members", "[[1, 1], [3, 3]]"},
         {"", "/load_cases/0/loads/2/elements", "[[11, 11]]"},
         {"", "/load_cases/0/loads/3/cases", R"([{"case": 1, "is_reference": true, "factor": 1.5}])"},
         {"", "/reference_cases/0/number", "1"},
         {"", "/combinations/0/terms/0", R"({"case": 4, "is_reference": false, "factor": 1.2})"},
         {"", "/kept/1/command", "\"INACTIVE\""},
         {"", "/kept/1/lines", "[[43, 43]]"}});
}

TEST(Complete, HostModelAsStructureHasItsNumbersAndNoLines)
{
    const tool_result result = tool_run()("dump -q --form structure -", tower_deck());
    ASSERT_EQ(result.exit_code, 0) << result.err;
    const complete_json document = complete_json::parse(result.out);
    EXPECT_EQ(document["joints"].size(), 9U);
    EXPECT_EQ(document["members"][0]["lines"], complete_json::array());
    EXPECT_EQ(document["members"][9]["end"], 4);
}

TEST(Complete, InfoSortsWhatIsNoRecord)
{
    const std::string text = tool_run()("info -q -", lower_case_deck).out;
    for (const char* line :
         {"kind: space, Z up", "title: tower", "units: mms kn (of the first UNIT line)",
          "  _f  floor  1 member  and 1 number without a member", "  fixed but mz  2 joints",
          "  C30  -  E 30 kN/mm2, Poisson 0.2",
          "  4  Roof Live  LL  3 members, 1 element  1 uniform, 1 concentrated, 1 pressure, 1 sum of cases",
          "  R1  -  own  3 members, 1 element  1 self weight", "  5  sum  both  1.2 x 4 - 1 x R1",
          "analysis and design, kept as text: 2", "  line 44  kept as text  PERFORM ANALYSIS", "harmless: 1"})
        EXPECT_TRUE(has_line(text, line)) << line << "\nis not in\n" << text;
    const auto report = complete_json::parse(tool_run()("info -q --json -", lower_case_deck).out);
    expect_values(report, {{"", "/supports", R"([{"kind": "fixed but mz", "count": 2}])"},
                           {"", "/materials/0/poisson", "0.2"},
                           {"", "/lost/2/code", "\"hidden-content\""},
                           {"of the structure, though kept as text", "/lost/1/text", "\"FLOOR DIAPHRAGM\""},
                           {"", "/lost/2/lines", "[[43, 43]]"},
                           {"", "/kept_as_text/0",
                            R"({"code": "", "text": "PERFORM ANALYSIS", "count": 1, "lines": [[44, 44]]})"},
                           {"passed over", "/harmless/0/lines", "[[45, 45]]"}});
}

} // namespace
} // namespace cli_test
