#include "staad/structure/container/container_text.h"

#include "staad/structure/container/texts.h"
#include "staad/text/words.h"
#include "staad/units/exact_units.h"

#include <map>
#include <set>
#include <string_view>
#include <utility>

namespace STAAD::detail {
namespace {

/// Definitions are in the units of the model; every other text in those of the file.
constexpr std::string_view model_units = "UNIT MMS KN";

/// The UNIT line of the model, as far as its words are known; metres and kilonewtons else.
std::string unit_line(const SdReader& model)
{
    std::string line = "UNIT METER KN";
    word_cursor words(model.unit_text);
    words.next_or_empty();
    for (std::string_view word; words.next(word);)
        if (exact_length(word) || exact_force(word))
            append_word(line, word);
    return line;
}

/// A direction of the model as a deck with Y up has it: the model's X is the file's Z, its Y X, its Z Y.
std::string file_direction(std::string direction)
{
    if (direction.empty())
        return direction;
    char& axis = direction.back();
    axis = axis == 'X' ? 'Z' : axis == 'Y' ? 'X' : axis == 'Z' ? 'Y' : axis;
    return direction;
}

std::string joint_load_words(const LoadDefination& definition)
{
    constexpr std::string_view names[] = {"FZ", "FX", "FY", "MZ", "MX", "MY"}; // by the model's axes
    std::string words;
    for (std::size_t i = 0; i < definition.values.size() && i < std::size(names); ++i) {
        append_word(words, names[i]);
        append_word(words, shortest_text(definition.values[i]));
    }
    return words;
}

/// The words of a definition after its block: "UNI GY -0.005".
std::string definition_words(const LoadDefination& definition)
{
    if (definition.kind == "JOINT LOAD")
        return joint_load_words(definition);
    std::string words(word_at(definition.kind, 2));
    if (starts_with(definition.kind, "MEMBER LOAD") || definition.kind == "SELFWEIGHT")
        append_word(words, file_direction(definition.direction));
    for (const double value : definition.values)
        append_word(words, shortest_text(value));
    return words;
}

/// Names of the rows in the order of the file. Every line of a table has the one after it as its record, so that the
/// rows lead from one to the next; the first is after none. Rows that none leads to come last.
std::vector<std::string_view> row_names(const SdUserSectionTable& table)
{
    std::set<std::string_view> led_to;
    for (const auto& [line, after] : table.records)
        led_to.insert(after);
    std::vector<std::string_view> names;
    std::set<std::string_view> taken; // names, and lines of their numbers
    const auto follow = [&](auto row) {
        while (row != table.records.end() && taken.insert(row->first).second) {
            names.push_back(row->first);
            taken.insert(row->second);
            const auto numbers = table.records.find(row->second);
            row = numbers == table.records.end() ? numbers : table.records.find(numbers->second);
        }
    };
    for (auto row = table.records.begin(); row != table.records.end(); ++row)
        if (starts_with_letter(row->first) && led_to.count(row->first) == 0)
            follow(row);
    for (auto row = table.records.begin(); row != table.records.end(); ++row)
        if (starts_with_letter(row->first))
            follow(row);
    return names;
}

class text_maker {
public:
    explicit text_maker(const SdReader& model) : model_(model) {}

    container_text make()
    {
        line("STAAD SPACE");
        line(unit_line(model_));
        add_user_tables();
        add_sections();
        add_described("SUPPORTS", model_.supports);
        add_described("MEMBER RELEASE", model_.releases);
        line(model_units);
        add_loads();
        return std::move(made_);
    }

private:
    void line(std::string_view text)
    {
        made_.text.append(text).append("\n");
        ++lines_;
    }

    /// A list and what follows it, on a line of any length.
    template<class Numbers>
    void list_line(const Numbers& numbers, std::string_view after)
    {
        std::string text;
        for (const auto number : numbers)
            append_word(text, std::to_string(number));
        append_word(text, after);
        line(text);
    }

    void add_user_tables()
    {
        if (model_.usr_tables.empty())
            return;
        line("START USER TABLE");
        for (const auto& [number, table] : model_.usr_tables) {
            line("TABLE " + std::to_string(number));
            line(starts_with(table.unit, "00") ? std::string_view(table.unit).substr(2) : table.unit);
            line(starts_with(table.type, "00") ? std::string_view(table.type).substr(2) : table.type);
            for (const std::string_view name : row_names(table)) {
                line(name);
                line(table.records.find(std::string(name))->second);
            }
        }
        line("END");
    }

