/// Any text read, written with any parameters, and read again. The input is a deck; the bytes after its first
/// zero byte make the parameters, and declare members as braces.

#include "fuzz/filled_parameters.h"
#include "fuzz/fuzz_target.h"
#include "fuzz/memory_limit.h"
#include "staad/model/sd_reader.h"
#include "staad/writer/normalised_text.h"
#include "tests/support/model_equal.h"

#include <algorithm>
#include <cmath>

namespace {

using STAAD::SdReader;

void fill_in(SdReader& model, std::string_view bytes)
{
    fuzz::byte_reader reader(bytes);
    for (STAAD::SdBeam& member : model.beams)
        member.kind_code = reader.take_byte() % 4;
    fill(model.wl_param, reader);
    fill(model.eq_param, reader);
}

bool is_finite(const STAAD::SdNode& joint)
{
    return std::isfinite(joint.x) && std::isfinite(joint.y) && std::isfinite(joint.z);
}

bool has_same_place(const STAAD::SdNode& left, const STAAD::SdNode& right)
{
    return left.x == right.x && left.y == right.y && left.z == right.z;
}

/// Six significant digits, as far as a double has them: the smallest have fewer.
bool is_rounded(double value, double exact)
{
    return std::abs(value - exact) <= std::abs(exact) * 1e-5 + 1e-300;
}

/// Joints, members and shells come back by position, with any texts in the model.
void check_geometry(const SdReader& model, const SdReader& again)
{
    fuzz::require(again.nodes.size() == model.nodes.size(), "every joint comes back");
    fuzz::require(again.beams.size() == model.beams.size(), "every member comes back");
    for (std::size_t i = 0; i < model.nodes.size(); ++i) {
        const STAAD::SdNode& from = model.nodes[i];
        const STAAD::SdNode& to = again.nodes[i];
        if (is_finite(from))
            fuzz::require(is_rounded(to.x, from.x) && is_rounded(to.y, from.y) && is_rounded(to.z, from.z),
                          "joints come back where they were");
    }
    for (std::size_t i = 0; i < model.beams.size(); ++i)
        fuzz::require(again.beams[i].node_start == model.beams[i].node_start &&
                          again.beams[i].node_end == model.beams[i].node_end,
                      "members come back between their joints");
}

/// Rounded once, numbers stay.
void check_joints_stay(const SdReader& again, const SdReader& third)
{
    fuzz::require(third.nodes.size() == again.nodes.size(), "every joint comes back twice");
    for (std::size_t i = 0; i < again.nodes.size(); ++i)
        fuzz::require(has_same_place(third.nodes[i], again.nodes[i]), "joints stay once they are rounded");
}

void read_write_read(std::string_view deck, std::string_view parameters)
{
    SdReader model;
    model.ReadSDDataFromText(deck); // a model that was read in part is written, too
    fill_in(model, parameters);
    const std::string text = STAAD::normalised_text(model);
    fuzz::require(model.WriteDataToText() == text, "a writing that changes the model gives the same text");
    fuzz::require(model.WriteDataToText() == text, "a second writing gives the same text");

    SdReader again;
    fuzz::require(again.ReadSDDataFromText(text), "what was written is read", text);
    check_geometry(model, again);
    SdReader third;
    fuzz::require(third.ReadSDDataFromText(again.WriteDataToText()), "so is what was written of it", text);
    check_joints_stay(again, third);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input = fuzz::text_of(data, size);
    const std::size_t end = std::min(input.find('\0'), input.size());
    const std::string_view parameters = end == input.size() ? std::string_view() : input.substr(end + 1);
    fuzz::within_memory([&] { read_write_read(input.substr(0, end), parameters); });
    return 0;
}
