/// Parameter files of the tool: what their fields may hold, and the findings that name a field.

#include "tools/staadkit/convert/parameter_file.h"

#include "staad/model/fields.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// A line for each finding: "3: error json: column 3: ..."; "x2" after one that stands for two places.
std::string lines_of(const ReadReport& report)
{
    std::string lines;
    for (const Finding& each : report.findings) {
        if (each.first_line != 0)
            lines += std::to_string(each.first_line) + ": ";
        lines += (each.severity == Finding::Error ? "error " : "warning ") + each.code + ": " + each.text;
        lines += each.count == 1 ? "\n" : " x" + std::to_string(each.count) + '\n';
    }
    return lines;
}

template<class Record>
std::string findings(const std::string& text)
{
    Record record;
    return lines_of(tool::parameters_of_text(text, record));
}

constexpr auto wind = findings<WindLoadParam>;
constexpr auto seismic = findings<SeismicParam>;

// ---- text and types -----------------------------------------------------------------------------------------------

struct text_row {
    const char* why;
    std::string (*read)(const std::string& text);
    const char* text;
    const char* want; ///< among the findings; the others are of the fields that the text lacks
};

const text_row text_rows[] = {
    {"nothing", wind, "", "1: error json: column 1: "},
    {"a word on the third line", wind, "{\n  \"base_press\": 0.45,\n  oops\n}", "3: error json: column 3: "},
    {"an end too early", wind, R"({"base_press": 0.45)", "1: error json: column 20: "},
    {"more after the end", wind, "{}\n{}", "2: error json: column 1: "},
    {"a list", wind, "[1]", "1: error json: no object: {\"NAME\": VALUE, ...}\n"},
    {"a number past any", wind, R"({"base_press": 1e999})",
     "error field-value: field base_press holds a number past the range of 64-bit reals\n"},
    {"NaN is no JSON", wind, R"({"base_press": NaN})", "1: error json: column "},
    {"no UTF-8", wind, "{\"soil_type\": \"\xB2\xE3\"}", "1: error json: column "},
    {"a field twice", wind, R"({"base_press": 1, "base_press": 2})",
     "error field-twice: field base_press is there twice\n"},
    {"a field that is none", wind, R"({"base_pres": 1})",
     "error field-unknown: unknown field 'base_pres'; did you mean 'base_press'?\n"},
    {"a field that is nothing like one", wind, R"({"x": 1})", "error field-unknown: unknown field 'x'\n"},
    {"a field of the other file", wind, R"({"eq_type": 1})", "error field-unknown: unknown field 'eq_type'\n"},

    {"a number in quotes", wind, R"({"base_press": "0.45"})", "field base_press must be a number\n"},
    {"no value", wind, R"({"base_press": null})", "field base_press must be a number\n"},
    {"a number for a flag", wind, R"({"is_betaz": 1})", "field is_betaz must be true or false\n"},
    {"a number for a text", wind, R"({"soil_type": 2})", "field soil_type must be a text\n"},
    {"half a point", wind, R"({"intensity_number": 5.5})",
     "field intensity_number must be a whole number of 32 bits\n"},
    {"a whole number written as a real one", wind, R"({"intensity_number": 5.0})",
     "field intensity_number must be a whole number of 32 bits\n"},
    {"2 to the 31st", wind, R"({"intensity_number": 2147483648})", "must be a whole number of 32 bits\n"},
    {"below minus 2 to the 31st", wind, R"({"intensity_number": -2147483649})", "must be a whole number of 32 bits\n"},
    {"-1 in 64 bits", wind, R"({"intensity_number": 18446744073709551615})", "must be a whole number of 32 bits\n"},
    {"past 64 bits", wind, R"({"intensity_number": 18446744073709551616})", "must be a whole number of 32 bits\n"},
    {"three widths", wind, R"({"aweather_width": [1, 2, 3]})", "field aweather_width must be a list of 4\n"},
    {"five widths", wind, R"({"aweather_width": [1, 2, 3, 4, 5]})", "field aweather_width must be a list of 4\n"},
    {"a wind of three faces", wind, R"({"mius": [[0,0,0,0],[0,0,0,0],[0,0,0],[0,0,0,0]]})",
     "field mius[2] must be a list of 4\n"},
    {"a face that is no number", wind, R"({"mius": [[0,0,0,0],[0,"x",0,0],[0,0,0,0],[0,0,0,0]]})",
     "field mius[1][1] must be a number\n"},
    {"a flat list", wind, R"({"mius": [0,0,0,0]})", "field mius[0] must be a list of 4\n"},
    {"profiles of two types", wind, R"({"intensities": [[1], [1]]})", "field intensities must be a list of 16\n"},
    {"a number for a list", wind, R"({"heights": 3.6})", "field heights must be a list\n"},
    {"a null among numbers", wind, R"({"heights": [4.5, null]})", "field heights[1] must be a number\n"},
    {"more than a line", wind, R"({"soil_type": "B\nFINISH"})",
     "field soil_type must be one line without control characters\n"},
    {"a line end of another system", wind, R"({"soil_type": "B\r"})",
     "field soil_type must be one line without control characters\n"},
    {"no such character in GBK", wind, R"({"soil_type": "B \ud83d\ude00"})",
     "field soil_type has characters that GBK lacks\n"},
    {"two directions", seismic, R"({"dir_active": [true, false]})", "field dir_active must be a list of 3\n"},
    {"a flag that is a number", seismic, R"({"dir_active": [true, 0, true]})",
     "field dir_active[1] must be true or false\n"},
    {"a factor that is no whole number", seismic, R"({"dir_factor": [1, 1.5, 1]})",
     "field dir_factor[1] must be a whole number of 32 bits\n"},
    {"a load number that is a real one", seismic, R"({"loadno": [1, 2.5]})",
     "field loadno[1] must be a whole number of 32 bits\n"},
};

