/// Materials by name.
#ifndef STAAD_STRUCTURE_BLOCKS_MATERIAL_NAMES_H
#define STAAD_STRUCTURE_BLOCKS_MATERIAL_NAMES_H

#include "staad/structure/structure.h"
#include "staad/text/words.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace STAAD::detail {

/// Names without regard to case, and to the quotes that hold blanks in them.
class material_names {
public:
    explicit material_names(std::vector<Structure::Material>& materials) : materials_(materials)
    {
        for (std::size_t i = 0; i < materials.size(); ++i)
            positions_.emplace(key(materials[i].name), static_cast<int>(i));
    }

    /// Position of the material; -1 if there is none.
    int find(std::string_view name) const
    {
        const auto found = positions_.find(key(name));
        return found == positions_.end() ? -1 : found->second;
    }

    /// Position of the material, a new one without values if there is none.
    int find_or_add(std::string_view name, Structure::Source source)
    {
        const auto [place, is_new] = positions_.try_emplace(key(name), static_cast<int>(materials_.size()));
        if (is_new) {
            materials_.emplace_back().name = name;
            materials_.back().source = source;
        }
        return place->second;
    }

    /// Whether the analysis program has the material by itself.
    static bool is_built_in(std::string_view name)
    {
        const std::string word = key(name);
        return word == "STEEL" || word == "CONCRETE" || word == "ALUMINUM" || word == "STAINLESSSTEEL";
    }

private:
    static std::string key(std::string_view name)
    {
        const bool is_quoted = name.size() > 1 && (name.front() == '\'' || name.front() == '"');
        return to_upper_ascii(is_quoted && name.back() == name.front() ? name.substr(1, name.size() - 2) : name);
    }

    std::vector<Structure::Material>& materials_;
    std::unordered_map<std::string, int> positions_;
};

} // namespace STAAD::detail

#endif
