/// Records in which every field differs from its default.
#ifndef STAAD_TESTS_SUPPORT_FILLED_RECORDS_H
#define STAAD_TESTS_SUPPORT_FILLED_RECORDS_H

#include "staad/model/fields.h"

#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace STAAD {

/// Gives every number of a record another value, counting from 1; lists and maps get one entry each. Texts
/// are the name of their field, and too long for any string to keep without memory of its own.
class field_filler {
public:
    template<class Record>
    std::enable_if_t<is_record<Record>> fill(Record& record)
    {
        each_field(record, [this](const char* name, auto& field) {
            name_ = name;
            fill(field);
        });
    }

private:
    void fill(bool& flag) { flag = true; }
    void fill(int& number) { number = ++last_; }
    void fill(unsigned& number) { number = static_cast<unsigned>(++last_); }
    void fill(double& number) { number = ++last_ + 0.5; }
    void fill(std::string& text) { text = name_ + std::string(80, '.'); }
    template<class Value>
    void fill(std::vector<Value>& list)
    {
        fill(list.emplace_back());
    }
    template<class Value, std::size_t Count>
    void fill(std::array<Value, Count>& list)
    {
        for (Value& value : list)
            fill(value);
    }
    template<class Key>
    void fill(std::set<Key>& numbers)
    {
        numbers.insert(++last_);
    }
    template<class Key, class Value>
    void fill(std::map<Key, Value>& entries)
    {
        Key key{};
        fill(key);
        fill(entries[key]);
    }

    int last_ = 0;
    std::string name_;
};

template<class Record>
Record filled()
{
    Record record;
    field_filler().fill(record);
    return record;
}

} // namespace STAAD

#endif
