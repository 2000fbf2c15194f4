/// From the text of a listing to the forces of the model's members.
#include "staad/forces/import_forces.h"

#include "staad/forces/force_line.h"
#include "staad/forces/force_sections.h"
#include "staad/io/open_file.h"
#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"
#include "staad/report/finding_sink.h"
#include "staad/report/input_findings.h"
#include "staad/text/words.h"
#include "staad/units/unit_factors.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD {
namespace detail {

/// Numbers of member lines: of members that the model has, and of others.
struct member_tally {
    std::size_t known = 0;
    std::size_t unknown = 0;
};

namespace {

constexpr line_place whole_text{0, 0};

ForcePoint in_model_units(ForcePoint point, const unit_factors& factors)
{
    point.position *= factors.length;
    for (double* force : {&point.f1, &point.f2, &point.f3})
        *force *= factors.force;
    for (double* moment : {&point.m1, &point.m2, &point.m3})
        *moment *= factors.force_length;
    return point;
}

/// Reads the data lines of one section. Calls `take(member)` for every member that is complete.
template<class Take>
class section_reader {
public:
    section_reader(const std::map<int, int>& beam_index, const unit_factors& factors, member_tally& tally,
                   finding_sink& findings, Take take)
        : beam_index_(beam_index), factors_(factors), tally_(tally), findings_(findings), take_(std::move(take))
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
            findings_.add(FindingCode::force_short_line, text.place, [&] {
                return quote(text.text) + " holds no station: it needs a position, three forces, three moments";
            });
        }
        return false;
    }

