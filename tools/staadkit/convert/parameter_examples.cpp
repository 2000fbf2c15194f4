#include "convert/parameter_file.h"

#include <cmath>
#include <cstddef>

namespace tool {
namespace {

/// The written file has two decimals.
double hundredths(double value)
{
    return std::round(value * 100.0) / 100.0;
}

} // namespace

/// Four storeys of 18 m by 12 m in the country, 0.45 kN/m2, five points of the profile.
STAAD::WindLoadParam example_wind()
{
    constexpr double height_factors[] = {1.0, 1.0, 1.04, 1.13, 1.19};
    STAAD::WindLoadParam wind;
    wind.title = "Office building of four storeys";
    wind.base_press = 0.45;
    wind.soil_type = "B";
    wind.structure_high = 18.0;
    wind.is_betaz = false;
    wind.base_period = 0.6;
    wind.aweather_width = {12.0, 12.0, 18.0, 18.0};
    wind.mius = {{{0.8, -0.5, -0.7, -0.7}, {-0.5, 0.8, -0.7, -0.7}, {-0.7, -0.7, 0.8, -0.5}, {-0.7, -0.7, -0.5, 0.8}}};
    wind.intensity_number = 5;
    wind.intensity_isometry = 4.0;
    wind.intensity_floor = 4.0;
    wind.heights = {4.5, 9.0, 11.5, 15.0, 18.0};
    for (std::size_t i = 0; i < wind.intensities.size(); ++i) {
        // Four types per wind, one per face. Their signs are in the load cases.
        const double shape = std::abs(wind.mius[i / 4][i % 4]);
        for (const double factor : height_factors)
            wind.intensities[i].push_back(hundredths(wind.base_press * factor * shape));
    }
    return wind;
}

/// A frequent earthquake of intensity 8 along X and Z; dead load and half the live load as mass.
STAAD::SeismicParam example_seismic()
{
    STAAD::SeismicParam seismic;
    seismic.dir_active = {true, false, true};
    seismic.dir_factor = {1, 1, 1};
    seismic.eq_type = "\xB6\xE0\xD3\xF6"; // frequent, in GBK
    seismic.post_method = true;
    seismic.force_type = true;
    seismic.eq_intensity = 8;
    seismic.eq_group = "\xB5\xDA\xD2\xBB\xD7\xE9"; // the first
    seismic.point_number = 10;
    seismic.damping_factor = 0.05;
    seismic.proportion_factor = 9.8;
    seismic.loadno_count = 2;
    seismic.loadno = {1, 2};
    seismic.loadno_factor = {1.0, 0.5};
    seismic.periods = {0.0, 0.1, 0.35, 0.5, 0.7, 1.0, 1.4, 1.75, 2.5, 4.0};
    seismic.spectrum_title_x = "SPECTRUM CQC X 1 ACC SCALE 9.8 DAMP 0.05";
    seismic.spectrum_title_z = "SPECTRUM CQC Z 1 ACC SCALE 9.8 DAMP 0.05";
    seismic.spectrum_x = {0.072, 0.16, 0.16, 0.1161, 0.0857, 0.0622, 0.0459, 0.0376, 0.0352, 0.0304};
    seismic.spectrum_z = seismic.spectrum_x;
    return seismic;
}

} // namespace tool
