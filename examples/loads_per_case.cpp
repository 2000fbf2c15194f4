// Prints the load cases of a .std file: their definitions, how many members or joints carry each,
// and for the joint loads their sum. Forces are kN, moments kN*mm, distances mm; z is up.
// A joint load has six values: forces along x, y, z and moments about them.
//
//     loads_per_case FILE.std

#include "staad/model/sd_reader.h"

#include <array>
#include <cstddef>
#include <iostream>
#include <map>

namespace {

/// How many members and joints carry each definition, by definition number. Members and joints
/// refer to definitions, not the other way round.
std::map<int, std::size_t> count_carriers(const STAAD::SdReader& model)
{
    std::map<int, std::size_t> carriers;
    for (const STAAD::SdBeam& member : model.beams) {
        for (const int definition : member.int_list)
            ++carriers[definition];
    }
    for (const STAAD::SdNode& joint : model.nodes) {
        for (const int definition : joint.extra_ids)
            ++carriers[definition];
    }
    return carriers;
}

void print_definition(const STAAD::LoadDefination& definition, std::size_t carriers)
{
    std::cout << "  " << carriers << " x " << definition.kind;
    if (definition.kind != "JOINT LOAD")
        std::cout << ' ' << definition.direction;
    for (const double value : definition.values)
        std::cout << ' ' << value;
    std::cout << '\n';
}

void print_case(const STAAD::SdReader& model, const STAAD::LoadCase& load_case,
                const std::map<int, std::size_t>& carriers)
{
    std::cout << "load case " << load_case.id << ": " << load_case.title << '\n';
    std::array<double, 3> force{}; // sum of the joint loads along x, y, z
    for (const auto& [number, definition] : model.load_defs) {
        if (definition.load_case != load_case.id)
            continue;
        const auto entry = carriers.find(number);
        const std::size_t count = entry == carriers.end() ? 0 : entry->second;
        print_definition(definition, count);
        if (definition.kind == "JOINT LOAD") {
            for (std::size_t axis = 0; axis < force.size(); ++axis)
                force[axis] += static_cast<double>(count) * definition.values[axis];
        }
    }
    std::cout << "  joint loads together: " << force[0] << ' ' << force[1] << ' ' << force[2] << " kN\n";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: loads_per_case FILE.std\n";
        return 2;
    }

    STAAD::SdReader model;
    if (!model.ReadSDDataFromStdFile(argv[1])) {
        std::cerr << argv[1] << ": no model\n";
        return 1;
    }

    const std::map<int, std::size_t> carriers = count_carriers(model);
    for (const auto& [number, load_case] : model.load_cases)
        print_case(model, load_case, carriers);
}
