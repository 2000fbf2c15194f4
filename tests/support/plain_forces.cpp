#include "tests/support/plain_forces.h"

#include "tests/support/force_listing.h"
#include "tests/support/sd_reader_access.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace STAAD::plain {
namespace {

using words = std::vector<std::string>;

std::vector<std::string> lines_of(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

words words_of(const std::string& line)
{
    words found;
    std::string word;
    for (const char character : line + " ") {
        if (character != ' ')
            word += character;
        else if (!word.empty()) {
            found.push_back(word);
            word.clear();
        }
    }
    return found;
}

/// "1.5E +03" becomes "1.5E+03".
std::string with_whole_exponents(const std::string& line)
{
    std::string changed;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool behind_exponent = i >= 2 && line[i] == ' ' && line[i - 1] == 'E' &&
                                     ((line[i - 2] >= '0' && line[i - 2] <= '9') || line[i - 2] == '.');
        if (!behind_exponent)
            changed += line[i];
    }
    return changed;
}

bool has_colon(const std::string& text)
{
    return text.find(':') != std::string::npos;
}

std::string without_ends(const std::string& word)
{
    return word.size() < 2 ? std::string() : word.substr(1, word.size() - 2);
}

std::string unit_text(const words& line)
{
    if (line.empty())
        return "UNIT   ";
    const std::string second = line.size() == 1 ? std::string() : without_ends(line[1]);
    return "UNIT " + without_ends(line.front()) + " " + second + " " + without_ends(line.back());
}

bool begins_member(const words& line)
{
    return line.size() != 7 && !has_colon(line.front());
}

/// Too short to hold a station.
bool is_too_short(const words& line)
{
    return line.empty() || line.size() - (begins_member(line) ? 1 : 0) < 7;
}

ForcePoint station_of(const words& line, const SdReader& model)
{
    double values[7];
    for (std::size_t i = 0; i < 7; ++i)
        values[i] = std::atof(line[line.size() - 7 + i].c_str());
    const double force = model.force_factor;
    const double moment = model.force_length_factor;
    return {values[0] * model.length_factor,
            values[1] * force,
            values[2] * force,
            values[3] * force,
            values[4] * moment,
            values[5] * moment,
            values[6] * moment};
}

void hand_over(SdReader& model, BeamForceAndMOM& member)
{
    auto& stored = model.beam_forces[member.beam];
    stored.beam = member.beam;
    for (const auto& [number, record] : member.records) {
        auto& points = stored.records[number].points;
        stored.records[number].load_case = number;
        points.insert(points.end(), record.points.begin(), record.points.end());
    }
    member.records.clear();
}

void read_data(SdReader& model, const std::vector<words>& data)
{
    BeamForceAndMOM member;
    BeamLoadCaseRecord record;
    bool begun = false;
    bool skipping = true;
    for (std::size_t i = 0; i < data.size(); ++i) {
        words line = data[i];
        if (line.size() != 7) {
            if (begins_member(line)) {
                const auto known = model.beam_index.find(std::atoi(line.front().c_str()));
                skipping = known == model.beam_index.end();
                line.erase(line.begin());
                if (!skipping) {
                    begun = true;
                    member.records.clear();
                    member.beam = known->second;
                }
            }
            if (!skipping)
                record = {std::atoi(line.front().c_str()), {}, {}};
        }
        if (skipping)
            continue;
        record.points.push_back(station_of(line, model));
        if (i + 1 == data.size())
            continue;
        const words& next = data[i + 1];
        if (next.size() != 7 && std::any_of(next.begin(), next.end(), has_colon))
            member.add_loadCase_record(record);
        if (begins_member(next))
            hand_over(model, member);
    }
    if (begun)
        hand_over(model, member);
}

bool is_body(const std::vector<std::string>& lines, std::size_t index)
{
    return index < lines.size() && !lines[index].empty() && lines[index].front() == ' ';
}

void read_section(SdReader& model, const std::vector<std::string>& lines, std::size_t title)
{
    if (!is_body(lines, title + 2) || !is_body(lines, title + 3) || !is_body(lines, title + 4))
        return;
    model.unit_text = unit_text(words_of(lines[title + 4]));
    detail::sd_reader_access::unify_staadpro_unit(model);
    std::vector<words> data;
    for (std::size_t i = title + 5; is_body(lines, i); ++i) {
        words line = words_of(with_whole_exponents(lines[i]));
        if (!is_too_short(line))
            data.push_back(std::move(line));
    }
    read_data(model, data);
}

} // namespace

SdReader import_forces(SdReader model, const std::string& listing)
{
    model.beam_forces.clear();
    const std::vector<std::string> lines = lines_of(listing);
    for (const listings::title_text& title : {listings::element_forces, listings::member_forces}) {
        bool found = false;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (lines[i] == title.gbk || lines[i] == title.utf8) {
                found = true;
                read_section(model, lines, i);
            }
        }
        if (found)
            break;
    }
    return model;
}

std::vector<ForcePoint> sorted(const std::vector<ForcePoint>& points)
{
    std::vector<std::size_t> order(points.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return points[a].position < points[b].position; });
    std::vector<ForcePoint> kept;
    for (std::size_t i = 0; i < order.size();) {
        const double first = points[order[i]].position;
        std::size_t earliest = order[i];
        for (; i < order.size() && points[order[i]].position - first < 0.0001; ++i)
            earliest = std::min(earliest, order[i]);
        kept.push_back(points[earliest]);
    }
    return kept;
}

namespace {

ForcePoint between(const ForcePoint& a, const ForcePoint& b, double station)
{
    const auto value = [&](double from, double to) {
        return from + (to - from) * (station - a.position) / (b.position - a.position);
    };
    return {station,           value(a.f1, b.f1), value(a.f2, b.f2), value(a.f3, b.f3),
            value(a.m1, b.m1), value(a.m2, b.m2), value(a.m3, b.m3)};
}

ForcePoint point_at(const std::vector<ForcePoint>& points, double station)
{
    std::size_t i = 0;
    while (i < points.size() && points[i].position < station - 0.0001)
        ++i;
    if (i > 0 && i < points.size())
        return between(points[i - 1], points[i], station);
    ForcePoint end = i == 0 ? points.front() : points.back();
    end.position = station;
    return end;
}

} // namespace

std::vector<ForcePoint> resampled(const std::vector<ForcePoint>& sorted_points)
{
    if (sorted_points.size() < 2)
        return {};
    if (sorted_points.size() == 9)
        return sorted_points;
    std::vector<ForcePoint> nine = {sorted_points.front()};
    for (int eighth = 1; eighth <= 7; ++eighth)
        nine.push_back(point_at(sorted_points, eighth * 0.125 * sorted_points.back().position));
    nine.push_back(sorted_points.back());
    return nine;
}

} // namespace STAAD::plain
