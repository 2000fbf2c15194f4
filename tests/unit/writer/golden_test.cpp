/// Whole files, compared as bytes with those of tests/golden. These were made from the rules and not by this
/// program: whoever changes one reviews it line by line and says why.

#include "staad/model/sd_reader.h"
#include "staad/writer/normalised_text.h"
#include "tests/support/example_files.h"
#include "tests/support/host_models.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace STAAD {
namespace {

std::string golden(const std::string& name)
{
    const std::string path = std::string(STAADKIT_GOLDEN_FOLDER) + "/" + name + ".std";
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << "cannot open " << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The first line in which they differ, in both.
std::string first_difference(const std::string& written, const std::string& wanted)
{
    const std::vector<std::string> a = written::lines_of(written);
    const std::vector<std::string> b = written::lines_of(wanted);
    std::size_t line = 0;
    while (line < a.size() && line < b.size() && a[line] == b[line])
        ++line;
    const auto shown = [line](const std::vector<std::string>& lines) {
        return line < lines.size() ? '"' + lines[line] + '"' : std::string("no such line");
    };
    return "line " + std::to_string(line + 1) + "\n  written: " + shown(a) + "\n  golden:  " + shown(b);
}

void expect_golden(SdReader model, const std::string& name)
{
    const std::string text = normalised_text(model);
    const std::string wanted = golden(name);
    EXPECT_TRUE(text == wanted) << name << ".std: " << first_difference(text, wanted);
    EXPECT_TRUE(model.WriteDataToText() == text) << name;
}

TEST(Golden, EmptyModel)
{
    expect_golden(SdReader(), "empty");
}

TEST(Golden, Examples)
{
    for (const char* const name : {"concrete-frame", "imperial-frame", "steel-portal"}) {
        SdReader model;
        ASSERT_TRUE(model.ReadSDDataFromText(examples::content(std::string(name) + ".std")));
        expect_golden(model, name);
    }
}

TEST(Golden, EveryBlock)
{
    expect_golden(host_models::every_block(), "every-block");
}

TEST(Golden, WindAndSeismic)
{
    expect_golden(host_models::tower(), "wind-and-seismic");
}

TEST(Golden, SpectraOfSevenPointsAndOfNone)
{
    expect_golden(host_models::spectra(7), "spectra-of-seven-points");
    expect_golden(host_models::spectra(0), "spectra-of-no-points");
}

TEST(Golden, SpectraLeftOut)
{
    SdReader without_x = host_models::spectra(5);
    without_x.eq_param.spectrum_title_x.clear();
    expect_golden(without_x, "spectra-without-x");
    SdReader without_y = host_models::spectra(5);
    without_y.eq_param.y_freedom = false;
    expect_golden(without_y, "spectra-without-y");
    SdReader without_z = host_models::spectra(5);
    without_z.eq_param.spectrum_z.pop_back();
    expect_golden(without_z, "spectra-without-z");
}

} // namespace
} // namespace STAAD