TEST(ParameterFile, RefusedTextsNameThePlaceOrTheField)
{
    for (const text_row& row : text_rows) {
        const std::string found = row.read(row.text);
        EXPECT_NE(found.find(row.want), std::string::npos) << row.why << ":\n" << found;
        EXPECT_NE(found.find("error "), std::string::npos) << row.why;
    }
}

/// In declaration order; no field may hold an object.
template<class Record>
void expect_all_required(const std::string& free_field)
{
    std::string want;
    const Record record;
    each_field(record, [&](const std::string& name, const auto&) {
        if (name == free_field)
            return;
        want += "error field-missing: field " + name + " is missing\n";
        const std::string found = findings<Record>("{\"" + name + "\": {}}");
        EXPECT_NE(found.find("field " + name + " must be "), std::string::npos) << found;
    });
    EXPECT_EQ(findings<Record>("{}"), want);
}

TEST(ParameterFile, EveryFieldIsRequiredButTheFreeTitle)
{
    expect_all_required<WindLoadParam>("title");
    expect_all_required<SeismicParam>("");
}

TEST(ParameterFile, ValuesAreTakenAsTheyStandAndTextsInGbk)
{
    WindLoadParam record;
    tool::parameters_of_text(R"({"base_press": 1, "structure_high": 1.5e2, "intensity_number": 2147483647,
                                 "is_betaz": true, "heights": [3.5, 7], "soil_type": "B\u7c7b"})",
                             record);
    EXPECT_EQ(record.base_press, 1.0);
    EXPECT_EQ(record.structure_high, 150.0);
    EXPECT_EQ(record.intensity_number, INT_MAX);
    EXPECT_TRUE(record.is_betaz);
    EXPECT_EQ(record.heights, (std::vector<double>{3.5, 7}));
    EXPECT_EQ(record.soil_type, "B\xC0\xE0");
    tool::parameters_of_text("{\"intensity_number\": -2147483648, \"soil_type\": \"B\xE7\xB1\xBB\"}", record);
    EXPECT_EQ(record.intensity_number, INT_MIN);
    EXPECT_EQ(record.soil_type, "B\xC0\xE0");
}

// ---- values that do not fit each other ----------------------------------------------------------------------------

template<class Record>
struct record_row {
    const char* why;
    void (*change)(Record& example);
    const char* want;
};

template<class Record, std::size_t Count>
void expect_findings(const Record& example, const record_row<Record> (&rows)[Count])
{
    for (const record_row<Record>& row : rows) {
        Record record = example;
        row.change(record);
        ReadReport report;
        tool::check_parameters(record, report);
        EXPECT_EQ(lines_of(report), row.want) << row.why;
    }
}

const record_row<WindLoadParam> wind_rows[] = {
    {"the example", [](WindLoadParam&) {}, ""},
    {"nothing filled in", [](WindLoadParam& w) { w = {}; }, ""},
    {"a negative pressure", [](WindLoadParam& w) { w.base_press = -0.45; },
     "error field-value: field base_press must not be negative\n"},
    {"no pressure is one", [](WindLoadParam& w) { w.base_press = 0; }, ""},
    {"negative pressures of a profile", [](WindLoadParam& w) { w.intensities[3][1] = w.intensities[3][4] = -0.1; },
     "error field-value: field intensities[3][1] must not be negative x2\n"},
    {"an unknown terrain", [](WindLoadParam& w) { w.soil_type = "E"; },
     "error field-value: field soil_type must be one of A, B, C, D, A\xE7\xB1\xBB, B\xE7\xB1\xBB, C\xE7\xB1\xBB, "
     "D\xE7\xB1\xBB\n"},
    {"class D, in GBK", [](WindLoadParam& w) { w.soil_type = "D\xC0\xE0"; }, ""},
    {"no terrain", [](WindLoadParam& w) { w.soil_type.clear(); }, ""},
    {"two heights alike", [](WindLoadParam& w) { w.heights[2] = w.heights[1]; },
     "error field-value: field heights[2] must be more than heights[1]\n"},
    {"a height without a value",
     [](WindLoadParam& w) {
         w.heights.push_back(22);
         w.intensity_number = 6;
     },
     "error list-length: field intensities[0] has 5 values, heights has 6 x16\n"},
    {"a value without a height", [](WindLoadParam& w) { w.intensities[7].push_back(0.5); },
     "error list-length: field intensities[7] has 6 values, heights has 5\n"},
    {"a number of points that is another", [](WindLoadParam& w) { w.intensity_number = -5; },
     "error list-length: field heights has 5 values, intensity_number is -5\n"},
};