    void add_sections()
    {
        std::map<std::pair<std::string_view, std::string_view>, std::vector<int>> members;
        for (const SdBeam& beam : model_.beams)
            if (!beam.sect_name.empty())
                members[{beam.sect_country, beam.sect_name}].push_back(beam.id);
        std::string_view code;
        bool is_first = true;
        for (const auto& [section, numbers] : members) {
            if (is_first || section.first != code)
                line("MEMBER PROPERTY " + std::string(section.first));
            code = section.first;
            is_first = false;
            list_line(numbers, section.second);
        }
    }

    void add_described(std::string_view block, const std::map<std::string, std::vector<unsigned>>& described)
    {
        if (described.empty())
            return;
        line(block);
        for (const auto& [description, numbers] : described)
            list_line(numbers, description);
    }

    void add_loads()
    {
        gather_carriers();
        // Cases in the order of their first definitions, so that these keep their numbers.
        std::vector<int> cases;
        std::map<int, std::vector<int>> of_case;
        for (const auto& [number, definition] : model_.load_defs) {
            std::vector<int>& definitions = of_case[definition.load_case];
            if (definitions.empty())
                cases.push_back(definition.load_case);
            definitions.push_back(number);
        }
        for (const auto& [number, header] : model_.load_cases)
            if (of_case.count(number) == 0)
                cases.push_back(number);
        for (const int number : cases) {
            add_header(number);
            for (const int definition : of_case[number])
                add_definition(definition, model_.load_defs.at(definition));
        }
    }

    void add_header(int number)
    {
        std::string header = "LOAD " + std::to_string(number);
        const auto found = model_.load_cases.find(number);
        if (found != model_.load_cases.end() && !found->second.type_text.empty())
            header += " LOADTYPE " + found->second.type_text;
        if (found != model_.load_cases.end() && !found->second.title.empty())
            header += " TITLE " + found->second.title;
        line(header);
    }

    /// Joints or members by the definitions that they carry.
    void gather_carriers()
    {
        for (const SdNode& node : model_.nodes)
            for (const int definition : node.extra_ids)
                carriers_[definition].push_back(node.id);
        for (const SdBeam& beam : model_.beams)
            for (const int definition : beam.int_list)
                carriers_[definition].push_back(beam.id);
    }

    void add_definition(int number, const LoadDefination& definition)
    {
        const std::vector<int>& numbers = carriers_[number];
        const std::string words = definition_words(definition);
        if (definition.kind == "SELFWEIGHT") {
            std::string text = "SELFWEIGHT " + words;
            if (!numbers.empty())
                text += " LIST";
            for (const int each : numbers)
                append_word(text, std::to_string(each));
            made_.definitions.push_back({lines_ + 1, number});
            line(text);
            return;
        }
        if (numbers.empty() || definition.kind.empty())
            return;
        if (definition.kind == "FLOOR LOAD") {
            add_floor_load(number, numbers);
            return;
        }
        line(join_words(word_cursor(definition.kind), 2));
        made_.definitions.push_back({lines_ + 1, number});
        list_line(numbers, words);
    }

    /// The definition of a floor load has no values: its text has them, in the units of the file.
    void add_floor_load(int number, const std::vector<int>& numbers)
    {
        const auto raw = model_.raw_load_defs.find(number);
        if (raw == model_.raw_load_defs.end())
            return;
        word_cursor words(raw->second.text);
        words.next_or_empty(); // FLOOR
        words.next_or_empty(); // LOAD
        line(unit_line(model_));
        line("FLOOR LOAD");
        made_.definitions.push_back({lines_ + 1, number});
        list_line(numbers, join_words(words));
        line(model_units);
    }

    const SdReader& model_;
    container_text made_;
    std::size_t lines_ = 0;
    std::map<int, std::vector<int>> carriers_;
};

} // namespace

container_text text_of_container(const SdReader& model)
{
    return text_maker(model).make();
}

} // namespace STAAD::detail
