/// Writes values of a model as JSON, straight to standard output: a model of any size is never copied.
///
/// Records are objects with a key for each field in declaration order, see staad/model/fields.h. Below the
/// top of a document each record of a list and each entry of a map has a line of its own.
#ifndef TOOLS_STAADKIT_OUTPUT_JSON_WRITER_H
#define TOOLS_STAADKIT_OUTPUT_JSON_WRITER_H

#include "cli/messages.h"
#include "cli/open_model.h"
#include "output/std_output.h"
#include "staad/model/fields.h"
#include "staad/report/read_report.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace tool {

/// The fields of a finding as JSON documents have them.
template<class Visit>
void each_field(const STAAD::Finding& finding, Visit visit)
{
    std::vector<std::array<std::size_t, 2>> lines; // as all JSON has them that knows lines
    if (finding.first_line != 0)
        lines.push_back({finding.first_line, std::max(finding.first_line, finding.last_line)});
    visit("severity", std::string(severity_word(finding.severity)));
    visit("code", finding.code);
    visit("first_line", finding.first_line);
    visit("last_line", finding.last_line);
    visit("lines", lines);
    visit("text", finding.text);
    visit("count", finding.count);
}

/// The fields of an input as JSON documents have them.
template<class Visit>
void each_field(const opened_input& input, Visit visit)
{
    visit("file", input.name);
    visit("was_read", input.was_read);
    visit("findings", input.report.findings);
}

/// Counts of members by STAAD::BeamType, as JSON documents have them.
template<class Visit>
void visit_kinds(const std::array<std::size_t, 4>& members_of, Visit& visit)
{
    visit("columns", members_of[STAAD::Column]);
    visit("beams", members_of[STAAD::Beam]);
    visit("braces", members_of[STAAD::Brace]);
    visit("horizontal_braces", members_of[STAAD::HorizontalBrace]);
}

/// A list whose items are made one by one as they are written: `fill` is called with a function that writes one.
template<class Fill>
struct streamed_list {
    Fill fill;
};
template<class Fill>
streamed_list(Fill) -> streamed_list<Fill>;

class json_writer {
public:
    explicit json_writer(std_output& out) : out_(out) {}

    /// A record as a whole document, with a line feed at its end.
    template<class Record>
    void document(const Record& record)
    {
        value(record);
        out_.put('\n');
    }

    void value(bool flag);
    void value(int number);
    void value(unsigned number);
    void value(unsigned long number);
    void value(unsigned long long number);
    /// The fewest digits that read back to the same bits. JSON has no infinities and no NaN:
    /// these become the texts "Infinity", "-Infinity" and "NaN".
    void value(double number);
    /// UTF-8 unchanged, else decoded from GBK, else each byte as \u00XX.
    void value(const std::string& text);
    /// [x, y, z]
    void value(const STAAD::SdOffset& offset);

    /// null for nothing
    template<class Item>
    void value(const std::optional<Item>& item)
    {
        if (item)
            value(*item);
        else
            out_.put("null");
    }

    template<class Item, std::size_t Count>
    void value(const std::array<Item, Count>& items)
    {
        list(items);
    }
    template<class Item>
    void value(const std::vector<Item>& items)
    {
        list(items);
    }
    template<class Item>
    void value(const std::set<Item>& items)
    {
        list(items);
    }

    template<class Fill>
    void value(const streamed_list<Fill>& items)
    {
        open('[', on_lines());
        items.fill([this](const auto& item) {
            next();
            value(item);
        });
        close(']');
    }

    template<class Key, class Mapped>
    void value(const std::map<Key, Mapped>& entries)
    {
        open('{', on_lines());
        used_keys used;
        for (const auto& [name, mapped] : entries) {
            next();
            key(name, used);
            value(mapped);
        }
        close('}');
    }

    template<class Record>
    void value(const Record& record)
    {
        open('{', level_ == 0);
        each_field(record, [this](std::string_view name, const auto& field) {
            next();
            key(name);
            value(field);
        });
        close('}');
    }

private:
    /// The state of an open object or list.
    struct nesting {
        bool on_lines = false; ///< each item on a line of its own
        bool has_items = false;
    };
    static constexpr std::size_t deepest = 16;
    /// Keys of the object being written that are not plain ASCII, in UTF-8.
    using used_keys = std::set<std::string>;

    template<class Items>
    void list(const Items& items)
    {
        open('[', on_lines() && std::is_class_v<typename Items::value_type>);
        for (const auto& item : items) {
            next();
            value(item);
        }
        close(']');
    }

    bool on_lines() const noexcept { return level_ == 1; }
    void open(char bracket, bool on_lines);
    void next();
    void close(char bracket);
    void new_line();
    void key(std::string_view name);
    void key(int number, used_keys& used);
    void key(const std::string& text, used_keys& used);
    void quoted(std::string_view text);
    void quoted_utf8(std::string_view text);
    void quoted_bytes(std::string_view text);

    std_output& out_;
    std::array<nesting, deepest> nestings_{};
    std::size_t level_ = 0;
};

/// An array of documents, each written when it is there.
class json_array {
public:
    explicit json_array(std_output& out) : out_(out) {}

    template<class Record>
    void add(const Record& record)
    {
        out_.put(is_empty_ ? "[\n" : ",\n");
        is_empty_ = false;
        json_writer(out_).document(record);
    }
    void close() { out_.put(is_empty_ ? "[]\n" : "]\n"); }

private:
    std_output& out_;
    bool is_empty_ = true;
};

/// Writes a record to standard output as the only result; see std_output::close.
template<class Record>
exit_code print_document(const Record& record, exit_code so_far)
{
    std_output out;
    json_writer(out).document(record);
    return out.close(so_far);
}

} // namespace tool

#endif
