/// Numbers gathered under keys: members by property text, elements by thickness.
#ifndef STAAD_WRITER_NORMALISED_ID_GROUPS_H
#define STAAD_WRITER_NORMALISED_ID_GROUPS_H

#include <algorithm>
#include <cstddef>
#include <functional>
#include <unordered_map>
#include <vector>

namespace STAAD::detail {

/// Ids by key, those of one key in the order added. Keys that are views must outlive it.
template<class Key, class Ids = std::vector<int>>
class id_groups {
public:
    using entry = typename std::unordered_map<Key, Ids>::value_type;

    id_groups() = default;
    id_groups(const id_groups&) = delete; // would share `latest_`
    id_groups& operator=(const id_groups&) = delete;

    /// The ids of `key`; a new key has none.
    Ids& at(const Key& key)
    {
        // Neighbours in a list mostly share their key.
        if (latest_ == nullptr || latest_->first != key)
            latest_ = &*entries_.try_emplace(key).first;
        return latest_->second;
    }

    bool empty() const noexcept { return entries_.empty(); }
    std::size_t size() const noexcept { return entries_.size(); }

    /// Every key once, ascending: bytes of texts as unsigned values.
    std::vector<const entry*> ascending() const
    {
        std::vector<const entry*> sorted;
        sorted.reserve(entries_.size());
        for (const entry& each : entries_)
            sorted.push_back(&each);
        std::sort(sorted.begin(), sorted.end(),
                  [](const entry* left, const entry* right) { return std::less<Key>()(left->first, right->first); });
        return sorted;
    }

private:
    std::unordered_map<Key, Ids> entries_;
    entry* latest_ = nullptr;
};

} // namespace STAAD::detail

#endif
