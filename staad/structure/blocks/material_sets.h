/// The materials that MATERIAL lines and constants by value come to, record by record.
#ifndef STAAD_STRUCTURE_BLOCKS_MATERIAL_SETS_H
#define STAAD_STRUCTURE_BLOCKS_MATERIAL_SETS_H

#include "staad/structure/assignments.h"
#include "staad/structure/blocks/material_constants.h"
#include "staad/structure/reading.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace STAAD::detail {

/// A constant that a line gives: a number, or that of a material of the analysis program's own.
struct given_constant {
    std::optional<double> value;
    int built_in = -1; ///< position in Structure::materials
};

/// Gathers lines in the order of the text and gives each record its material. A MATERIAL line replaces all that
/// lines before it gave; constants after it change the material for their records: these have a nameless copy of
/// it with their own values. Records of the same values share one nameless material.
class material_sets {
public:
    explicit material_sets(structure_reading& context) noexcept : context_(context) {}

    struct ranges {
        const std::vector<Structure::Range>& members;
        const std::vector<Structure::Range>& elements;
        bool is_all; ///< solids and surfaces, too
    };

    void give_material(int material, const ranges& to, Structure::Source source);
    void give_constant(std::size_t constant, const given_constant& given, const ranges& to, Structure::Source source);

    /// Writes the materials of all records.
    void hand_out();

private:
    /// What is given to some records: by one line, on top of what `before` gives.
    struct set {
        std::uint32_t before;         ///< 0: nothing
        std::size_t column;           ///< 0: MATERIAL, else the constant + 1
        int value;                    ///< a material, or an index into constants_
        Structure::Source source;     ///< the last of its lines
        Structure::Source named_from; ///< the MATERIAL line; 0: none
        int material = -2;            ///< what it comes to; -2: not known yet
    };
    static constexpr std::size_t columns = material_constants.size() + 1;
    enum kind : std::uint8_t { members, elements, solids, surfaces, number_of_kinds };

    void add(std::size_t column, int value, const ranges& to, Structure::Source source);
    template<class Records>
    void hand_out_to(Records& records, kind which);
    std::uint32_t set_after(std::uint32_t before, std::size_t column, int value, Structure::Source source);
    int material_of(std::uint32_t index);
    int compose(const set& last);
    int share(Structure::Material made, int named);
    void report_missing(Structure::Source source, int built_in);

    structure_reading& context_;
    std::array<std::array<line_assignments<int>, columns>, number_of_kinds> lines_;
    std::vector<given_constant> constants_;
    std::vector<set> sets_{set{0, 0, -1, 0, 0, -1}};
    std::unordered_map<std::uint64_t, std::uint32_t> known_sets_; // by set before and source
    std::unordered_map<std::string, int> nameless_;               // by their values
    std::unordered_set<Structure::Source> reported_;
};

} // namespace STAAD::detail

#endif
