/// The three response spectra of the generated seismic case.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// Everything after the line of the basic load cases.
std::string spectra(const SeismicParam& parameters)
{
    SdReader model;
    model.eq_param = parameters;
    const std::string text = written::seismic(model);
    const std::string last_parameter = "*{ LOADNO FACTOR : \n";
    return text.substr(text.find(last_parameter) + last_parameter.size());
}

/// 0, 0.1, 0.2 ...
std::vector<double> periods(std::size_t count)
{
    std::vector<double> values;
    for (std::size_t i = 0; i < count; ++i)
        values.push_back(static_cast<double>(i) / 10);
    return values;
}

SeismicParam x_spectrum(std::size_t count)
{
    SeismicParam parameters;
    parameters.point_number = static_cast<int>(count);
    parameters.periods = periods(count);
    parameters.spectrum_title_x = "SPECTRUM X";
    parameters.spectrum_x.assign(count, 0.25);
    return parameters;
}

struct count_row {
    const char* why;
    std::size_t points;
    const char* want;
};

const count_row counts[] = {
    {"no points: the title and an empty line", 0, "SPECTRUM X\n\n\n"},
    {"a full line and an empty one", 5,
     "SPECTRUM X\n0.00 0.2500; 0.10 0.2500; 0.20 0.2500; 0.30 0.2500; 0.40 0.2500; \n\n\n"},
    {"a line of five and one of two", 7,
     "SPECTRUM X\n0.00 0.2500; 0.10 0.2500; 0.20 0.2500; 0.30 0.2500; 0.40 0.2500; \n"
     "0.50 0.2500; 0.60 0.2500; \n\n"},
};

TEST(WriteSpectrum, HasFivePointsOnALine)
{
    for (const count_row& row : counts)
        EXPECT_EQ(spectra(x_spectrum(row.points)), row.want) << row.why;
}

TEST(WriteSpectrum, RoundsPeriodsToTwoPlacesAndValuesToFour)
{
    SeismicParam parameters = x_spectrum(2);
    parameters.periods = {0.126, -0.001};
    parameters.spectrum_x = {0.123456, 1e10};
    EXPECT_EQ(spectra(parameters), "SPECTRUM X\n0.13 0.1235; -0.00 10000000000.0000; \n\n");
}

/// Two points in each direction.
SeismicParam all_spectra()
{
    SeismicParam parameters = x_spectrum(2);
    parameters.y_freedom = true;
    parameters.spectrum_title_y = "SPECTRUM Y";
    parameters.spectrum_y = {0.5, 0.625};
    parameters.spectrum_title_z = "SPECTRUM Z \xB7\xBD";
    parameters.spectrum_z = {1, 2};
    return parameters;
}

const std::string x_text = "SPECTRUM X\n0.00 0.2500; 0.10 0.2500; \n";
const std::string y_text = "SPECTRUM Y\n0.00 0.5000; 0.10 0.6250; \n";
const std::string z_text = "SPECTRUM Z \xB7\xBD\n0.00 1.0000; 0.10 2.0000; \n";

struct skip_row {
    const char* why;
    void (*change)(SeismicParam& parameters);
    std::string want;
};

const skip_row skips[] = {
    {"all three", [](SeismicParam&) {}, x_text + y_text + z_text},
    {"no X: an empty line", [](SeismicParam& p) { p.spectrum_title_x.clear(); }, "\n" + y_text + z_text},
    {"no Y: nothing at all", [](SeismicParam& p) { p.spectrum_title_y.clear(); }, x_text + z_text},
    {"no Z: an empty line", [](SeismicParam& p) { p.spectrum_title_z.clear(); }, x_text + y_text + "\n"},
    {"Y only with its freedom", [](SeismicParam& p) { p.y_freedom = false; }, x_text + z_text},
    {"too few values of X", [](SeismicParam& p) { p.spectrum_x.pop_back(); }, "\n" + y_text + z_text},
    {"too many of Y", [](SeismicParam& p) { p.spectrum_y.push_back(1); }, x_text + z_text},
    {"too many of Z", [](SeismicParam& p) { p.spectrum_z.push_back(1); }, x_text + y_text + "\n"},
    {"too few periods for any", [](SeismicParam& p) { p.periods.pop_back(); }, "\n\n"},
    {"another number of points than of values", [](SeismicParam& p) { p.point_number = 3; }, "\n\n"},
    {"a negative number of points", [](SeismicParam& p) { p.point_number = -1; }, "\n\n"},
    {"no points, but values", [](SeismicParam& p) { p.point_number = 0; }, "\n\n"},
    {"no points and no values",
     [](SeismicParam& p) {
         p.point_number = 0;
         p.periods.clear();
         p.spectrum_x.clear();
         p.spectrum_y.clear();
         p.spectrum_z.clear();
     },
     "SPECTRUM X\n\nSPECTRUM Y\n\nSPECTRUM Z \xB7\xBD\n\n"},
    {"a title of a blank is a title", [](SeismicParam& p) { p.spectrum_title_z = " "; },
     x_text + y_text + " \n0.00 1.0000; 0.10 2.0000; \n"},
};

TEST(WriteSpectrum, SkipsASpectrumThatDoesNotFit)
{
    for (const skip_row& row : skips) {
        SeismicParam parameters = all_spectra();
        row.change(parameters);
        EXPECT_EQ(spectra(parameters), row.want) << row.why;
    }
}

} // namespace
} // namespace STAAD
