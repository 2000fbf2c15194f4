/// From the text of a listing to the forces of the model's members.
#include "staad/forces/force_line.h"
#include "staad/forces/force_sections.h"
#include "staad/host/platform_services.h"
#include "staad/io/file_access.h"
#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"
#include "staad/reader/findings.h"
#include "staad/reader/reading.h"
#include "staad/text/words.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD {
namespace detail {

/// How many member lines named members that the model has, and how many did not.
struct member_tally {
    std::size_t known = 0;
    std::size_t unknown = 0;
};

namespace {

constexpr line_place whole_text{0, 0};

struct force_factors {
    double length;
    double force;
    double moment;
};

ForcePoint in_model_units(ForcePoint point, const force_factors& factors)
{
    point.position *= factors.length;
    for (double* force : {&point.f1, &point.f2, &point.f3})
        *force *= factors.force;
    for (double* moment : {&point.m1, &point.m2, &point.m3})
        *moment *= factors.moment;
    return point;
}

/// Reads the data lines of one section. Calls `take(member)` for every member that is complete.
template<class Take>
class section_reader {
public:
    section_reader(const std::map<int, int>& beam_index, const force_factors& factors, member_tally& tally,
                   reading& run, Take take)
        : beam_index_(beam_index), factors_(factors), tally_(tally), run_(run), take_(std::move(take))
    {
    }

    void read(section_lines& lines)
    {
        force_line buffers[2];
        force_line* line = &buffers[0];
        force_line* next = &buffers[1];
        for (bool is_line = find_usable(lines, *line); is_line; std::swap(line, next)) {
            is_line = find_usable(lines, *next);
            read_line(*line, is_line ? next : nullptr);
        }
        if (has_member_)
            end_section(lines);
    }

private:
    /// Parses the next line that holds a station; false at the section's end.
    bool find_usable(section_lines& lines, force_line& line)
    {
        for (text_line text; lines.next(text);) {
            line.parse(text);
            last_is_short_ = line.what() == force_line::kind::unusable;
            if (!last_is_short_)
                return true;
            run_.findings.warn("force-short-line", text.place, [&] {
                return quote(text.text) + " holds no station: it needs a position, three forces, three moments";
            });
        }
        return false;
    }

    /// `next` tells whether a load case or the member ends with this line; null at the section's end.
    void read_line(const force_line& line, const force_line* next)
    {
        const force_line::kind what = line.what();
        if (what == force_line::kind::member)
            begin_member(line);
        if (!has_member_) {
            if (!after_unknown_)
                run_.findings.warn("force-no-member", line.place(),
                                   [] { return std::string("a station before any member: skipped"); });
            return;
        }
        if (what != force_line::kind::station)
            begin_record(line);
        record_.points.push_back(in_model_units(line.station(), factors_));
        tell_numbers(line);
        if (next == nullptr || next->what() == force_line::kind::station)
            return;
        if (next->has_colon())
            end_record();
        else
            tell_left_out(next->place(), "the next member's line has no load case");
        if (next->what() == force_line::kind::member)
            end_member();
    }

    void begin_member(const force_line& line)
    {
        member_number_ = line.member_number();
        const auto found = beam_index_.find(member_number_);
        has_member_ = found != beam_index_.end();
        after_unknown_ = !has_member_;
        ++(has_member_ ? tally_.known : tally_.unknown);
        stations_before_ = 0;
        if (has_member_)
            member_.beam = found->second;
        else
            run_.findings.warn("force-unknown-member", line.place(), [this] {
                return "member " + std::to_string(member_number_) + " is not in the model: its forces are skipped";
            });
    }

    void begin_record(const force_line& line)
    {
        record_.load_case = line.load_case_number();
        record_.points.clear();
        record_place_ = line.place();
    }

    void end_record()
    {
        stations_before_ = record_.points.size();
        member_.add_loadCase_record(record_);
    }

    void end_member()
    {
        take_(member_, member_number_, record_place_);
        member_.records.clear();
        has_member_ = false;
    }

    /// The load case in progress is not stored: sections are read so, and hosts count on it.
    void end_section(const section_lines& lines)
    {
        tell_left_out(record_place_, "the section ends with it");
        const bool breaks_off = last_is_short_ || record_.points.size() < stations_before_;
        if (lines.ended_with_the_text() && breaks_off)
            run_.findings.warn("force-cut-off", record_place_, [this] {
                return "the listing breaks off in member " + std::to_string(member_number_) + ", load case " +
                       std::to_string(record_.load_case);
            });
        end_member();
    }

    void tell_left_out(line_place place, const char* why)
    {
        run_.findings.warn("force-last-case", place, [this, why] {
            return "load case " + std::to_string(record_.load_case) + " of member " + std::to_string(member_number_) +
                   " is left out: " + why;
        });
    }

    void tell_numbers(const force_line& line)
    {
        if (!run_.findings.listening())
            return;
        if (const std::string_view word = line.unreadable_number(); !word.empty())
            run_.findings.warn("number-word", line.place(),
                               [word] { return quote(word) + " is not a number and counts as 0"; });
    }

    const std::map<int, int>& beam_index_;
    force_factors factors_;
    member_tally& tally_;
    reading& run_;
    Take take_;

