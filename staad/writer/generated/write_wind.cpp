/// The generated wind loads: sixteen pressure profiles, and four load cases that apply them.
#include "staad/model/sd_reader.h"
#include "staad/text/line_filler.h"
#include "staad/writer/generated/gbk_texts.h"
#include "staad/writer/normalised/written_loads.h"

#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD {
namespace {

constexpr int first_wind_type = 18;

/// To the nearest whole number, halves upward.
detail::real rounded(double value)
{
    return {std::floor(value + 0.5)};
}

void append_values(detail::line_filler& lines, const std::vector<double>& values, int places)
{
    std::string text;
    for (const double value : values) {
        text.clear();
        append(text, detail::fixed{value, places});
        lines.append(text, detail::room_for_blank);
    }
}

/// Pressures and the heights at which they act. The mark of a continued line is not counted in its
/// width.
void write_profile(detail::text_output& out, const std::vector<double>& intensities, const std::vector<double>& heights)
{
    detail::line_filler lines(out, detail::continuation_mark);
    lines.begin("INT");
    append_values(lines, intensities, 2);
    lines.append("HEIG", detail::room_for_blank);
    append_values(lines, heights, 1);
    out.put('\n');
}

/// The four faces: windward and leeward with one decimal, the sides with two.
void write_shape_coefficients(detail::text_output& out, std::string_view label, const std::array<double, 4>& faces)
{
    out.line("*{ ", label, " MIUS : ", detail::fixed{faces[0], 1}, ' ', detail::fixed{faces[1], 1}, ' ',
             detail::fixed{faces[2], 2}, ' ', detail::fixed{faces[3], 2});
}

/// What the profiles were computed from, for later readers of the file.
void write_parameters(detail::text_output& out, const WindLoadParam& wind)
{
    namespace text = detail::wind_text;
    out.line("*{ THE FIRST AUTO BUILD WIND LOAD");
    out.line("*{ ", text::auto_type_numbers);
    out.line("*{ TYPE NO : 18 19 20 21 22 23 24 25 26 27 28 29 30 31 32 33");
    out.line("*{ ", text::total_height);
    out.line("*{ STRUCTURE HIGH : ", detail::fixed{wind.structure_high, 1});
    out.line("*{ ", text::gust_factor_considered);
    out.line("*{ IS BETAZ : ", wind.is_betaz ? '1' : '0');
    out.line("*{ ", text::base_period);
    out.line("*{ BASE PERIOD : ", detail::fixed{wind.base_period, 1});
    out.line("*{ ", text::base_pressure);
    out.line("*{ BASE PRESS : ", detail::fixed{wind.base_press, 1});
    out.line("*{ ", text::terrain_roughness);
    out.line("*{ SOIL TYPE : ", wind.soil_type);
    out.line("*{ ", text::windward_widths);
    out.line("*{ AWEATHER WIDTH : ", rounded(wind.aweather_width[0]), ' ', rounded(wind.aweather_width[1]), ' ',
             rounded(wind.aweather_width[2]), ' ', rounded(wind.aweather_width[3]));
    out.line("*{ ", text::structure_type);
    out.line("*{ STRUCTURE TYPE 2");
    out.line("*{ ", text::shape_coefficients);
    write_shape_coefficients(out, "LEFTWIND", wind.mius[0]);
    write_shape_coefficients(out, "RIGHTWIND", wind.mius[1]);
    write_shape_coefficients(out, "FRONTWIND", wind.mius[2]);
    write_shape_coefficients(out, "BACKWIND", wind.mius[3]);
    out.line("*{ ", text::intensity_method);
    out.line("*{ INTENSITY FLAG : 1");
    out.line("*{ ", text::intensity_points);
    out.line("*{ INTENSITY NUMBER : ", wind.intensity_number);
    out.line("*{ ", text::equal_distance);
    out.line("*{ INTENSITY ISOMETRY : ", rounded(wind.intensity_isometry));
    out.line("*{ ", text::storey_height);
    out.line("*{ INTENSITY FLOOR : ", rounded(wind.intensity_floor));
}

/// One load case. Directions and signs follow no pattern: readers of these files rely on them as they are.
struct wind_case {
    std::string_view title;
    std::array<std::string_view, 4> loads;
};

constexpr wind_case wind_cases[] = {
    {" WL AUTO WIND LOAD",
     {"WIND LOAD X 1 TYPE 18", "WIND LOAD -X 1 TYPE 19", "WIND LOAD -Z 1 TYPE 20", "WIND LOAD -Z -1 TYPE 21"}},
    {" WR AUTO WIND LOAD",
     {"WIND LOAD -X -1 TYPE 22", "WIND LOAD X -1 TYPE 23", "WIND LOAD -Z 1 TYPE 24", "WIND LOAD -Z -1 TYPE 25"}},
    {" WF AUTO WIND LOAD",
     {"WIND LOAD -X -1 TYPE 26", "WIND LOAD -X 1 TYPE 27", "WIND LOAD Z -1 TYPE 28", "WIND LOAD -Z -1 TYPE 29"}},
    {" WB AUTO WIND LOAD",
     {"WIND LOAD -X -1 TYPE 30", "WIND LOAD -X 1 TYPE 31", "WIND LOAD -Z 1 TYPE 32", "WIND LOAD Z 1 TYPE 33"}},
};

} // namespace

void SdReader::write_std_WL(detail::text_output& out, detail::written_loads& loads) const
{
    out.line("DEFINE WIND LOAD");
    out.line("*{ TYPE AUTO, DON'T MODIFY FOLLOWING DATA");
    int type = first_wind_type;
    for (const std::vector<double>& intensities : wl_param.intensities) {
        out.line("TYPE ", type++);
        write_profile(out, intensities, wl_param.heights);
    }

    const int number = loads.next_number(4); // one number for all four cases, the last of the four reserved
    bool is_first = true;
    for (const wind_case& each : wind_cases) {
        out.line("LOAD ", number, each.title);
        if (is_first)
            write_parameters(out, wl_param);
        else
            out.line("*{ AUTO BUILD WIND LOAD");
        is_first = false;
        for (const std::string_view load : each.loads)
            out.line(load);
    }
}

} // namespace STAAD
