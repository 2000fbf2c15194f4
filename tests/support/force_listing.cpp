#include "tests/support/force_listing.h"

#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace STAAD::listings {
namespace {

std::string summary(const BeamLoadCaseRecord& record, int number)
{
    std::string text = " " + std::to_string(number) + (record.load_case == number ? "(" : "!(");
    for (const ForcePoint& point : record.points)
        text += (text.back() == '(' ? "" : " ") + shown(point.position);
    return text + ")";
}

} // namespace

std::string with_stations(const std::string& line)
{
    const std::size_t at = line.find('@');
    if (at == std::string::npos)
        return line;
    const std::size_t end = std::min(line.find(' ', at), line.size());
    return line.substr(0, at) + line.substr(at + 1, end - at - 1) + " 1 2 3 4 5 6" + line.substr(end);
}

std::string section(const lines& data, const std::string& units, const std::string& title)
{
    std::string text = title + "\n" + std::string(78, '-') + "\n";
    text += " member  load case  distance  forces  moments\n";
    text += " one line per station, from the member's start\n";
    text += " " + units + "\n";
    for (const std::string& line : data)
        text += " " + with_stations(line) + "\n";
    return text + "\n";
}

SdReader frame(int members)
{
    std::string joints;
    std::string incidences;
    for (int number = 1; number <= members; ++number) {
        joints += std::to_string(number) + " " + std::to_string(1000 * number) + " 0 0; ";
        incidences +=
            std::to_string(100 + number) + " " + std::to_string(number) + " " + std::to_string(number + 1) + "; ";
    }
    SdReader model;
    const std::string last_joint = std::to_string(members + 1) + " " + std::to_string(1000 * (members + 1)) + " 0 0\n";
    EXPECT_TRUE(model.ReadSDDataFromText("UNIT MMS KN\nJOINT COORDINATES\n" + joints + last_joint +
                                         "MEMBER INCIDENCES\n" + incidences + "\nFINISH\n"));
    EXPECT_EQ(model.beams.size(), static_cast<std::size_t>(members));
    return model;
}

SdReader read(const std::string& listing)
{
    SdReader model = frame();
    model.ReadForceMomentFromText(listing);
    return model;
}

ReadReport report_of(const std::string& listing)
{
    SdReader model = frame();
    ReadReport report;
    model.ReadForceMomentFromText(listing, report);
    return report;
}

std::string stations(const SdReader& model)
{
    std::string text;
    for (const auto& [position, forces] : model.beam_forces) {
        text += (text.empty() ? "" : "; ") + std::to_string(position) + (forces.beam == position ? ":" : "!:");
        for (const auto& [number, record] : forces.records)
            text += summary(record, number);
    }
    return text;
}

std::string stations_of(const lines& data)
{
    return stations(read(section(data)));
}

values values_of(const ForcePoint& point)
{
    return {point.position, point.f1, point.f2, point.f3, point.m1, point.m2, point.m3};
}

std::vector<values> values_of_all(const std::vector<ForcePoint>& points)
{
    std::vector<values> all;
    std::transform(points.begin(), points.end(), std::back_inserter(all),
                   [](const ForcePoint& point) { return values_of(point); });
    return all;
}

std::vector<values> points(const SdReader& model, int position, int load_case)
{
    const auto forces = model.beam_forces.find(position);
    if (forces == model.beam_forces.end())
        return {};
    const auto record = forces->second.records.find(load_case);
    return record == forces->second.records.end() ? std::vector<values>() : values_of_all(record->second.points);
}

} // namespace STAAD::listings
