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

/// Three spectra of five points, one of which is not written.
SdReader spectra_without(void (*leave_out)(SeismicParam& parameters))
{
    SdReader model = host_models::spectra(5);
    leave_out(model.eq_param);
    return model;
}

SdReader example(const std::string& name)
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromText(examples::content(name + ".std")));
    return model;
}

struct golden_file {
    const char* name;
    SdReader model;
};

TEST(Golden, FilesAreWrittenByteForByte)
{
    golden_file files[] = {
        {"empty", {}},
        {"concrete-frame", example("concrete-frame")},
        {"imperial-frame", example("imperial-frame")},
        {"steel-portal", example("steel-portal")},
        {"every-block", host_models::every_block()},
        {"wind-and-seismic", host_models::tower()},
        {"spectra-of-seven-points", host_models::spectra(7)},
        {"spectra-of-no-points", host_models::spectra(0)},
        {"spectra-without-x", spectra_without([](SeismicParam& p) { p.spectrum_title_x.clear(); })},
        {"spectra-without-y", spectra_without([](SeismicParam& p) { p.y_freedom = false; })},
        {"spectra-without-z", spectra_without([](SeismicParam& p) { p.spectrum_z.pop_back(); })},
    };
    for (golden_file& each : files) {
        const std::string text = normalised_text(each.model);
        const std::string wanted = golden(each.name);
        EXPECT_TRUE(text == wanted) << each.name << ".std: " << first_difference(text, wanted);
        EXPECT_TRUE(each.model.WriteDataToText() == text) << each.name;
    }
}

} // namespace
} // namespace STAAD
