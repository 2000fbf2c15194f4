#include "storeys/storey_text.h"

#include "output/phrases.h"
#include "output/table.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tool {
namespace {

/// Levels are whole mm.
std::string exact_metres(double length)
{
    return fixed_number(length / 1000.0, 3);
}

std::string heading(const storeys_summary& summary)
{
    // A single level is one storey, whose height is no distance between levels.
    if (summary.levels.size() == 1)
        return "storeys: 1 (one level, at " + exact_metres(summary.levels.front()) + " m: height by convention)\n";
    return "storeys: " + storeys_in_words(summary.levels) + (summary.levels.empty() ? "\n" : ", from the top down\n");
}

/// Counts of a storey, of the records in none, or of everything.
struct counts {
    std::size_t joints = 0;
    std::array<std::size_t, 4> members_of{};
    std::size_t shells = 0;
    std::size_t with_forces = 0;

    void add(const level_contents& contents)
    {
        joints += contents.joints.size();
        for (std::size_t type = 0; type < members_of.size(); ++type)
            members_of[type] += contents.members_of[type];
        shells += contents.shells();
        with_forces += contents.members_with_forces;
    }

    std::size_t members() const
    {
        std::size_t sum = 0;
        for (const std::size_t count : members_of)
            sum += count;
        return sum;
    }
};

/// Rows of one storey each, and two more.
class storey_table {
public:
    explicit storey_table(bool with_forces) : with_forces_(with_forces), rows_(std::vector<align>(11, align::right))
    {
        rows_.add_heading(cells_of({"storey", "base (m)", "height (m)"},
                                   {"joints", "columns", "beams", "braces", "horizontal braces", "shells", "sections"},
                                   "with forces"));
    }

    void add_row(std::vector<std::string> name, const counts& counted, const std::string& sections)
    {
        const auto of = [&](STAAD::BeamType type) {
            return std::to_string(counted.members_of[static_cast<std::size_t>(type)]);
        };
        rows_.add_row(cells_of(std::move(name),
                               {std::to_string(counted.joints), of(STAAD::Column), of(STAAD::Beam), of(STAAD::Brace),
                                of(STAAD::HorizontalBrace), std::to_string(counted.shells), sections},
                               std::to_string(counted.with_forces)));
    }

    void put(std_output& out) const { rows_.put(out); }

private:
    std::vector<std::string> cells_of(std::vector<std::string> row, const std::vector<std::string>& cells,
                                      const std::string& forces) const
    {
        row.insert(row.end(), cells.begin(), cells.end());
        if (with_forces_)
            row.push_back(forces);
        return row;
    }

    bool with_forces_;
    table rows_;
};

void put_table(std_output& out, const storeys_summary& summary, bool with_forces)
{
    storey_table rows(with_forces);
    counts total;
    for (auto storey = summary.storeys.rbegin(); storey != summary.storeys.rend(); ++storey) {
        counts counted;
        counted.add(storey->contents);
        total.add(storey->contents);
        rows.add_row({std::to_string(storey->number), exact_metres(storey->base), exact_metres(storey->height)},
                     counted, std::to_string(storey->sections.size()));
    }
    counts outside_all;
    for (const level_contents& contents : summary.in_none) {
        outside_all.add(contents);
        total.add(contents);
    }
    const auto outside_sections = std::count_if(summary.sections.begin(), summary.sections.end(),
                                                [](const numbered_section& section) { return section.in_none != 0; });
    rows.add_row({"in none", {}, {}}, outside_all, std::to_string(outside_sections));
    rows.add_row({"total", {}, {}}, total, std::to_string(summary.sections.size()));
    rows.put(out);
}

void add_numbers(table& rows, const char* reason, const std::vector<int>& numbers, const char* noun)
{
    if (!numbers.empty())
        rows.add_row({reason, count_of(numbers.size(), noun), run_list(numbers)});
}

/// Joints are counted in the table but not listed: the feet of columns are at the lowest level.
void put_outside(std_output& out, const storeys_summary& summary)
{
    table rows;
    for (std::size_t i = 0; i < outside_reasons; ++i) {
        const char* const reason = outside_word(static_cast<outside>(i));
        add_numbers(rows, reason, summary.in_none[i].members, "member");
        add_numbers(rows, reason, summary.in_none[i].elements, "element");
        add_numbers(rows, reason, summary.in_none[i].surfaces, "surface");
    }
    out.put(rows.size() == 0 ? "members and shells in no storey: none\n" : "members and shells in no storey:\n");
    rows.put(out);
}

std::string storeys_of(const numbered_section& section)
{
    if (section.storeys.empty())
        return "in no storey";
    const std::string text = (section.storeys.size() == 1 ? "storey " : "storeys ") + run_list(section.storeys);
    return section.in_none == 0 ? text : fmt::format("{}, {} in none", text, section.in_none);
}

void put_sections(std_output& out, const storeys_summary& summary)
{
    table rows({align::right});
    for (const numbered_section& section : summary.sections)
        rows.add_row({std::to_string(section.number), cell_text(section.property, "(empty)"),
                      cell_text(section.material, "(no material)"),
                      count_of(section.members + section.in_none, "member"), storeys_of(section)});
    if (rows.size() != 0)
        out.put(fmt::format("sections: {}\n", rows.size()));
    rows.put(out);
}

} // namespace

void put_storeys(std_output& out, const storeys_summary& summary, bool with_forces)
{
    out.put(heading(summary));
    if (!summary.storeys.empty())
        put_table(out, summary, with_forces);
    put_outside(out, summary);
    put_sections(out, summary);
}

} // namespace tool
