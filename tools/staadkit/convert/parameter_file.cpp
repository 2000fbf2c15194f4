#include "convert/parameter_file.h"

#include "cli/messages.h"
#include "cli/suggest.h"
#include "cli/text_encoding.h"
#include "staad/io/native_path.h"
#include "staad/io/read_file.h"
#include "staad/model/fields.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {
namespace {

using nlohmann::json;
using STAAD::Finding;
using STAAD::FindingCode;

bool read_text(const std::string& path, std::string& text, STAAD::ReadReport& report)
{
    const STAAD::FileBytes file = STAAD::read_file(STAAD::native_path(path));
    const bool was_read = file.outcome == STAAD::FileBytes::Outcome::read;
    if (was_read)
        text = file.text();
    else
        add_finding(report, FindingCode::file_unreadable, file.error.message());
    return was_read;
}

/// The parser's message without its own name for the error and the place.
std::string bare_message(std::string_view message)
{
    constexpr std::string_view end_of_place = ": ";
    const std::size_t place = message.find(end_of_place);
    const std::size_t start = place == std::string_view::npos ? 0 : place + end_of_place.size();
    constexpr std::size_t most_shown = 200;
    return clipped(utf8_text(message.substr(start)), most_shown);
}

void add_syntax_error(STAAD::ReadReport& report, std::string_view text, const json::parse_error& error)
{
    // The error counts bytes from 1; if the text ends too early it is one past the end.
    const std::string_view before =
        text.substr(0, std::min(error.byte - std::min<std::size_t>(error.byte, 1), text.size()));
    const auto line = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1;
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1; // npos + 1 is 0
    add_finding(report, FindingCode::json, fmt::format("column {}: {}", column, bare_message(error.what())), line);
}

/// The object in a parameter file; if it has none, a discarded value, and the errors are in the report.
json parse_object(const std::string& text, STAAD::ReadReport& report)
{
    std::set<std::string> keys;
    std::string last_key;
    const auto note_key = [&](int depth, json::parse_event_t event, json& parsed) {
        if (depth == 1 && event == json::parse_event_t::key) {
            last_key = parsed.get<std::string>();
            if (!keys.insert(last_key).second)
                add_finding(report, FindingCode::field_twice, "field " + last_key + " is there twice");
        }
        return true;
    };
    try {
        json object = json::parse(text, note_key);
        if (object.is_object())
            return object;
        add_finding(report, FindingCode::json, "no object: {\"NAME\": VALUE, ...}", 1);
    } catch (const json::parse_error& error) {
        add_syntax_error(report, text, error);
    } catch (const json::out_of_range&) {
        add_finding(report, FindingCode::field_value,
                    "field " + last_key + " holds a number past the range of 64-bit reals");
    }
    return json::value_t::discarded;
}

/// Sets a field of a record from its value. Each call returns the error of the value, empty if there is none.
/// `place` is the name of the field, "mius[0][2]" within lists.
class field_filler {
public:
    static std::string fill(const json& value, const std::string& place, bool& flag)
    {
        if (!value.is_boolean())
            return place + " must be true or false";
        flag = value.get<bool>();
        return {};
    }

    static std::string fill(const json& value, const std::string& place, int& number)
    {
        const bool is_large = value.is_number_unsigned() &&
                              value.get<std::uint64_t>() > static_cast<unsigned>(std::numeric_limits<int>::max());
        if (!value.is_number_integer() || is_large || value.get<std::int64_t>() > std::numeric_limits<int>::max() ||
            value.get<std::int64_t>() < std::numeric_limits<int>::min())
            return place + " must be a whole number of 32 bits";
        number = value.get<int>();
        return {};
    }

    static std::string fill(const json& value, const std::string& place, double& number)
    {
        if (!value.is_number())
            return place + " must be a number";
        number = value.get<double>();
        return {};
    }

    static std::string fill(const json& value, const std::string& place, std::string& text)
    {
        if (!value.is_string())
            return place + " must be a text";
        const auto& utf8 = value.get_ref<const std::string&>();
        if (std::any_of(utf8.begin(), utf8.end(), is_control))
            return place + " must be one line without control characters";
        std::optional<std::string> gbk = gbk_from_utf8(utf8);
        if (!gbk)
            return place + " has characters that GBK lacks";
        text = *std::move(gbk);
        return {};
    }

    template<class Item, std::size_t Count>
    static std::string fill(const json& value, const std::string& place, std::array<Item, Count>& items)
    {
        if (!value.is_array() || value.size() != Count)
            return fmt::format("{} must be a list of {}", place, Count);
        return fill_items(value, place, items);
    }

    template<class Item>
    static std::string fill(const json& value, const std::string& place, std::vector<Item>& items)
    {
        if (!value.is_array())
            return place + " must be a list";
        items.resize(value.size());
        return fill_items(value, place, items);
    }

private:
    template<class Items>
    static std::string fill_items(const json& value, const std::string& place, Items& items)
    {
        for (std::size_t i = 0; i < items.size(); ++i) {
            std::string problem = fill(value[i], fmt::format("{}[{}]", place, i), items[i]);
            if (!problem.empty())
                return problem;
        }
        return {};
    }

    static bool is_control(char c) noexcept { return static_cast<unsigned char>(c) < 0x20 || c == '\x7F'; }
};

/// Free for the user of the file; not written.
bool is_optional(std::string_view name)
{
    return name == "title";
}

template<class Record>
void fill_record(const json& object, Record& record, STAAD::ReadReport& report)
{
    std::vector<std::string> names;
    each_field(record, [&](const char* name, auto& field) {
        names.emplace_back(name);
        const auto entry = object.find(name);
        if (entry != object.end()) {
            if (std::string problem = field_filler::fill(*entry, name, field); !problem.empty())
                add_finding(report, FindingCode::field_value, "field " + problem);
        } else if (!is_optional(name)) {
            add_finding(report, FindingCode::field_missing, "field " + std::string(name) + " is missing");
        }
    });
    for (const auto& entry : object.items()) {
        const std::string& key = entry.key();
        if (std::find(names.begin(), names.end(), key) != names.end())
            continue;
        const std::string nearest = nearest_word(key, names);
        add_finding(report, FindingCode::field_unknown,
                    "unknown field '" + key + '\'' + (nearest.empty() ? "" : "; did you mean '" + nearest + "'?"));
    }
}

template<class Record>
void read_record(const std::string& text, Record& record, STAAD::ReadReport& report)
{
    const json object = parse_object(text, report);
    if (object.is_discarded())
        return;
    fill_record(object, record, report);
    if (report.worst() != Finding::Error)
        check_parameters(record, report);
}

template<class Record>
STAAD::ReadReport record_of_file(const std::string& path, Record& record)
{
    STAAD::ReadReport report;
    std::string text;
    if (read_text(path, text, report))
        read_record(text, record, report);
    return report;
}

template<class Record>
STAAD::ReadReport record_of_text(const std::string& text, Record& record)
{
    STAAD::ReadReport report;
    read_record(text, record, report);
    return report;
}

} // namespace

STAAD::ReadReport read_parameters(const std::string& path, STAAD::WindLoadParam& record)
{
    return record_of_file(path, record);
}

STAAD::ReadReport read_parameters(const std::string& path, STAAD::SeismicParam& record)
{
    return record_of_file(path, record);
}

STAAD::ReadReport parameters_of_text(const std::string& text, STAAD::WindLoadParam& record)
{
    return record_of_text(text, record);
}

STAAD::ReadReport parameters_of_text(const std::string& text, STAAD::SeismicParam& record)
{
    return record_of_text(text, record);
}

} // namespace tool
