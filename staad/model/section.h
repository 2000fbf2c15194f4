/// Sections and user section tables.
#ifndef STAAD_MODEL_SECTION_H
#define STAAD_MODEL_SECTION_H

#include "staad/export.h"

#include <map>
#include <string>

namespace STAAD {

/// Family of a user section table.
enum UsrDefineSectionType : int {
    UnknownSection = 0, ///< a result only: the table's family word is none of those below
    WideFlange = 1,     ///< "WIDE FLANGE"
    Channel = 2,        ///< "CHANNEL"
    Angle = 3,          ///< "ANGLE"
    DoubleAngle = 4,    ///< "DOUBLE ANGLE"
    Tee = 5,            ///< "TEE"
    Pipe = 6,           ///< "PIPE"
    Tube = 7,           ///< "TUBE"
    General = 8,        ///< "GENERAL"
    ISection = 9,       ///< "ISECTION"
    Prismatic = 10      ///< "PRISMATIC"
};

/// One distinct member property. Equality and order look at `property` alone, so that an ordered container of
/// sections holds each property text once, even if members of several materials have it.
struct Section {
    int tag = 0;          ///< free for the host; takes no part in comparison
    std::string type;     ///< "ST", "TAPERED", "PRIS" or empty, by the beginning of `property`
    std::string material; ///< material name of the members that carry the section
    std::string property; ///< property text, ASCII letters in upper case

    Section() = default;
    /// Upper-cases `property_text` (ASCII letters only; other bytes, GBK among them, pass unchanged)
    /// and derives `type` from it.
    STAAD_API Section(std::string material_name, std::string property_text);

    STAAD_API bool operator==(const Section& other) const;
    /// Byte-wise order of the property texts.
    STAAD_API bool operator<(const Section& other) const;
};

/// One table of a START USER TABLE block.
struct SdUserSectionTable {
    std::string type;                   ///< family word, for example "WIDE FLANGE"
    std::string unit = "UNIT METER KN"; ///< the table's own UNIT line; look-ups do not use it
    /// Row name to the line after it. Every line is a name, dimension lines too.
    std::map<std::string, std::string> records;

    /// Sets or replaces the row `name`.
    STAAD_API void AddRecord(const std::string& name, const std::string& dimensions);
    /// Sets `type` to the family word of `family`; any value outside 1 to 10 changes nothing.
    STAAD_API void SetType(UsrDefineSectionType family);
};

} // namespace STAAD

#endif
