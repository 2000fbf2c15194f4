#include "staad/structure/blocks/blocks.h"

#include "staad/structure/assignments.h"
#include "staad/structure/lists.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

/// "THICKNESS t", or one number a corner.
struct thickness_line {
    std::array<double, 4> values{}; ///< mm
    std::size_t count = 0;
};

/// None, and a report, where there is no thickness.
std::optional<thickness_line> read_words(structure_reading& context, row_words& words, std::size_t statement,
                                         std::size_t row)
{
    thickness_line line;
    std::string_view word;
    if (words.next(word) && (is_word(word, "THI") || is_word(word, "TH"))) {
        number_words numbers(words);
        while (line.count < line.values.size()) {
            const std::optional<double> value = numbers.next();
            if (!value)
                break;
            line.values[line.count++] = context.units_at(statement).length_of(*value);
        }
    }
    const bool is_whole = line.count == 1 || line.count > 2;
    if (!is_whole || !words.peek().empty())
        context.report_unread(row, "no thickness, or more than that");
    return is_whole ? std::optional(line) : std::nullopt;
}

/// One thickness for all corners, or each its own. Of three numbers the first serves for the fourth corner, too.
void give(structure_reading& context, Structure::Element& element, const thickness_line& line)
{
    const std::size_t corners = element.corners[3] < 0 ? 3 : 4;
    element.thickness = {};
    for (std::size_t i = 0; i < corners; ++i)
        element.thickness[i] = line.values[i < line.count ? i : 0];
    if (line.count > 1 && line.count != corners)
        context.findings.add(FindingCode::item_short, place_of(context.structure, element.thickness_source), [&] {
            return "element " + std::to_string(element.number) + " has " + std::to_string(corners) +
                   " corners, the line " + std::to_string(line.count) + " numbers";
        });
}

void read_elements_thickness(structure_reading& context)
{
    line_assignments<thickness_line> elements;
    context.each_item(Command::element_property, [&](row_words& words, std::size_t statement, std::size_t row) {
        const record_list list = take_list(context, words, listed::elements, statement, row);
        const auto line = read_words(context, words, statement, row);
        if (line && list.is_given)
            elements.add(list.elements, *line, context.source_of(row));
        else if (line)
            context.report_unread(row, "a thickness of no element");
    });
    elements.hand_out(context.structure.elements.size(),
                      [&](std::size_t position, const thickness_line& line, Structure::Source source) {
                          Structure::Element& element = context.structure.elements[position];
                          element.thickness_source = source;
                          give(context, element, line);
                      });
}

/// Positions of the surfaces of a list: numbers, or ALL.
std::vector<Structure::Range> take_surfaces(structure_reading& context, row_words& words, std::size_t row)
{
    std::vector<Structure::Range> ranges;
    const std::size_t count = context.structure.surfaces.size();
    std::string_view word;
    if (to_upper_ascii(words.peek()) == "ALL") {
        words.next(word);
        if (count > 0)
            ranges.push_back({0, static_cast<int>(count) - 1});
        return ranges;
    }
    for (const int number : take_numbers(context, words, row)) {
        const int position = context.surfaces.position(number);
        if (position >= 0)
            ranges.push_back({position, position});
        else
            context.report(FindingCode::element_unknown, row, [&] { return "no surface " + std::to_string(number); });
    }
    return ranges;
}

void read_surfaces_thickness(structure_reading& context)
{
    line_assignments<double> surfaces;
    context.each_item(Command::surface_property, [&](row_words& words, std::size_t statement, std::size_t row) {
        const std::vector<Structure::Range> ranges = take_surfaces(context, words, row);
        const auto line = read_words(context, words, statement, row);
        if (line && line->count == 1)
            surfaces.add(ranges, line->values[0], context.source_of(row));
        else if (line)
            context.report_unread(row, "a surface has one thickness");
    });
    surfaces.hand_out(context.structure.surfaces.size(),
                      [&](std::size_t position, double thickness, Structure::Source source) {
                          context.structure.surfaces[position].thickness = thickness;
                          context.structure.surfaces[position].thickness_source = source;
                      });
}

} // namespace

void read_thickness(structure_reading& context)
{
    read_elements_thickness(context);
    read_surfaces_thickness(context);
}

} // namespace STAAD::detail