    bool has_member_ = false;    // a member of the model has begun and has not been handed over
    bool after_unknown_ = false; // lines belong to a member that the model does not have
    int member_number_ = 0;
    BeamForceAndMOM member_;
    BeamLoadCaseRecord record_; // in progress
    line_place record_place_;
    std::size_t stations_before_ = 0; // of the member's load case before
    bool last_is_short_ = false;
};

void tell_tally(const member_tally& tally, reading& run)
{
    if (tally.unknown > tally.known)
        run.findings.warn("force-other-model", whole_text, [&tally] {
            return std::to_string(tally.unknown) + " of " + std::to_string(tally.unknown + tally.known) +
                   " members of the listing are not in the model: it may be that of another model";
        });
}

void tell_section(const force_section& section, const std::string& units, std::size_t members, reading& run)
{
    run.findings.add(Finding::Note, "force-section", section.title,
                     [&] { return "forces of " + std::to_string(members) + " members in " + quote(units); });
}

/// Moments have no unit of their own if the unit line names only two.
void tell_missing_moment(const std::string& units, line_place place, reading& run)
{
    if (count_words(units) == 3)
        run.findings.warn("unit-word", place,
                          [&units] { return quote(units) + " names no moment unit: printed moments count as kN*mm"; });
}

/// A load case that two sections print for one member has the stations of both.
void tell_again(const BeamForceAndMOM& stored, const BeamForceAndMOM& added, int number, line_place place, reading& run)
{
    if (!run.findings.listening())
        return;
    for (const auto& [load_case, record] : added.records) {
        if (stored.records.count(load_case) != 0)
            run.findings.warn("force-case-again", place, [&, load_case = load_case] {
                return "load case " + std::to_string(load_case) + " of member " + std::to_string(number) +
                       " was printed before: its stations are added to those";
            });
    }
}

void tell_few_stations(const SdReader& model, reading& run)
{
    if (!run.findings.listening())
        return;
    for (const auto& [position, forces] : model.beam_forces) {
        for (const auto& [load_case, record] : forces.records) {
            if (record.points.size() < 2)
                run.findings.warn("force-few-stations", whole_text, [&, load_case = load_case, position = position] {
                    const SdBeam* const member = at_position(model.beams, position);
                    return "load case " + std::to_string(load_case) + " of member " +
                           std::to_string(member != nullptr ? member->id : 0) +
                           " has fewer than two stations: the downstream lists go without it";
                });
        }
    }
}

} // namespace
} // namespace detail

using detail::reading;

void SdReader::ReadForceMomentFromTxtFile(const char* path)
{
    read_forces_file(path, reading(nullptr));
}

void SdReader::ReadForceMomentFromTxtFile(const char* path, ReadReport& report)
{
    read_forces_file(path, reading(&report));
}

void SdReader::ReadForceMomentFromText(std::string_view text)
{
    read_forces_text(text, reading(nullptr));
}

void SdReader::ReadForceMomentFromText(std::string_view text, ReadReport& report)
{
    read_forces_text(text, reading(&report));
}

void SdReader::read_forces_file(const char* path, reading run)
{
    if (!start_forces(run))
        return;
    const detail::file_bytes file = detail::read_updatable_file(path);
    if (file.outcome == detail::file_bytes::state::read)
        read_forces({file.bytes.get(), file.size}, run);
    else
        detail::tell_file_trouble(file.outcome, run);
}

void SdReader::read_forces_text(std::string_view text, reading run)
{
    if (start_forces(run))
        read_forces(text, run);
}

bool SdReader::start_forces(reading& run)
{
    if (beams.empty()) {
        run.findings.fail("force-no-model", detail::whole_text, "the model has no members: read it before its forces");
        GetPlatformServices().ShowMessage(
            {u"Error--Velkor\u8F6F\u4EF6", // "... software"
                                           // No model has been read! Read the model, then the forces.
             u"\u6CA1\u6709\u8BFB\u53D6\u5DE5\u7A0B\u4FE1\u606F! "
             u"\u8BFB\u53D6\u5DE5\u7A0B\u4FE1\u606F\u540E\u518D\u6765"
             u"\u8BFB\u53D6\u5185\u529B\u4FE1\u606F.",
             PlatformServices::Buttons::Ok, PlatformServices::Icon::Exclamation});
        return false;
    }
    beam_forces.clear();
    return true;
}

void SdReader::read_forces(std::string_view text, reading& run)
{
    const std::vector<detail::force_section> sections = detail::find_force_sections(text);
    if (sections.empty())
        run.findings.fail("force-no-title", detail::whole_text, "no line is the title of a section of beam forces");
    detail::member_tally tally;
    for (const detail::force_section& section : sections)
        read_force_section(section, tally, run);
    detail::tell_tally(tally, run);
    for (auto& [position, forces] : beam_forces)
        forces.sort_pkpm_format();
    detail::tell_few_stations(*this, run);
}

void SdReader::read_force_section(const detail::force_section& section, detail::member_tally& tally, reading& run)
{
    detail::section_lines lines(section);
    if (!lines.has_units()) {
        run.findings.warn("force-section-short", section.title,
                          [] { return std::string("the section ends before its unit line: skipped"); });
        return;
    }
    unit_text = detail::force_unit_text(lines.unit_line().text);
    unify_staadpro_unit();
    detail::tell_unit_words(unit_text, lines.unit_line().place, run);
    detail::tell_missing_moment(unit_text, lines.unit_line().place, run);

    const std::size_t known_before = tally.known;
    const auto take = [&](const BeamForceAndMOM& member, int number, detail::line_place place) {
        const auto stored = beam_forces.find(member.beam);
        if (stored != beam_forces.end())
            detail::tell_again(stored->second, member, number, place, run);
        add_beam_force_moment(member);
    };
    detail::section_reader reader(beam_index, {length_factor, force_factor, force_length_factor}, tally, run, take);
    reader.read(lines);
    detail::tell_section(section, unit_text, tally.known - known_before, run);
}

void SdReader::add_beam_force_moment(const BeamForceAndMOM& forces)
{
    const auto [stored, is_new] = beam_forces.try_emplace(forces.beam, forces);
    if (!is_new)
        stored->second.merge(forces);
}

} // namespace STAAD
