/// Any text as a listing of forces: it is read the same with and without a report, every record has nine
/// stations or none, and the forces are those of a plain reading.

#include "fuzz/fuzz_target.h"
#include "fuzz/memory_limit.h"
#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"
#include "tests/support/model_equal.h"
#include "tests/support/plain_forces.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

using STAAD::SdReader;

/// Members 101 to 105 and load cases of each kind.
SdReader small_frame()
{
    SdReader model;
    const bool was_read = model.ReadSDDataFromText("UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0; 2 1000 0 0; 3 2000 0 0\n"
                                                   "4 3000 0 0; 5 4000 0 0; 6 5000 0 0\n"
                                                   "MEMBER INCIDENCES\n101 1 2; 102 2 3; 103 3 4; 104 4 5; 105 5 6\n"
                                                   "LOAD 1 LOADTYPE Dead TITLE A\nLOAD 2 LOADTYPE Live TITLE B\n"
                                                   "LOAD 3 LOADTYPE Wind TITLE C\nLOAD 4 LOADTYPE Seismic TITLE D\n"
                                                   "LOAD 5 LOADTYPE Dead TITLE E\nFINISH\n");
    fuzz::require(was_read && model.beams.size() == 5 && model.load_cases.size() == 5, "the frame is read");
    return model;
}

void check_records(const SdReader& model)
{
    for (const auto& [position, forces] : model.beam_forces) {
        fuzz::require(position >= 1 && position <= 5 && forces.beam == position, "forces are those of a member");
        for (const auto& [number, record] : forces.records) {
            const std::size_t stations = record.pkpm_points.size();
            fuzz::require(record.load_case == number, "a record stands under its own number");
            fuzz::require(stations == (record.points.size() < 2 ? 0U : 9U), "two points make nine stations");
        }
        const std::size_t listed = forces.get_pkpm_load_on_section(model.load_cases).size();
        fuzz::require(listed == 0 || listed == 9, "a list has nine stations");
    }
}

bool has_long_number(std::string_view text)
{
    constexpr int most_digits = 9;
    int digits = 0;
    for (const char character : text) {
        digits = character >= '0' && character <= '9' ? digits + 1 : 0;
        if (digits > most_digits)
            return true;
    }
    return false;
}

/// Whether the plain reading can read the text: its only line ends are line feeds, and it leaves numbers to C,
/// which reads more forms and leaves some undefined.
bool is_plain(std::string_view text)
{
    std::string small(text);
    std::transform(small.begin(), small.end(), small.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    const auto has = [&](std::string_view part) { return small.find(part) != std::string::npos; };
    return !has("\r") && !has("\x1A") && !has({"", 1}) && !has("\xEF\xBB\xBF") && !has("0x") && !has("inf") &&
           !has("nan") && !has_long_number(text);
}

/// Small enough that nothing computed from it overflows.
bool is_moderate(const STAAD::ForcePoint& point)
{
    const double values[] = {point.position, point.f1, point.f2, point.f3, point.m1, point.m2, point.m3};
    return std::all_of(std::begin(values), std::end(values), [](double value) { return std::abs(value) < 1e100; });
}

/// False if there are numbers past the range in which both readings agree.
bool finish(SdReader& model)
{
    for (auto& [position, forces] : model.beam_forces) {
        for (auto& [number, record] : forces.records) {
            if (!std::all_of(record.points.begin(), record.points.end(), is_moderate))
                return false;
            record.points = STAAD::plain::sorted(record.points);
            record.pkpm_points = STAAD::plain::resampled(record.points);
        }
    }
    return true;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const SdReader frame = small_frame();
    const std::string_view text = fuzz::text_of(data, size);
    SdReader model = frame;
    SdReader reported = frame;
    STAAD::ReadReport report;
    const bool is_whole = fuzz::within_memory([&] { model.ReadForceMomentFromText(text); }) &&
                          fuzz::within_memory([&] { reported.ReadForceMomentFromText(text, report); });
    if (is_whole) {
        fuzz::require_none(STAAD::model_differences(model, reported), "a report changes no forces");
        check_records(model);
        if (is_plain(text)) {
            SdReader want = STAAD::plain::import_forces(frame, std::string(text));
            if (finish(want))
                fuzz::require_none(STAAD::model_differences(model, want), "forces are as in a plain reading");
        }
    }
    return 0;
}
