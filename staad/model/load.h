/// Load cases and load definitions.
#ifndef STAAD_MODEL_LOAD_H
#define STAAD_MODEL_LOAD_H

#include "staad/export.h"

#include <string>
#include <vector>

namespace STAAD {

/// One primary load case: a header line that begins with "LOAD".
struct LoadCase {
    enum LoadType : int { Unknown = 0, Dead = 1, Live = 2, Wind = 3, Seismic = 4 };

    int id = 0;            ///< load case number
    std::string type_text; ///< words between LOADTYPE and TITLE, single blanks
    std::string title;     ///< words after TITLE, single blanks

    LoadCase() = default;
    /// Reads "LOAD number LOADTYPE words TITLE words". A line of fewer than six words leaves the
    /// record empty, number included; a third word other than LOADTYPE leaves the texts empty.
    STAAD_API LoadCase(const std::string& line);

    /// Kind by the beginning of `type_text`, in any case: "Dead Load" is Dead, "Roof Live" Unknown.
    STAAD_API LoadType load_type() const;
};

/// One load definition as text, before its numbers are read.
struct LoadDef_raw {
    std::string text;  ///< for example "MEMBER LOAD UNI GY -5"
    int load_case = 0; ///< number of the load case it stands under
};

/// One load definition in model units and axes.
struct LoadDefination {
    std::string kind;      ///< for example "MEMBER LOAD UNI"; empty: not understood
    std::string direction; ///< direction word turned to the model's axes: file GY is model GZ
    /// kN, kN/mm, kN*mm and mm: the load first, then distances along the member.
    /// For "JOINT LOAD" always FX FY FZ MX MY MZ in the model's axes.
    std::vector<double> values;
    int load_case = 0; ///< number of the load case it belongs to

    /// Exact comparison of all four fields, no tolerance.
    STAAD_API bool operator==(const LoadDefination& other) const;
};

} // namespace STAAD

#endif
