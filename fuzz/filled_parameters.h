/// Parameter blocks made of the bytes of an input, as a host might fill them in: lists of any length, counts
/// that do not agree with them, any numbers, texts of one line.
#ifndef FUZZ_FILLED_PARAMETERS_H
#define FUZZ_FILLED_PARAMETERS_H

#include "fuzz/byte_reader.h"
#include "staad/model/parameters.h"

namespace fuzz {

inline void fill(STAAD::WindLoadParam& wind, byte_reader& bytes)
{
    wind.base_press = bytes.take_real();
    wind.soil_type = bytes.take_text();
    wind.structure_high = bytes.take_real();
    wind.is_betaz = bytes.take_flag();
    wind.base_period = bytes.take_real();
    for (double& width : wind.aweather_width)
        width = bytes.take_real();
    for (auto& row : wind.mius)
        for (double& shape : row)
            shape = bytes.take_real();
    wind.intensity_number = bytes.take_int();
    wind.intensity_isometry = bytes.take_real();
    wind.intensity_floor = bytes.take_real();
    wind.heights = bytes.take_reals();
    for (auto& profile : wind.intensities)
        profile = bytes.take_reals();
}

inline void fill(STAAD::SeismicParam& seismic, byte_reader& bytes)
{
    for (bool& active : seismic.dir_active)
        active = bytes.take_flag();
    for (int& factor : seismic.dir_factor)
        factor = bytes.take_int();
    seismic.y_freedom = bytes.take_flag();
    seismic.eq_type = bytes.take_text();
    seismic.post_method = bytes.take_flag();
    seismic.force_type = bytes.take_flag();
    seismic.eq_intensity = bytes.take_int();
    seismic.eq_group = bytes.take_text();
    seismic.special_accelerate = bytes.take_flag();
    seismic.point_number = bytes.take_int();
    seismic.damping_factor = bytes.take_real();
    seismic.proportion_factor = bytes.take_real();
    seismic.loadno_count = bytes.take_int();
    seismic.loadno.resize(bytes.take_byte() % 8U);
    for (int& number : seismic.loadno)
        number = bytes.take_int();
    seismic.loadno_factor = bytes.take_reals();
    seismic.periods = bytes.take_reals();
    seismic.spectrum_title_x = bytes.take_text();
    seismic.spectrum_title_y = bytes.take_text();
    seismic.spectrum_title_z = bytes.take_text();
    seismic.spectrum_x = bytes.take_reals();
    seismic.spectrum_y = bytes.take_reals();
    seismic.spectrum_z = bytes.take_reals();
}

} // namespace fuzz

#endif
