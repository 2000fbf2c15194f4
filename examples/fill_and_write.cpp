// Fills a model in memory and writes it: a portal of two columns and a beam, fixed at its feet, under a
// dead load. "must": without it the written text lacks something or is wrong.
//
//     fill_and_write OUT.std      writes the file
//     fill_and_write -            prints it up to the generated wind and seismic loads, which end every file

#include "staad/model/sd_reader.h"

#include <iostream>
#include <string>
#include <system_error>

namespace {

// Lengths are mm, z is up: model (x, y, z) is the file's (Z, X, Y).
void add_joint(STAAD::SdReader& model, double x, double y, double z)
{
    STAAD::SdNode joint;
    joint.id = static_cast<int>(model.nodes.size()) + 1; // must be the position: written files number joints so
    joint.x = x;
    joint.y = y;
    joint.z = z;
    model.nodes.push_back(joint);
}

// Ends are positions of joints, from 1.
void add_member(STAAD::SdReader& model, int start, int end, const std::string& section)
{
    STAAD::SdBeam member;
    member.id = static_cast<int>(model.beams.size()) + 1; // must: as for joints
    member.node_start = start;                            // must
    member.node_end = end;                                // must
    member.sect_text = section;                           // must: "PRIS" depth X width, whole mm
    member.sect_country = "CHINESE";                      // must: the code word of its MEMBER PROPERTY block
    member.material = "CONCRETE";                         // must: STEEL, CONCRETE, C1, STAINLESSSTEEL or ALUMINUM
    model.beams.push_back(member);
    model.beam_index[member.id] = member.id; // for look-ups of members by number, and for imports of forces
}

void add_dead_load(STAAD::SdReader& model, STAAD::SdBeam& member, double kn_per_m)
{
    STAAD::LoadCase dead;
    dead.id = 1;             // must
    dead.type_text = "Dead"; // must: Dead, Live, Wind or Seismic
    model.load_cases[dead.id] = dead;

    STAAD::LoadDefination load;
    load.kind = "MEMBER LOAD UNI";                     // must
    load.direction = "GZ";                             // must: the model's axis, upward
    load.values = {-kn_per_m / 1e3};                   // must: kN/mm
    load.load_case = dead.id;                          // must
    member.int_list.push_back(model.add_a_load(load)); // must: members refer to their loads
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: fill_and_write OUT.std\n";
        return 2;
    }

    STAAD::SdReader model;
    add_joint(model, 0, 0, 0);
    add_joint(model, 0, 0, 3600);
    add_joint(model, 0, 6000, 3600);
    add_joint(model, 0, 6000, 0);
    add_member(model, 1, 2, "PRIS400X400");
    add_member(model, 2, 3, "PRIS600X300");
    add_member(model, 4, 3, "PRIS400X400");
    add_dead_load(model, model.beams[1], 12.0);
    model.supports["FIXED"] = {1, 4}; // joint numbers

    if (std::string(argv[1]) == "-") {
        const std::string text = model.WriteDataToText();
        std::cout << text.substr(0, text.find("DEFINE WIND LOAD"));
        return 0;
    }
    std::error_code error;
    if (!model.WriteDataToFile(argv[1], error)) {
        std::cerr << argv[1] << ": " << error.message() << '\n';
        return 1;
    }
}
