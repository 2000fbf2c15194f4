/// Two models of a few joints about as far apart as the tolerance, compared by the library and in the plainest way.

#include "fuzz/byte_reader.h"
#include "fuzz/fuzz_target.h"
#include "staad/model/sd_reader.h"
#include "tests/support/plain_match.h"

#include <cmath>
#include <limits>
#include <map>

namespace {

using STAAD::SdReader;

/// A fortieth of a millimetre apart, so that four are the tolerance; some of them one bit less or more, or far out,
/// or any number at all.
double coordinate(fuzz::byte_reader& bytes)
{
    constexpr double step = 0.025;
    constexpr double far = std::numeric_limits<double>::infinity();
    const double value = step * bytes.take_small();
    switch (bytes.take_byte() % 16) {
    case 1:
        return std::nextafter(value, far);
    case 2:
        return std::nextafter(value, -far);
    case 3:
        return value + 250.0;
    case 4:
        return value * 1e15;
    case 5:
        return bytes.take_bits<double>();
    default:
        return value;
    }
}

int reference(fuzz::byte_reader& bytes, std::size_t joints)
{
    const int number = bytes.take_byte() % 32;
    return number == 31 ? bytes.take_int() : number % (static_cast<int>(joints) + 2);
}

SdReader small_model(fuzz::byte_reader& bytes)
{
    SdReader model;
    model.nodes.resize(bytes.take_byte() % 24U);
    model.beams.resize(bytes.take_byte() % 12U);
    model.shells.resize(bytes.take_byte() % 8U);
    for (STAAD::SdNode& joint : model.nodes) {
        joint.id = static_cast<int>(&joint - model.nodes.data()) + 1;
        joint.x = coordinate(bytes);
        joint.y = coordinate(bytes);
        joint.z = coordinate(bytes);
    }
    for (STAAD::SdBeam& member : model.beams) {
        member.node_start = reference(bytes, model.nodes.size());
        member.node_end = reference(bytes, model.nodes.size());
    }
    for (STAAD::SdShell& shell : model.shells) {
        shell.node_ids.resize(bytes.take_byte() % 6U);
        for (int& corner : shell.node_ids)
            corner = reference(bytes, model.nodes.size());
    }
    return model;
}

/// Groups, supports and releases of numbers that a record may or may not have.
void add_lists(SdReader& model, fuzz::byte_reader& bytes)
{
    for (const char* const kind : {"JOINT", "MEMBER", "ELEMENT", "FLOOR", ""})
        model.groups.push_back({kind, "_G", {bytes.take_int(), bytes.take_small(), bytes.take_small()}});
    model.supports["FIXED"] = {bytes.take_byte(), bytes.take_byte()};
    model.releases["START MZ"] = {bytes.take_byte(), bytes.take_bits<unsigned>()};
}

std::string shown(const char* name, const std::map<int, int>& positions)
{
    std::string text = std::string(name) + ':';
    for (const auto& [from, to] : positions)
        text += ' ' + std::to_string(from) + '-' + std::to_string(to);
    return text + '\n';
}

std::string shown(const STAAD::OldProjMaps& maps)
{
    return shown("joints", maps.joints_new_to_old) + shown("joints back", maps.joints_old_to_new) +
           shown("members", maps.members_new_to_old) + shown("members back", maps.members_old_to_new) +
           shown("shells", maps.shells_new_to_old) + shown("shells back", maps.shells_old_to_new);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::byte_reader bytes(fuzz::text_of(data, size));
    SdReader now = small_model(bytes);
    SdReader earlier = small_model(bytes);
    now.MakeMap(earlier);
    const std::string found = shown(now.old_proj_maps);
    const std::string want = shown(STAAD::plain::match(now, earlier));
    fuzz::require(found == want, "counterparts are those of the plain comparison", found + "not\n" + want);
    add_lists(earlier, bytes);
    now.TakeOverFrom(earlier);
    now.MakeMap(now);
    return 0;
}
