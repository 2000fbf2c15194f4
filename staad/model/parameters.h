/// Parameter blocks that a host fills in for the generated wind and seismic loads. The library
/// writes them; reading a file does not change them.
#ifndef STAAD_MODEL_PARAMETERS_H
#define STAAD_MODEL_PARAMETERS_H

#include <array>
#include <string>
#include <vector>

namespace STAAD {

/// Wind parameters. Numbers are written unchanged: the units are the host's, in practice m,
/// kN/m2 and s.
struct WindLoadParam {
    std::string title;                               ///< free for the host; not written
    double base_press = 0.0;                         ///< basic wind pressure
    std::string soil_type;                           ///< site terrain roughness category
    double structure_high = 0.0;                     ///< total height of the building
    bool is_betaz = false;                           ///< gust factor considered
    double base_period = 0.0;                        ///< fundamental period
    std::array<double, 4> aweather_width{};          ///< windward width per wind direction
    std::array<std::array<double, 4>, 4> mius{};     ///< shape coefficients: left, right, front, back wind
    int intensity_number = 0;                        ///< points at which the intensity is computed
    double intensity_isometry = 0.0;                 ///< spacing of the equal-distance method
    double intensity_floor = 0.0;                    ///< storey height of the per-storey method
    std::vector<double> heights;                     ///< heights of the profile, for all wind types
    std::array<std::vector<double>, 16> intensities; ///< per wind type 18 to 33, at index type - 18
};

/// Seismic parameters of the generated response-spectrum case.
struct SeismicParam {
    std::array<bool, 3> dir_active{};  ///< X, Y, Z of the file
    std::array<int, 3> dir_factor{};   ///< X, Y, Z of the file
    bool y_freedom = false;            ///< vertical freedom considered
    std::string eq_type;               ///< earthquake type, GBK
    bool post_method = false;          ///< superposition method: set 1, not set 2
    bool force_type = false;           ///< type of force action: set 1, not set 2
    int eq_intensity = 0;              ///< seismic intensity
    std::string eq_group;              ///< seismic design group, GBK
    bool special_accelerate = false;   ///< region of 0.15g or 0.35g
    int point_number = 0;              ///< points of each spectrum
    double damping_factor = 0.0;       ///< damping ratio
    double proportion_factor = 0.0;    ///< scale factor, 9.8 for accelerations
    int loadno_count = 0;              ///< basic load cases of the equivalent gravity
    std::vector<int> loadno;           ///< their numbers
    std::vector<double> loadno_factor; ///< their factors
    std::vector<double> periods;       ///< abscissa shared by the three spectra
    std::string spectrum_title_x;      ///< first line of the X spectrum
    std::string spectrum_title_y;      ///< first line of the Y spectrum
    std::string spectrum_title_z;      ///< first line of the Z spectrum
    std::vector<double> spectrum_x;
    std::vector<double> spectrum_y;
    std::vector<double> spectrum_z;
};

} // namespace STAAD

#endif
