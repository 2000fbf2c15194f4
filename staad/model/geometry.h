/// Joints, members, shell elements and surfaces.
///
/// Frame: the file is Y-up, the model Z-up. File (X, Y, Z) is model (y, z, x), so that `x` holds the
/// file's Z, `y` the file's X and `z`, the vertical, the file's Y.
#ifndef STAAD_MODEL_GEOMETRY_H
#define STAAD_MODEL_GEOMETRY_H

#include "staad/export.h"

#include <string>
#include <vector>

namespace STAAD {

/// One joint.
struct SdNode {
    int id = 0;     ///< joint number of the file
    double x = 0.0; ///< mm, the file's Z
    double y = 0.0; ///< mm, the file's X
    double z = 0.0; ///< mm, the file's Y: the height
    /// Numbers in SdReader::load_defs of the joint loads that act here, in reading order.
    std::vector<int> extra_ids;

    SdNode() = default;
    /// Reads "number X Y Z" in file order and file units, without the ";".
    /// A missing or unreadable number is 0; words after the fourth are ignored.
    STAAD_API SdNode(const std::string& item);
};

/// Three lengths in the model frame, mm.
struct SdOffset {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/// One member.
struct SdBeam {
    int id = 0;            ///< member number of the file
    int node_start = 0;    ///< 1-based position in SdReader::nodes; 0: no such joint
    int node_end = 0;      ///< 1-based position in SdReader::nodes; 0: no such joint
    SdOffset offset_start; ///< offset of the start end, mm, model frame
    SdOffset offset_end;   ///< offset of the end end, mm, model frame
    /// Kind in the numbering of BeamType. Reading leaves 0: a host that wants its braces written as
    /// truss members sets it, for instance from SdReader::GetBeamType.
    int kind_code = 0;
    double beta = 0.0; ///< beta angle as written, degrees
    /// Numbers in SdReader::load_defs of the loads that act here, in reading order, repeats kept.
    std::vector<int> int_list;
    std::string material;     ///< material name
    std::string sect_text;    ///< section, normalised, dimensions in whole mm
    std::string sect_country; ///< code word of the MEMBER PROPERTY line; empty if it has none
    std::string sect_extra;   ///< free for the host; reading leaves it empty
    std::string sect_name;    ///< section as the file has it, from its keyword to the end of the line

    SdBeam() = default;
    /// Reads "number start end", the ends still as joint numbers of the file.
    /// A missing or unreadable number is 0; words after the third are ignored.
    STAAD_API SdBeam(const std::string& item);
};

/// One surface: a wall or slab that the analysis meshes itself.
struct SdSurface {
    int id = 0;                ///< surface number of the file
    std::vector<int> node_ids; ///< corners as joint numbers of the file, in the order written
    int thickness = 0;         ///< whole mm, truncated toward zero
    std::string material;      ///< material name, "CONCRETE" after reading

    SdSurface() = default;
    /// Reads "corner corner ... WORD number"; the word is not checked.
    /// Fewer than four words: number 0 and no corners.
    STAAD_API SdSurface(const std::string& item);
};

/// One shell element, or the copy of a surface among the shells.
struct SdShell {
    int id = 0;                ///< element number of the file
    std::vector<int> node_ids; ///< corners as 1-based positions in SdReader::nodes; 0: no such joint
    int thickness = 0;         ///< whole mm, truncated toward zero
    std::string material;      ///< material name, "C1" unless the file names one

    SdShell() = default;
    /// Reads "number corner corner ...", the corners still as joint numbers of the file.
    STAAD_API SdShell(const std::string& item);
    /// Copies field by field; the corners stay joint numbers of the file.
    STAAD_API SdShell(const SdSurface& surface);
};

} // namespace STAAD

#endif
