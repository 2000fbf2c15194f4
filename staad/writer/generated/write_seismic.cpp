/// The generated seismic load case: parameters, equivalent gravity, response spectra.
#include "staad/model/sd_reader.h"
#include "staad/text/text_output.h"
#include "staad/writer/generated/gbk_texts.h"
#include "staad/writer/normalised/written_loads.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

char one_or_zero(bool flag)
{
    return flag ? '1' : '0';
}

char one_or_two(bool flag)
{
    return flag ? '1' : '2';
}

void write_directions(detail::text_output& out, const SeismicParam& seismic)
{
    out.put("*{ DIRECTION FACTOR : ");
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (axis > 0)
            out.put(' ');
        if (seismic.dir_active[axis])
            out.put("1 ", seismic.dir_factor[axis]);
        else
            out.put("0 1.00");
    }
    out.put('\n');
}

/// `label` and the number of `word`; nothing for a word that has none.
void write_numbered(detail::text_output& out, std::string_view label, std::string_view word,
                    std::span<const detail::numbered_word> words)
{
    if (const int number = detail::number_of(word, words))
        out.line("*{ ", label, " : ", number);
}

/// Load cases of the equivalent gravity with their factors: as many as both lists have.
std::vector<std::pair<int, double>> gravity_cases(const SeismicParam& seismic)
{
    const auto wanted = static_cast<std::size_t>(std::max(seismic.loadno_count, 0));
    const std::size_t count = std::min({wanted, seismic.loadno.size(), seismic.loadno_factor.size()});
    std::vector<std::pair<int, double>> cases;
    cases.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        cases.emplace_back(seismic.loadno[i], seismic.loadno_factor[i]);
    return cases;
}

void write_parameters(detail::text_output& out, const SeismicParam& seismic)
{
    namespace text = detail::seismic_text;
    out.line("*{ THE FIRST AUTO BUILD RESSPEC LOAD");
    out.line("*{ ", text::directions_and_factors);
    write_directions(out, seismic);
    out.line("*{ ", text::y_freedom_considered);
    out.line("*{ Y FREEDOM : ", one_or_zero(seismic.y_freedom));
    out.line("*{ ", text::code_type);
    out.line("*{ CODE TYPE : 1");
    out.line("*{ ", text::earthquake_type);
    write_numbered(out, "EQ TYPE", seismic.eq_type, detail::earthquake_types);
    out.line("*{ ", text::superposition_method);
    out.line("*{ POST METHOD : ", one_or_two(seismic.post_method));
    out.line("*{ ", text::force_type);
    out.line("*{ FORCE TYPE : ", one_or_two(seismic.force_type));
    out.line("*{ ", text::seismic_intensity);
    out.line("*{ EQ INTENSITY : ", seismic.eq_intensity);
    out.line("*{ ", text::design_group);
    write_numbered(out, "EQ GROUP", seismic.eq_group, detail::design_groups);
    out.line("*{ ", text::special_acceleration);
    out.line("*{ SPECIAL ACCELERATE : ", one_or_zero(seismic.special_accelerate));
    out.line("*{ ", text::spectrum_points);
    out.line("*{ POINT NUMBER : ", seismic.point_number);
    out.line("*{ ", text::damping_ratio);
    out.line("*{ DAMPING FACTOR : ", detail::real{seismic.damping_factor});
    out.line("*{ ", text::scale_factor);
    out.line("*{ PROPORTION FACTOR : ", detail::real{seismic.proportion_factor});
    out.line("*{ ", text::equivalent_gravity);
    out.put("*{ LOADNO FACTOR : ");
    for (const auto& [load_case, factor] : gravity_cases(seismic))
        out.put(load_case, ' ', detail::fixed{factor, 4}, ' ');
    out.put('\n');
}

/// The member loads of the basic cases, in X and Z: the masses that the earthquake moves.
void write_equivalent_gravity(detail::text_output& out, const SeismicParam& seismic, const detail::written_loads& loads)
{
    for (const auto& [load_case, factor] : gravity_cases(seismic)) {
        const auto found = loads.collected.find(load_case);
        if (found == loads.collected.end() || found->second.empty())
            continue;
        out.line("*{ ", detail::fixed{factor, 4}, " * LOAD ", load_case);
        out.line("MEMBER LOAD");
        const auto end = found->second.end();
        for (auto first = found->second.begin(); first != end;) {
            const auto is_other = [first](const detail::member_load& load) {
                return detail::ordered_before(*first->definition, *load.definition);
            };
            const auto last = std::find_if(first, end, is_other); // equal definitions are one load
            detail::write_factored_member_load(out, *first->definition, {first, last}, factor);
            first = last;
        }
    }
}

/// Whether there is a spectrum: a title, and as many periods and values as points.
bool has_spectrum(const SeismicParam& seismic, const std::string& title, const std::vector<double>& values)
{
    return !title.empty() && std::cmp_equal(seismic.periods.size(), seismic.point_number) &&
           values.size() == seismic.periods.size();
}

void write_spectrum(detail::text_output& out, const std::string& title, const std::vector<double>& periods,
                    const std::vector<double>& values)
{
    constexpr std::size_t pairs_per_line = 5;
    out.line(title);
    for (std::size_t i = 0; i < values.size(); ++i) {
        out.put(detail::fixed{periods[i], 2}, ' ', detail::fixed{values[i], 4}, "; ");
        if ((i + 1) % pairs_per_line == 0)
            out.put('\n');
    }
}

/// The line feed after X and Z is written even without a spectrum; the one after Y is not.
void write_spectra(detail::text_output& out, const SeismicParam& seismic)
{
    if (has_spectrum(seismic, seismic.spectrum_title_x, seismic.spectrum_x))
        write_spectrum(out, seismic.spectrum_title_x, seismic.periods, seismic.spectrum_x);
    out.put('\n');
    if (seismic.y_freedom && has_spectrum(seismic, seismic.spectrum_title_y, seismic.spectrum_y)) {
        write_spectrum(out, seismic.spectrum_title_y, seismic.periods, seismic.spectrum_y);
        out.put('\n');
    }
    if (has_spectrum(seismic, seismic.spectrum_title_z, seismic.spectrum_z))
        write_spectrum(out, seismic.spectrum_title_z, seismic.periods, seismic.spectrum_z);
    out.put('\n');
}

} // namespace

void SdReader::write_std_EQ(detail::text_output& out, detail::written_loads& loads) const
{
    out.line("LOAD ", loads.next_number(1), " EX AUTO RESPONSE SPECTRUM");
    write_parameters(out, eq_param);
    write_equivalent_gravity(out, eq_param, loads);
    write_spectra(out, eq_param);
}

} // namespace STAAD
