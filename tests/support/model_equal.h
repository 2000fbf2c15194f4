/// Exact comparison of records and whole models, field by field.
#ifndef STAAD_TESTS_SUPPORT_MODEL_EQUAL_H
#define STAAD_TESTS_SUPPORT_MODEL_EQUAL_H

#include "staad/model/fields.h"

#include <cstddef>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace STAAD {

/// Walks two values of one type in parallel - numbers, texts, lists, maps, sets and records of them - and notes where
/// they differ, one line each. Doubles are compared by their bits.
class comparison {
public:
    /// Compares what is called `name`: "[3]", "layers", ".x".
    template<class Value>
    void compare(const std::string& name, const Value& a, const Value& b)
    {
        const std::size_t before = path_.size();
        path_ += name;
        compare(a, b);
        path_.resize(before);
    }

    /// What was found; after a hundred differences only their number.
    std::vector<std::string> take() &&;

private:
    void compare(const double& a, const double& b);
    void compare(const std::string& a, const std::string& b);
    template<class Value>
    void compare(const Value& a, const Value& b)
    {
        if constexpr (is_record<Value>)
            each_field(a, b, [this](const char* name, const auto& of_a, const auto& of_b) {
                compare(path_.empty() ? std::string(name) : '.' + std::string(name), of_a, of_b);
            });
        else if constexpr (std::is_integral_v<Value>)
            compare_integers(static_cast<long long>(a), static_cast<long long>(b));
        else if constexpr (requires { typename Value::key_type; })
            compare_entries(a, b);
        else
            compare_lists(a, b);
    }
    void compare_integers(long long a, long long b);
    template<class List>
    void compare_lists(const List& a, const List& b)
    {
        if (a.size() != b.size())
            note(std::to_string(a.size()) + " and " + std::to_string(b.size()) + " entries");
        for (std::size_t i = 0; i < a.size() && i < b.size(); ++i)
            compare('[' + std::to_string(i) + ']', a[i], b[i]);
    }
    template<class Entries>
    void compare_entries(const Entries& a, const Entries& b)
    {
        for (const auto& entry : a) {
            const auto other = b.find(key_of(entry));
            if (other == b.end())
                note("only the first has " + text_of(key_of(entry)));
            else if constexpr (requires { entry.second; })
                compare('[' + text_of(entry.first) + ']', entry.second, other->second);
        }
        for (const auto& entry : b)
            if (a.count(key_of(entry)) == 0)
                note("only the second has " + text_of(key_of(entry)));
    }
    template<class Entry>
    static const auto& key_of(const Entry& entry)
    {
        if constexpr (requires { entry.second; })
            return entry.first;
        else
            return entry;
    }
    static std::string text_of(int key) { return std::to_string(key); }
    static std::string text_of(const std::string& key) { return '"' + key + '"'; }
    void note(const std::string& what);

    std::string path_;
    std::vector<std::string> found_;
    std::size_t differences_ = 0;
};

/// Where two records of one kind differ: "offset_start.x: 0 and 300". Empty: they are the same.
template<class Record>
std::vector<std::string> record_differences(const Record& a, const Record& b)
{
    comparison walk;
    walk.compare("", a, b);
    return std::move(walk).take();
}

/// The same of all public fields of two models: "nodes[2].x: 0 and 300".
std::vector<std::string> model_differences(const SdReader& a, const SdReader& b);

/// Calls `visit(name, value)` for every text, list and number of a record and of the records in it: "offset_end.x".
template<class Value, class Visit>
void each_value(const std::string& name, const Value& value, const Visit& visit)
{
    if constexpr (is_record<Value>)
        each_field(value, [&](const char* field, const auto& of_value) {
            each_value(name.empty() ? std::string(field) : name + '.' + field, of_value, visit);
        });
    else if constexpr (requires { std::tuple_size<Value>::value; })
        for (const auto& element : value)
            each_value(name, element, visit);
    else
        visit(name, value);
}

/// Names of the texts and containers of a record that are not empty; `numbers_too`: and of the numbers that are not 0
/// or false.
template<class Record>
std::vector<std::string> filled_names(const Record& record, bool numbers_too)
{
    std::vector<std::string> found;
    each_value("", record, [&](const std::string& name, const auto& value) {
        bool is_filled = false;
        if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(value)>>)
            is_filled = numbers_too && value != 0;
        else
            is_filled = !value.empty();
        if (is_filled)
            found.push_back(name);
    });
    return found;
}

template<class Record>
std::vector<std::string> filled_containers(const Record& record)
{
    return filled_names(record, false);
}

template<class Record>
std::vector<std::string> filled_fields(const Record& record)
{
    return filled_names(record, true);
}

} // namespace STAAD

#endif
