// Lists the columns of a .std file with their places, heights and sections. Lengths are mm, whatever the unit
// of the file; z is up.
//
//     list_columns FILE.std

#include "staad/model/sd_reader.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace {

void print_column(const STAAD::SdReader& model, const STAAD::SdBeam& column)
{
    // A column has both its joints, so neither position is 0. Positions count from 1.
    const STAAD::SdNode& start = model.nodes[static_cast<std::size_t>(column.node_start) - 1];
    const STAAD::SdNode& end = model.nodes[static_cast<std::size_t>(column.node_end) - 1];
    std::cout << std::setw(6) << column.id << std::setw(10) << start.x << std::setw(10) << start.y << std::setw(10)
              << std::min(start.z, end.z) << std::setw(10) << std::max(start.z, end.z) << std::setw(6) << column.beta
              << "  " << column.sect_text << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: list_columns FILE.std\n";
        return 2;
    }

    STAAD::SdReader model;
    if (!model.ReadSDDataFromStdFile(argv[1])) {
        std::cerr << argv[1] << ": no model\n";
        return 1;
    }

    std::cout << std::fixed << std::setprecision(1)
              << "column         x         y    from z      to z  beta  section\n";
    for (const STAAD::SdBeam& member : model.beams) {
        if (model.GetBeamType(member) == STAAD::Column)
            print_column(model, member);
    }
}
