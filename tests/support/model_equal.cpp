#include "tests/support/model_equal.h"

#include "staad/model/fields.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <map>
#include <set>
#include <type_traits>

namespace STAAD {
namespace {

std::string to_text(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

std::string to_text(const std::string& value)
{
    return '"' + value + '"';
}

template<class Value>
std::enable_if_t<std::is_integral_v<Value>, std::string> to_text(Value value)
{
    return std::to_string(value);
}

/// Walks two objects of one type in parallel and notes where they differ.
class comparison {
public:
    std::vector<std::string> take() &&
    {
        if (differences_ > found_.size())
            found_.push_back("and " + std::to_string(differences_ - found_.size()) + " more");
        return std::move(found_);
    }

    void compare(double a, double b)
    {
        if (std::bit_cast<std::uint64_t>(a) != std::bit_cast<std::uint64_t>(b))
            note(to_text(a) + " and " + to_text(b));
    }

    void compare(const std::string& a, const std::string& b)
    {
        if (a != b)
            note(to_text(a) + " and " + to_text(b));
    }

    template<class Integer>
    std::enable_if_t<std::is_integral_v<Integer>> compare(Integer a, Integer b)
    {
        if (a != b)
            note(to_text(a) + " and " + to_text(b));
    }

    template<class Value>
    void compare(const std::vector<Value>& a, const std::vector<Value>& b)
    {
        if (a.size() != b.size())
            note(std::to_string(a.size()) + " and " + std::to_string(b.size()) + " entries");
        for (std::size_t i = 0; i < a.size() && i < b.size(); ++i)
            compare_at('[' + std::to_string(i) + ']', a[i], b[i]);
    }

    template<class Value, std::size_t Count>
    void compare(const std::array<Value, Count>& a, const std::array<Value, Count>& b)
    {
        for (std::size_t i = 0; i < Count; ++i)
            compare_at('[' + std::to_string(i) + ']', a[i], b[i]);
    }

    template<class Key, class Value>
    void compare(const std::map<Key, Value>& a, const std::map<Key, Value>& b)
    {
        for (const auto& [key, value] : a) {
            const auto other = b.find(key);
            if (other == b.end())
                note("only the first has " + to_text(key));
            else
                compare_at('[' + to_text(key) + ']', value, other->second);
        }
        for (const auto& entry : b)
            if (a.count(entry.first) == 0)
                note("only the second has " + to_text(entry.first));
    }

    void compare(const std::set<int>& a, const std::set<int>& b)
    {
        for (const int number : a)
            if (b.count(number) == 0)
                note("only the first has " + to_text(number));
        for (const int number : b)
            if (a.count(number) == 0)
                note("only the second has " + to_text(number));
    }

    template<class Record>
    std::enable_if_t<is_record<Record>> compare(const Record& a, const Record& b)
    {
        each_field(a, b, [this](const char* name, const auto& of_a, const auto& of_b) {
            compare_at(path_.empty() ? std::string(name) : '.' + std::string(name), of_a, of_b);
        });
    }

private:
    static constexpr std::size_t most_listed = 100;

    template<class Value>
    void compare_at(const std::string& step, const Value& a, const Value& b)
    {
        const std::size_t before = path_.size();
        path_ += step;
        compare(a, b);
        path_.resize(before);
    }

    void note(const std::string& what)
    {
        if (++differences_ <= most_listed)
            found_.push_back(path_ + ": " + what);
    }

    std::string path_;
    std::vector<std::string> found_;
    std::size_t differences_ = 0;
};

enum class look_for { containers, containers_and_numbers };

/// Names the fields of a record that hold something.
class field_search {
public:
    explicit field_search(look_for what) : numbers_too_(what == look_for::containers_and_numbers) {}

    std::vector<std::string> take() && { return std::move(found_); }

    template<class Value>
    void look_at(const std::string& name, const Value& value)
    {
        if constexpr (is_container<Value>::value) {
            if (!value.empty())
                found_.push_back(name);
        } else if constexpr (is_array<Value>::value) {
            for (const auto& element : value)
                look_at(name, element);
        } else if constexpr (std::is_class_v<Value>) {
            each_field(value, [&](const char* field, const auto& of_value) {
                look_at(name.empty() ? std::string(field) : name + '.' + field, of_value);
            });
        } else {
            if (numbers_too_ && value != Value())
                found_.push_back(name);
        }
    }

private:
    template<class>
    struct is_array : std::false_type {
    };
    template<class Value, std::size_t Count>
    struct is_array<std::array<Value, Count>> : std::true_type {
    };

    template<class>
    struct is_container : std::false_type {
    };
    template<class Value>
    struct is_container<std::vector<Value>> : std::true_type {
    };
    template<class Key, class Value>
    struct is_container<std::map<Key, Value>> : std::true_type {
    };

    bool numbers_too_;
    std::vector<std::string> found_;
};

template<>
struct field_search::is_container<std::string> : std::true_type {
};
template<>
struct field_search::is_container<std::set<int>> : std::true_type {
};

} // namespace

template<class Record>
std::vector<std::string> record_differences(const Record& a, const Record& b)
{
    comparison walk;
    walk.compare(a, b);
    return std::move(walk).take();
}

template<class Record>
std::vector<std::string> filled_containers(const Record& record)
{
    field_search search(look_for::containers);
    search.look_at("", record);
    return std::move(search).take();
}

template<class Record>
std::vector<std::string> filled_fields(const Record& record)
{
    field_search search(look_for::containers_and_numbers);
    search.look_at("", record);
    return std::move(search).take();
}

std::vector<std::string> model_differences(const SdReader& a, const SdReader& b)
{
    return record_differences(a, b);
}

#define STAAD_FOR_RECORD(Record)                                                                                       \
    template std::vector<std::string> record_differences(const Record&, const Record&);                                \
    template std::vector<std::string> filled_containers(const Record&);                                                \
    template std::vector<std::string> filled_fields(const Record&);

STAAD_FOR_RECORD(SdNode)
STAAD_FOR_RECORD(SdOffset)
STAAD_FOR_RECORD(SdBeam)
STAAD_FOR_RECORD(SdSurface)
STAAD_FOR_RECORD(SdShell)
STAAD_FOR_RECORD(SdGroup)
STAAD_FOR_RECORD(Section)
STAAD_FOR_RECORD(SdUserSectionTable)
STAAD_FOR_RECORD(LoadCase)
STAAD_FOR_RECORD(LoadDef_raw)
STAAD_FOR_RECORD(LoadDefination)
STAAD_FOR_RECORD(ForcePoint)
STAAD_FOR_RECORD(BeamLoadCaseRecord)
STAAD_FOR_RECORD(BeamForceAndMOM)
STAAD_FOR_RECORD(BeamLoadList)
STAAD_FOR_RECORD(WindLoadParam)
STAAD_FOR_RECORD(SeismicParam)
STAAD_FOR_RECORD(OldProjMaps)
STAAD_FOR_RECORD(SdReader)
STAAD_FOR_RECORD(StoreyLayer)
STAAD_FOR_RECORD(NodeLevel)

#undef STAAD_FOR_RECORD

} // namespace STAAD
