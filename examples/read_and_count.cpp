// Reads one .std file and counts its records.
//
//     read_and_count FILE.std

#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"

#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: read_and_count FILE.std\n";
        return 2;
    }

    STAAD::SdReader model;
    STAAD::ReadReport report;
    const bool was_read = model.ReadSDDataFromStdFile(argv[1], report);
    for (const STAAD::Finding& finding : report.findings) {
        if (finding.severity != STAAD::Finding::Note)
            std::cerr << argv[1] << ':' << finding.first_line << ": " << finding.text << '\n';
    }
    if (!was_read)
        return 1;

    // The shells end with a copy of each surface, after the elements.
    std::cout << "joints:     " << model.nodes.size() << '\n'
              << "members:    " << model.beams.size() << '\n'
              << "elements:   " << model.shells.size() - model.surfaces.size() << '\n'
              << "surfaces:   " << model.surfaces.size() << '\n'
              << "groups:     " << model.groups.size() << '\n'
              << "load cases: " << model.load_cases.size() << '\n';
    for (const auto& [description, joints] : model.supports)
        std::cout << joints.size() << " joints " << description << '\n';
}
