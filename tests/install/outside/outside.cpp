// A host that knows nothing but the installed headers and library. It reaches for every public part
// once: reading, queries, user tables, loads, words, findings, files, the version and the error that crosses
// the border between library and host.

#include "staad/io/read_file.h"
#include "staad/model/sd_reader.h"
#include "staad/report/read_limit.h"
#include "staad/report/read_report.h"
#include "staad/text/split_string.h"
#include "staad/version.h"

#include <filesystem>
#include <iostream>
#include <string>

namespace {

// Two columns and a beam, a brace between them, and a wall element.
constexpr const char* deck = "UNIT METER KN\n"
                             "JOINT COORDINATES\n"
                             "1 0 0 0; 2 0 3 0; 3 6 3 0; 4 6 0 0\n"
                             "MEMBER INCIDENCES\n"
                             "1 1 2; 2 2 3; 3 4 3; 4 1 3\n"
                             "ELEMENT INCIDENCES SHELL\n"
                             "5 1 4 3 2\n"
                             "START GROUP DEFINITION\n"
                             "MEMBER\n"
                             "_COLUMNS 1 3\n"
                             "END GROUP DEFINITION\n"
                             "START USER TABLE\n"
                             "TABLE 1\n"
                             "UNIT METER KN\n"
                             "WIDE FLANGE\n"
                             "H300X150\n"
                             "0.3 0.15 0.006 0.009\n"
                             "END\n"
                             "MEMBER PROPERTY\n"
                             "1 3 UPTABLE 1 H300X150\n"
                             "CONSTANTS\n"
                             "SUPPORTS\n"
                             "1 4 FIXED\n"
                             "MEMBER TRUSS\n"
                             "4\n"
                             "LOAD 1 LOADTYPE Dead  TITLE DEAD\n"
                             "MEMBER LOAD\n"
                             "2 UNI GY -5\n"
                             "9 UNI GY -5\n"
                             "FINISH\n";

void print_members(const STAAD::SdReader& model)
{
    constexpr const char* kinds[] = {"beam", "column", "brace", "horizontal brace"};
    for (const STAAD::SdBeam& member : model.beams)
        std::cout << "member " << member.id << ": " << kinds[model.GetBeamType(member)] << '\n';
}

void print_section(const STAAD::SdReader& model)
{
    const auto [family, dimensions] = model.GetSectionFromUsrTable(model.beams.front().sect_text);
    std::cout << "section of member 1:";
    for (const std::string& dimension : STAAD::SplitString(dimensions, "X"))
        std::cout << ' ' << dimension;
    std::cout << (family == STAAD::WideFlange ? ", wide flange\n" : ", not a wide flange\n");
}

void print_normal(const STAAD::SdReader& model)
{
    double nx = 0.0;
    double ny = 0.0;
    double nz = 0.0;
    model.NormalOfShell(1, nx, ny, nz);
    std::cout << "the wall " << (nx > 0.99 || nx < -0.99 ? "stands across x\n" : "is turned\n");
}

void print_limit()
{
    STAAD::SdReader model;
    try {
        model.ReadSDDataFromText("UNIT METER KN\nJOINT COORDINATES\nMEMBER INCIDENCES\n"
                                 "SUPPORTS\n1 TO 2000000000 FIXED\nFINISH\n");
        std::cout << "no limit\n";
    } catch (const STAAD::ReadLimitError& error) {
        std::cout << error.what() << '\n';
    }
}

void print_files(STAAD::SdReader& model)
{
    const std::filesystem::path missing = "no such file.std";
    std::cout << (STAAD::read_file(missing).outcome == STAAD::FileBytes::Outcome::missing ? "missing" : "there")
              << (model.ReadSDDataFromStdFile(missing) ? ", read\n" : ", not read\n");
    std::cout << (std::string(STAAD::version()) == STAADKIT_VERSION ? "headers and library agree\n"
                                                                    : "versions differ\n");
    model.Reset();
    std::cout << (model.ReadForceMomentFromTxtFile(missing) ? "forces\n" : "no forces\n");
}

} // namespace

int main()
{
    STAAD::SdReader model;
    STAAD::ReadReport report;
    if (!model.ReadSDDataFromText(deck, report))
        return 1;
    std::cout << model.nodes.size() << " joints, " << model.beams.size() << " members, " << model.shells.size()
              << " shell, " << model.groups.front().name << " has " << model.groups.front().ids.size() << '\n';
    print_members(model);
    print_section(model);
    print_normal(model);
    for (const auto& [number, definition] : model.load_defs)
        std::cout << "load " << number << ": " << definition.kind << ' ' << definition.direction << ' '
                  << definition.values.front() << " kN/mm\n";
    std::cout << "an equal load has number " << model.add_a_load(model.load_defs.at(1)) << '\n';
    for (const STAAD::Finding& finding : report.findings) {
        if (finding.severity != STAAD::Finding::Note)
            std::cout << "line " << finding.first_line << ": " << finding.code << '\n';
    }
    print_limit();
    print_files(model);
}