    /// `next` shows whether a load case or the member ends with this line; null at the section's end.
    void read_line(const force_line& line, const force_line* next)
    {
        const force_line::kind what = line.what();
        if (what == force_line::kind::member)
            begin_member(line);
        if (!has_member_) {
            if (!after_unknown_)
                findings_.add(FindingCode::force_no_member, line.place(),
                              [] { return std::string("a station before any member: skipped"); });
            return;
        }
        if (what != force_line::kind::station)
            begin_record(line);
        record_.points.push_back(in_model_units(line.station(), factors_));
        report_numbers(line);
        if (next == nullptr || next->what() == force_line::kind::station)
            return;
        if (next->has_colon())
            end_record();
        else
            report_left_out(next->place(), "the next member's line has no load case");
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
            findings_.add(FindingCode::force_unknown_member, line.place(), [this] {
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

    /// The load case in progress is not stored: hosts rely on that.
    void end_section(const section_lines& lines)
    {
        report_left_out(record_place_, "the section ends with it");
        const bool breaks_off = last_is_short_ || record_.points.size() < stations_before_;
        if (lines.ended_with_the_text() && breaks_off)
            findings_.add(FindingCode::force_cut_off, record_place_, [this] {
                return "the listing breaks off in member " + std::to_string(member_number_) + ", load case " +
                       std::to_string(record_.load_case);
            });
        end_member();
    }

    void report_left_out(line_place place, const char* why)
    {
        findings_.add(FindingCode::force_last_case, place, [this, why] {
            return "load case " + std::to_string(record_.load_case) + " of member " + std::to_string(member_number_) +
                   " is left out: " + why;
        });
    }

    void report_numbers(const force_line& line)
    {
        if (!findings_.listening())
            return;
        if (const std::string_view word = line.unreadable_number(); !word.empty())
            findings_.add(FindingCode::number_word, line.place(),
                          [word] { return quote(word) + " is not a number and counts as 0"; });
    }

    const std::map<int, int>& beam_index_;
    const unit_factors& factors_;
    member_tally& tally_;
    finding_sink& findings_;
    Take take_;

    bool has_member_ = false;    // a member of the model has begun and is not stored yet
    bool after_unknown_ = false; // lines belong to a member that the model does not have
    int member_number_ = 0;
    BeamForceAndMOM member_;
    BeamLoadCaseRecord record_; // in progress
    line_place record_place_;
    std::size_t stations_before_ = 0; // of the member's previous load case
    bool last_is_short_ = false;
};

void report_tally(const member_tally& tally, finding_sink& findings)
{
    if (tally.unknown > tally.known)
        findings.add(FindingCode::force_other_model, whole_text, [&tally] {
            return std::to_string(tally.unknown) + " of " + std::to_string(tally.unknown + tally.known) +
                   " members of the listing are not in the model: it may be that of another model";
        });
}

void report_section(const force_section& section, const std::string& units, std::size_t members, finding_sink& findings)
{
    findings.add(FindingCode::force_section, section.title,
                 [&] { return "forces of " + std::to_string(members) + " members in " + quote(units); });
}

/// Moments have no unit of their own if the unit line names only two.
void report_missing_moment(const std::string& units, line_place place, finding_sink& findings)
{
    if (count_words(units) == 3)
        findings.add(FindingCode::unit_word, place,
                     [&units] { return quote(units) + " names no moment unit: printed moments count as kN*mm"; });
}

/// A load case that two sections print for one member has the stations of both.
void report_again(const BeamForceAndMOM& stored, const BeamForceAndMOM& added, int number, line_place place,
                  finding_sink& findings)
{
    if (!findings.listening())
        return;
    for (const auto& [load_case, record] : added.records) {
        if (stored.records.count(load_case) != 0)
            findings.add(FindingCode::force_case_again, place, [&, load_case = load_case] {
                return "load case " + std::to_string(load_case) + " of member " + std::to_string(number) +
                       " was printed before: its stations are added to those";
            });
    }
}

void report_few_stations(const SdReader& model, finding_sink& findings)
{
    if (!findings.listening())
        return;
    for (const auto& [position, forces] : model.beam_forces) {
        for (const auto& [load_case, record] : forces.records) {
            if (record.points.size() < 2)
                findings.add(FindingCode::force_few_stations, whole_text,
                             [&, load_case = load_case, position = position] {
                                 const SdBeam* const member = at_position(model.beams, position);
                                 return "load case " + std::to_string(load_case) + " of member " +
                                        std::to_string(member != nullptr ? member->id : 0) +
                                        " has fewer than two stations: the downstream lists go without it";
                             });
        }
    }
}

} // namespace

/// One import into one model.
class force_import {
public:
    force_import(SdReader& model, finding_sink& findings) : model_(model), findings_(findings) {}

    /// Empties the forces. False, and everything stays, if the model has no members.
    bool start();
    import_outcome read(std::string_view listing);
    import_outcome read(const FileBytes& file, bool for_update);

private:
    void read_section(const force_section& section);
    void finish();

    SdReader& model_;
    finding_sink& findings_;
    member_tally tally_;
    std::string units_; // of the last section read; empty before the first
};

bool force_import::start()
{
    if (model_.beams.empty()) {
        findings_.add(FindingCode::force_no_model, whole_text,
                      [] { return std::string("the model has no members: read it before its forces"); });
        return false;
    }
    model_.beam_forces.clear();
    return true;
}

import_outcome force_import::read(const FileBytes& file, bool for_update)
{
    using Outcome = FileBytes::Outcome;
    if (file.outcome == Outcome::read)
        return read(file.text());
    report_file_trouble({.is_missing = file.outcome == Outcome::missing,
                         .is_folder = file.outcome == Outcome::directory,
                         .is_refused = file.outcome == Outcome::refused,
                         .for_update = for_update},
                        findings_);
    return import_outcome::no_file;
}

import_outcome force_import::read(std::string_view listing)
{
    const std::vector<force_section> sections = find_force_sections(listing);
    if (sections.empty()) {
        findings_.add(FindingCode::force_no_title, whole_text,
                      [] { return std::string("no line is the title of a section of beam forces"); });
        return import_outcome::no_title;
    }
    for (const force_section& section : sections)
        read_section(section);
    finish();
    return model_.beam_forces.empty() ? import_outcome::no_forces : import_outcome::read;
}

void force_import::read_section(const force_section& section)
{
    section_lines lines(section);
    if (!lines.has_units()) {
        findings_.add(FindingCode::force_section_short, section.title,
                      [] { return std::string("the section ends before its unit line: skipped"); });
        return;
    }
    units_ = force_unit_text(lines.unit_line().text);
    const unit_factors factors = factors_of_unit_line(units_);
    report_unit_words(units_, factors.is_short, {factors.unknown_length, factors.unknown_force, factors.unknown_moment},
                      lines.unit_line().place, findings_);
    report_missing_moment(units_, lines.unit_line().place, findings_);

    const std::size_t known_before = tally_.known;
    const auto take = [this](const BeamForceAndMOM& member, int number, line_place place) {
        const auto stored = model_.beam_forces.find(member.beam);
        if (stored != model_.beam_forces.end())
            report_again(stored->second, member, number, place, findings_);
        model_.add_beam_force_moment(member);
    };
    section_reader reader(model_.beam_index, factors, tally_, findings_, take);
    reader.read(lines);
    report_section(section, units_, tally_.known - known_before, findings_);
}

void force_import::finish()
{
    report_tally(tally_, findings_);
    for (auto& [position, forces] : model_.beam_forces)
        forces.sort_pkpm_format();
    report_few_stations(model_, findings_);
    if (units_.empty())
        return;
    model_.unit_text = units_;
    model_.unify_staadpro_unit();
}

import_outcome import_forces(SdReader& model, std::string_view listing, finding_sink& findings)
{
    force_import import(model, findings);
    return import.start() ? import.read(listing) : import_outcome::no_members;
}

import_outcome import_updatable_file(SdReader& model, const char* path, finding_sink& findings)
{
    force_import import(model, findings);
    return import.start() ? import.read(read_updatable_file(path), true) : import_outcome::no_members;
}

import_outcome import_file(SdReader& model, const std::filesystem::path& path, finding_sink& findings)
{
    force_import import(model, findings);
    return import.start() ? import.read(read_file(path), false) : import_outcome::no_members;
}

} // namespace detail

bool SdReader::ReadForceMomentFromTxtFile(const std::filesystem::path& path)
{
    detail::finding_sink findings(nullptr);
    return detail::import_file(*this, path, findings) == detail::import_outcome::read;
}

bool SdReader::ReadForceMomentFromTxtFile(const std::filesystem::path& path, ReadReport& report)
{
    detail::finding_sink findings(&report);
    return detail::import_file(*this, path, findings) == detail::import_outcome::read;
}

void SdReader::add_beam_force_moment(const BeamForceAndMOM& forces)
{
    const auto [stored, is_new] = beam_forces.try_emplace(forces.beam, forces);
    if (!is_new)
        stored->second.merge(forces);
}

} // namespace STAAD