TEST(ParameterFile, WindValuesFitEachOther)
{
    expect_findings(tool::example_wind(), wind_rows);
}

const record_row<SeismicParam> seismic_rows[] = {
    {"the example", [](SeismicParam&) {}, ""},
    {"nothing filled in", [](SeismicParam& s) { s = {}; }, ""},
    {"rare, in GBK", [](SeismicParam& s) { s.eq_type = "\xBA\xB1\xD3\xF6"; }, ""},
    {"an unknown type", [](SeismicParam& s) { s.eq_type = "frequent"; },
     "error field-value: field eq_type must be one of \xE8\xBF\x9C, \xE8\xBF\x91, \xE5\xA4\x9A\xE9\x81\x87, "
     "\xE7\xBD\x95\xE9\x81\x87\n"},
    {"an unknown group", [](SeismicParam& s) { s.eq_group = "1"; },
     "error field-value: field eq_group must be one of \xE7\xAC\xAC\xE4\xB8\x80\xE7\xBB\x84, "
     "\xE7\xAC\xAC\xE4\xBA\x8C\xE7\xBB\x84, \xE7\xAC\xAC\xE4\xB8\x89\xE7\xBB\x84\n"},
    {"below the intensities of the code", [](SeismicParam& s) { s.eq_intensity = 5; },
     "error field-value: field eq_intensity must be 6, 7, 8 or 9, or 0 for none\n"},
    {"above them", [](SeismicParam& s) { s.eq_intensity = 10; },
     "error field-value: field eq_intensity must be 6, 7, 8 or 9, or 0 for none\n"},
    {"the lowest of them", [](SeismicParam& s) { s.eq_intensity = 6; }, ""},
    {"the highest", [](SeismicParam& s) { s.eq_intensity = 9; }, ""},
    {"more cases than listed", [](SeismicParam& s) { s.loadno_count = 3; },
     "error list-length: field loadno has 2 values, loadno_count is 3\n"
     "error list-length: field loadno_factor has 2 values, loadno_count is 3\n"},
    {"a case without a factor", [](SeismicParam& s) { s.loadno_factor.pop_back(); },
     "error list-length: field loadno_factor has 1 value, loadno_count is 2\n"},
    {"fewer periods than points", [](SeismicParam& s) { s.periods.pop_back(); },
     "error list-length: field periods has 9 values, point_number is 10\n"},
    {"more values than points", [](SeismicParam& s) { s.spectrum_x.push_back(1); },
     "error list-length: field spectrum_x has 11 values, point_number is 10\n"},
    {"a spectrum without a title, and it is too short",
     [](SeismicParam& s) {
         s.spectrum_title_z.clear();
         s.spectrum_z.pop_back();
     },
     "error list-length: field spectrum_z has 9 values, point_number is 10\n"
     "warning spectrum: the spectrum of z is not written: spectrum_title_z is empty\n"},
    {"a title without its spectrum", [](SeismicParam& s) { s.spectrum_z.clear(); },
     "error list-length: field spectrum_z has 0 values, point_number is 10\n"},
    {"neither title nor spectrum",
     [](SeismicParam& s) {
         s.spectrum_title_x.clear();
         s.spectrum_x.clear();
     },
     ""},
    {"a vertical spectrum without the freedom", [](SeismicParam& s) { s.spectrum_title_y = "SPECTRUM Y"; },
     "warning spectrum: the spectrum of y is not written: y_freedom is false\n"},
    {"and with it",
     [](SeismicParam& s) {
         s.spectrum_title_y = "SPECTRUM Y";
         s.y_freedom = true;
     },
     "error list-length: field spectrum_y has 0 values, point_number is 10\n"},
};

TEST(ParameterFile, SeismicValuesFitEachOther)
{
    expect_findings(tool::example_seismic(), seismic_rows);
}

} // namespace
} // namespace STAAD
