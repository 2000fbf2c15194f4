// The text of one load definition to numbers in model units and axes.

#include "staad/model/sd_reader.h"
#include "staad/text/number.h"
#include "staad/text/words.h"

#include <algorithm>
#include <iterator>

namespace STAAD {
namespace {

/// The words of an upper-cased definition text; missing words are empty.
class definition_words {
public:
    explicit definition_words(std::string_view text)
    {
        words_.reserve(8); // most definitions have no more
        detail::word_cursor cursor(text);
        for (std::string_view word; cursor.next(word);)
            words_.push_back(word);
    }

    std::size_t count() const noexcept { return words_.size(); }
    /// Word `index` from 1.
    std::string_view operator[](std::size_t index) const noexcept
    {
        return index <= words_.size() ? words_[index - 1] : std::string_view();
    }
    double number(std::size_t index) const noexcept { return detail::to_real((*this)[index]); }

private:
    std::vector<std::string_view> words_;
};

/// A direction word in the model's axes: its last letter X becomes Y, Y becomes Z, Z becomes X.
std::string turned(std::string_view word)
{
    std::string direction(word);
    if (direction.empty())
        return direction;
    switch (direction.back()) {
    case 'X':
        direction.back() = 'Y';
        break;
    case 'Y':
        direction.back() = 'Z';
        break;
    case 'Z':
        direction.back() = 'X';
        break;
    default:
        break;
    }
    return direction;
}

std::string member_direction(std::string_view word)
{
    return word.find_first_of("XYZ") == std::string_view::npos ? "Z" : turned(word);
}

/// Distances along the member, from word `first` to the last.
void append_distances(std::vector<double>& values, const definition_words& words, std::size_t first, double length)
{
    for (std::size_t i = first; i <= words.count(); ++i)
        values.push_back(words.number(i) * length);
}

std::vector<double> member_values(const definition_words& words, double length, double force)
{
    std::vector<double> values;
    const std::string_view form = words[3];
    if (form == "UNI") {
        values.push_back(words.number(5) * force / length);
        append_distances(values, words, 6, length);
    } else if (form == "UMOM" || form == "CON") {
        values.push_back(words.number(5) * force);
        append_distances(values, words, 6, length);
    } else if (form == "CMOM") {
        values.push_back(words.number(5) * force * length);
        append_distances(values, words, 6, length);
    } else if (form == "LIN") {
        for (std::size_t i = 5; i <= words.count(); ++i)
            values.push_back(words.number(i) * force / length);
    } else if (form == "TRAP") {
        values.push_back(words.number(5) * force / length);
        values.push_back(words.number(6) * force / length);
        append_distances(values, words, 7, length);
    }
    return values;
}

/// A component of a joint load by the file's axes, and its place among FX FY FZ MX MY MZ of the
/// model's: the file's X is the model's Y, its Y the model's Z, its Z the model's X.
struct joint_component {
    std::string_view word;
    std::size_t place;
    bool is_moment;
};

constexpr joint_component joint_components[] = {
    {"FX", 1, false}, {"FY", 2, false}, {"FZ", 0, false}, {"MX", 4, true}, {"MY", 5, true}, {"MZ", 3, true},
};

std::vector<double> joint_values(const definition_words& words, double length, double force)
{
    std::vector<double> values(std::size(joint_components), 0.0);
    for (std::size_t i = 3; i <= words.count(); ++i) {
        const auto component = std::find_if(std::begin(joint_components), std::end(joint_components),
                                            [&](const joint_component& c) { return c.word == words[i]; });
        if (component != std::end(joint_components))
            values[component->place] = words.number(i + 1) * (component->is_moment ? force * length : force);
    }
    return values;
}

} // namespace

LoadDefination SdReader::get_load_defnination_from_string(const LoadDef_raw& raw)
{
    const std::string text = detail::to_upper_ascii(raw.text);
    const definition_words words(text);
    const double length = length_factor;
    const double force = force_factor;
    LoadDefination definition;
    definition.load_case = raw.load_case;
    if (detail::starts_with(text, "MEMBER LOAD")) {
        definition.kind = detail::join_words(detail::word_cursor(text), 3); // "MEMBER LOAD UNI"
        definition.direction = member_direction(words[4]);
        definition.values = member_values(words, length, force);
    } else if (detail::starts_with(text, "AREA LOAD")) {
        definition.kind = detail::join_words(detail::word_cursor(text), 3);
        definition.direction = "Z";
        definition.values = {words.number(4) * force / length / length};
    } else if (detail::starts_with(text, "SELFWEIGHT")) {
        definition.kind = "SELFWEIGHT";
        definition.direction = turned(words[2]);
        definition.values = {words.number(3)};
    } else if (detail::starts_with(text, "FLOOR LOAD")) {
        definition.kind = "FLOOR LOAD";
        definition.direction = "Z";
    } else if (detail::starts_with(text, "JOINT LOAD")) {
        definition.kind = "JOINT LOAD";
        definition.direction = "Z";
        definition.values = joint_values(words, length, force);
    }
    return definition;
}

int SdReader::add_a_load(const LoadDefination& def)
{
    const auto equal =
        std::find_if(load_defs.begin(), load_defs.end(), [&](const auto& entry) { return entry.second == def; });
    if (equal != load_defs.end())
        return equal->first;
    const int number = static_cast<int>(load_defs.size()) + 1;
    load_defs[number] = def;
    return number;
}

} // namespace STAAD
