#include "tests/support/written_text.h"

#include "staad/writer/normalised_text.h"
#include "tests/support/placed_models.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace STAAD::written {
namespace {

/// Where the line `wanted` begins, searched from the line beginning at `from`; npos: nowhere.
std::size_t line_position(const std::string& text, std::string_view wanted, std::size_t from)
{
    while (from < text.size()) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        if (std::string_view(text).substr(from, end - from) == wanted)
            return from;
        from = end + 1;
    }
    return std::string::npos;
}

std::string no_line(const std::string& line)
{
    ADD_FAILURE() << "no line \"" << line << '"';
    return "no line \"" + line + '"';
}

/// The first line that ends so.
std::string line_ending_in(const std::string& text, std::string_view end)
{
    for (std::string& line : lines_of(text)) {
        if (line.size() >= end.size() && std::string_view(line).substr(line.size() - end.size()) == end)
            return std::move(line);
    }
    return std::string(end);
}

std::string seismic_header(const std::string& text)
{
    return line_ending_in(text, " EX AUTO RESPONSE SPECTRUM");
}

} // namespace

std::string between(const std::string& text, const std::string& first, const std::string& last)
{
    const std::size_t at = line_position(text, first, 0);
    if (at == std::string::npos)
        return no_line(first);
    const std::size_t begin = std::min(at + first.size() + 1, text.size());
    const std::size_t end = line_position(text, last, begin);
    if (end == std::string::npos)
        return no_line(last);
    return text.substr(begin, end - begin);
}

std::string between(const SdReader& model, const std::string& first, const std::string& last)
{
    return between(normalised_text(model), first, last);
}

std::string joints(const SdReader& model)
{
    return between(model, "JOINT COORDINATES", "MEMBER INCIDENCES");
}

std::string members(const SdReader& model)
{
    return between(model, "MEMBER INCIDENCES", "ELEMENT INCIDENCES SHELL");
}

std::string shells_tables_groups(const SdReader& model)
{
    return between(model, "ELEMENT INCIDENCES SHELL", "DEFINE MATERIAL START");
}

std::string truss_and_properties(const SdReader& model)
{
    return between(model, "END DEFINE MATERIAL", "CONSTANTS");
}

std::string constants_to_loads(const SdReader& model)
{
    return between(model, "CONSTANTS", "DEFINE WIND LOAD");
}

std::string supports_to_loads(const SdReader& model)
{
    return between(model, std::string("MATERIAL ") + one_material + " ALL", "DEFINE WIND LOAD");
}

std::string wind(const SdReader& model)
{
    const std::string text = normalised_text(model);
    return "DEFINE WIND LOAD\n" + between(text, "DEFINE WIND LOAD", seismic_header(text));
}

std::string seismic(const SdReader& model)
{
    const std::string text = normalised_text(model);
    const std::string header = seismic_header(text);
    return header + "\n" + between(text, header, "FINISH");
}

std::vector<std::string> lines_of(const std::string& text)
{
    std::vector<std::string> lines;
    std::size_t from = 0;
    while (from < text.size()) {
        const std::size_t end = std::min(text.find('\n', from), text.size());
        lines.push_back(text.substr(from, end - from));
        from = end + 1;
    }
    return lines;
}

SdReader row_of_members(int members)
{
    SdReader model;
    for (int number = 1; number <= members + 1; ++number)
        model.nodes.push_back(placed::joint(number, {0, 1000.0 * (number - 1), 0}));
    for (int number = 1; number <= members; ++number)
        model.beams.emplace_back(placed::member(number, number, number + 1)).material = one_material;
    return model;
}

SdShell shell(int thickness)
{
    SdShell element = placed::shell(0, {1, 2, 3});
    element.thickness = thickness;
    element.material = one_material;
    return element;
}

void add_case(SdReader& model, int number, const std::string& type)
{
    model.load_cases[number].id = number;
    model.load_cases[number].type_text = type;
    model.load_cases[number].title = "TITLE OF THE FILE";
}

void add_load(SdReader& model, const LoadDefination& load, const std::vector<int>& positions)
{
    const int number = static_cast<int>(model.load_defs.size()) + 1;
    model.load_defs[number] = load;
    for (const int position : positions)
        model.beams.at(static_cast<std::size_t>(position - 1)).int_list.push_back(number);
}

LoadDefination uniform(double value, int load_case)
{
    return {"MEMBER LOAD UNI", "GZ", {value}, load_case};
}

} // namespace STAAD::written
