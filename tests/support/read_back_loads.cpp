#include "tests/support/read_back_parts.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace STAAD::read_back_parts {
namespace {

constexpr std::size_t member_load_words = 12; ///< characters of "MEMBER LOAD "

std::string load_text(const LoadDefination& load)
{
    std::string text = load.kind.substr(member_load_words) + ' ' + load.direction;
    for (const double value : load.values) {
        char number[512];
        std::snprintf(number, sizeof number, " %f", value);
        text += number;
    }
    return text;
}

/// Loads are written as the model holds them, in kN, mm and the model's axes, with six places, and read as if
/// they were in kN, metres and the file's axes: distances grow a thousandfold, forces per length shrink so, and
/// directions turn on by one axis.
LoadDefination read_again(const LoadDefination& load)
{
    LoadDefination back = load;
    if (load.direction.find_first_of("XYZ") != std::string::npos) {
        char& axis = back.direction.back();
        axis = axis == 'X' ? 'Y' : axis == 'Y' ? 'Z' : axis == 'Z' ? 'X' : axis;
    }
    const std::string form = load.kind.substr(member_load_words);
    for (std::size_t i = 0; i < back.values.size(); ++i) {
        double& value = back.values[i];
        value = printed("%f", value);
        if (form == "LIN" || (form == "TRAP" && i < 2) || (form == "UNI" && i == 0))
            value /= mm_per_metre;
        else if (i > 0 || form == "CMOM")
            value *= mm_per_metre;
    }
    return back;
}

struct loaded_members {
    LoadDefination load;
    std::vector<int> numbers;
};

/// Member loads of a case by their text: loads that print alike become one.
std::map<std::string, loaded_members> loads_by_text(const SdReader& from, int load_case)
{
    std::map<std::string, loaded_members> loads;
    for (const auto& [number, load] : from.load_defs) {
        if (load.load_case != load_case || !begins(load.kind, "MEMBER LOAD "))
            continue;
        for (std::size_t i = 0; i < from.beams.size(); ++i) {
            for (const int carried : from.beams[i].int_list) {
                if (carried != number)
                    continue;
                loaded_members& entry = loads[load_text(load)];
                entry.load = load;
                entry.numbers.push_back(position(i));
            }
        }
    }
    return loads;
}

} // namespace

/// Only member loads that some member carries come back, numbered in the order written; a case's title is its
/// number. Four wind cases of one number and the seismic case follow the highest.
void read_loads(const SdReader& from, SdReader& to)
{
    int highest = 0;
    if (!from.load_defs.empty()) {
        for (const auto& entry : from.load_cases) {
            const int number = entry.first;
            LoadCase back = entry.second;
            back.title = "LOAD CASE " + std::to_string(number);
            to.load_cases[number] = back;
            highest = std::max(highest, number);
            for (auto& [text, loaded] : loads_by_text(from, number)) {
                const int definition = position(to.load_defs.size());
                to.raw_load_defs[definition] = {"MEMBER LOAD " + text, number};
                to.load_defs[definition] = read_again(loaded.load);
                for (const int member : sorted(loaded.numbers))
                    to.beams[static_cast<std::size_t>(member - 1)].int_list.push_back(definition);
            }
        }
    }
    to.load_cases[highest + 4].id = highest + 4;
    to.load_cases[highest + 5].id = highest + 5;
}

} // namespace STAAD::read_back_parts
