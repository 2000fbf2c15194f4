/// Listings put together at random from lines that mean something and lines that nearly do, read by the
/// library and in the plainest way.

#include "tests/support/force_listing.h"
#include "tests/support/model_equal.h"
#include "tests/support/plain_forces.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using decks::chance;

std::string random_number(chance& random)
{
    const std::string whole = std::to_string(random.between(-20, 20));
    switch (random.between(0, 9)) {
    case 0:
        return whole + ".25";
    case 1:
        return whole + ".5E +01";
    case 2:
        return whole + ".E -01";
    case 3:
        return whole + "E";
    case 4:
        return "x" + whole;
    default:
        return whole;
    }
}

/// Up to nine words of numbers: mostly seven.
std::string random_station(chance& random)
{
    const int count = random.one_in(6) ? random.between(0, 9) : 7;
    std::string text;
    for (int i = 0; i < count; ++i)
        text += " " + random_number(random);
    return text;
}

std::string random_case(chance& random)
{
    const std::string number = std::to_string(random.between(1, 4));
    return number + random.any_of<const char*>(
                        {":A", ":", ":SLAB CASE", ":LIVE", ": B :C", ":1.2 D + 1E", "", " PART:B", "E :", ":E  1"});
}

std::string random_line(chance& random)
{
    const std::string member =
        random.any_of<const char*>({"101", "102", "103", "103", "999", "998", "0101", "M1", "7"});
    switch (random.between(0, 11)) {
    case 0:
    case 1:
    case 2:
        return member + " " + random_case(random) + random_station(random);
    case 3:
    case 4:
    case 5:
        return random_case(random) + random_station(random);
    case 6:
        return random.any_of<const char*>({"", "   ", "see note: 3", "101", "1:A", "page 2 of 3"});
    default:
        return random_station(random);
    }
}

std::string random_title(chance& random)
{
    if (random.one_in(12))
        return "another table";
    const listings::title_text& title = random.one_in(5) ? listings::member_forces : listings::element_forces;
    return random.one_in(2) ? title.gbk : title.utf8;
}

std::string random_units(chance& random)
{
    return random.any_of<const char*>({"(mm) (kN) (N-m)", "(m) (kN) (kN) (kN-m)", "(cm) (MN) (mton-m)", "(m)",
                                       "(m) (MN)", "", "() (m) (kN)", "m kN kN-m", "(in) (kip) kip-in"});
}

std::string random_listing(chance& random)
{
    std::string text;
    for (int section = random.between(1, 3); section > 0; --section) {
        listings::lines data;
        for (int line = random.between(0, 14); line > 0; --line)
            data.push_back(random_line(random));
        std::string one = listings::section(data, random_units(random), random_title(random));
        if (random.one_in(8))
            one.insert(one.size() - 1, "end of page\n");
        if (random.one_in(8))
            one.resize(one.size() - static_cast<std::size_t>(random.between(1, static_cast<int>(one.size()) / 2)));
        text += one;
    }
    return text;
}

/// `model` with its points sorted and resampled in the plainest way.
SdReader finished(SdReader model)
{
    for (auto& [position, forces] : model.beam_forces) {
        for (auto& [number, record] : forces.records) {
            record.points = plain::sorted(record.points);
            record.pkpm_points = plain::resampled(record.points);
        }
    }
    return model;
}

TEST(RandomListing, IsReadAsInThePlainestWay)
{
    std::size_t records = 0;
    for (std::uint64_t seed = 1; seed <= 6000; ++seed) {
        chance random(seed);
        const std::string listing = random_listing(random);
        SdReader model = listings::frame();
        ReadReport report;
        if (seed % 2 == 0)
            model.ReadForceMomentFromText(listing);
        else
            model.ReadForceMomentFromText(listing, report); // which changes nothing
        const SdReader want = finished(plain::import_forces(listings::frame(), listing));
        EXPECT_EQ(model_differences(model, want), std::vector<std::string>()) << "seed " << seed << "\n" << listing;
        if (HasFailure())
            return;
        for (const auto& [position, forces] : want.beam_forces)
            records += forces.records.size();
    }
    EXPECT_GT(records, 4000U) << "the listings hold something";
}

/// Random positions, many of them repeats or nearly so.
std::vector<ForcePoint> random_points(chance& random)
{
    std::vector<ForcePoint> points;
    for (int i = random.between(0, 20); i > 0; --i) {
        const double position = random.between(-3, 12) + 0.00003 * random.between(0, random.one_in(2) ? 6 : 0);
        points.push_back({position, double(random.between(-9, 9)), double(i), 0, 0, 0, double(random.between(0, 99))});
    }
    return points;
}

TEST(RandomRecord, IsResampledAsInThePlainestWay)
{
    for (std::uint64_t seed = 1; seed <= 20000; ++seed) {
        chance random(seed);
        BeamLoadCaseRecord record;
        record.points = random_points(random);
        BeamLoadCaseRecord want;
        want.points = plain::sorted(record.points);
        want.pkpm_points = plain::resampled(want.points);
        record.sort_pkpm_format();
        EXPECT_EQ(record_differences(record, want), std::vector<std::string>()) << "seed " << seed;
        if (HasFailure())
            return;
    }
}

} // namespace
} // namespace STAAD
