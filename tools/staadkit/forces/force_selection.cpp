#include "forces/force_selection.h"

#include "output/phrases.h"
#include "staad/report/finding_codes.h"
#include "staad/text/number.h"
#include "staad/text/ranges.h"
#include "staad/text/split_string.h"

#include <fmt/format.h>

#include <limits>
#include <optional>
#include <set>

namespace tool {
namespace {

using STAAD::FindingCode;
using STAAD::SdReader;

std::optional<int> whole_number(const std::string& word)
{
    const auto parsed = STAAD::parse_int(word);
    return parsed.is_all_of(word) ? std::optional(parsed.value) : std::nullopt;
}

std::set<int> member_numbers(const SdReader& model)
{
    std::set<int> numbers;
    for (const STAAD::SdBeam& member : model.beams)
        numbers.insert(member.id);
    return numbers;
}

std::set<int> members_with_forces(const SdReader& model)
{
    std::set<int> numbers;
    for (const auto& [position, forces] : model.beam_forces)
        numbers.insert(member_number(model, forces));
    return numbers;
}

std::set<int> cases_with_forces(const SdReader& model)
{
    std::set<int> numbers;
    each_record(model,
                [&numbers](int /*member*/, int load_case, const auto& /*record*/) { numbers.insert(load_case); });
    return numbers;
}

std::set<int> case_numbers(const SdReader& model)
{
    std::set<int> numbers = cases_with_forces(model);
    for (const auto& [number, load_case] : model.load_cases)
        numbers.insert(number);
    return numbers;
}

/// The `known` numbers that are in the ranges.
std::set<int> numbers_in(const number_ranges& ranges, const std::set<int>& known)
{
    std::set<int> numbers;
    for (const auto& [first, last] : ranges)
        numbers.insert(known.lower_bound(first), known.upper_bound(last));
    return numbers;
}

/// The ranges that have none of the `known` numbers, as a list; gaps within a range do not matter.
std::string unknown_ranges(const number_ranges& ranges, const std::set<int>& known)
{
    number_ranges unknown;
    for (const auto& [first, last] : ranges) {
        const auto found = known.lower_bound(first);
        if (found == known.end() || *found > last)
            unknown.emplace_back(first, last);
    }
    return STAAD::format_id_ranges({}, unknown, std::numeric_limits<std::size_t>::max());
}

/// Warns of the `wanted` numbers that are not in `present`.
void report_missing(const std::set<int>& wanted, const std::set<int>& present, FindingCode code, const char* what,
                    STAAD::ReadReport& report)
{
    std::vector<int> missing;
    for (const int number : wanted) {
        if (present.count(number) == 0)
            missing.push_back(number);
    }
    if (missing.empty())
        return;
    const char* const plural = missing.size() > 1 ? "s" : "";
    report.findings.push_back(
        STAAD::make_finding(code, fmt::format("no forces of {}{} {}", what, plural, run_list(missing))));
}

} // namespace

std::string add_number_list(const std::string& text, number_ranges& ranges)
{
    const std::vector<std::string> words = STAAD::SplitString(text, " ");
    const auto is_to = [&words](std::size_t i) { return i < words.size() && (words[i] == "TO" || words[i] == "to"); };
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::optional<int> first = whole_number(words[i]);
        const bool is_range = is_to(i + 1);
        const std::size_t end = is_range ? i + 2 : i; // of the word that gives the last number
        const std::optional<int> last = end < words.size() ? whole_number(words[end]) : std::nullopt;
        if (!first || !last)
            return fmt::format("'{}' is no list of numbers such as '1 5 TO 9'", text);
        if (*last < *first)
            return fmt::format("'{} TO {}' has no numbers: the first is the larger one", words[i], words[end]);
        ranges.emplace_back(*first, *last);
        i = end;
    }
    return words.empty() ? "the list is empty" : std::string();
}

std::string unknown_in(const force_selection& wanted, const SdReader& model)
{
    if (const std::string unknown = unknown_ranges(wanted.members, member_numbers(model)); !unknown.empty())
        return fmt::format("--member {}: the model has no such member", unknown);
    if (const std::string unknown = unknown_ranges(wanted.cases, case_numbers(model)); !unknown.empty())
        return fmt::format("--case {}: neither the model nor the listing has such a load case", unknown);
    return {};
}

void keep_selected(const force_selection& wanted, SdReader& model, STAAD::ReadReport& report)
{
    const std::size_t findings_before = report.findings.size();
    const std::set<int> members = numbers_in(wanted.members, member_numbers(model));
    const std::set<int> cases = numbers_in(wanted.cases, case_numbers(model));
    report_missing(members, members_with_forces(model), FindingCode::member_without_forces, "member", report);
    report_missing(cases, cases_with_forces(model), FindingCode::case_without_forces, "load case", report);
    const bool is_reported = report.findings.size() != findings_before || model.beam_forces.empty();
    if (!members.empty())
        std::erase_if(model.beam_forces,
                      [&](const auto& entry) { return members.count(member_number(model, entry.second)) == 0; });
    if (!cases.empty()) {
        for (auto& [position, forces] : model.beam_forces)
            std::erase_if(forces.records, [&](const auto& entry) { return cases.count(entry.first) == 0; });
        std::erase_if(model.beam_forces, [](const auto& entry) { return entry.second.records.empty(); });
    }
    if (model.beam_forces.empty() && !is_reported)
        report.findings.push_back(STAAD::make_finding(FindingCode::nothing_selected,
                                                      "no member asked for has forces of a load case asked for"));
}

int member_number(const SdReader& model, const STAAD::BeamForceAndMOM& forces)
{
    return model.beams.at(static_cast<std::size_t>(forces.beam) - 1).id;
}

} // namespace tool
