/// Beam internal forces as the analysis printed them.
///
/// Columns stay in the order of the listing: no axis turn is applied to them.
#ifndef STAAD_MODEL_FORCE_H
#define STAAD_MODEL_FORCE_H

#include "staad/export.h"
#include "staad/model/load.h"

#include <map>
#include <vector>

namespace STAAD {

/// Forces and moments at one station of a member.
struct ForcePoint {
    double position = 0.0; ///< mm from the member's start
    double f1 = 0.0;       ///< kN, first force column
    double f2 = 0.0;       ///< kN, second force column
    double f3 = 0.0;       ///< kN, third force column
    double m1 = 0.0;       ///< kN*mm, first moment column
    double m2 = 0.0;       ///< kN*mm, second moment column
    double m3 = 0.0;       ///< kN*mm, third moment column
};

/// Forces of one member under one load case.
struct BeamLoadCaseRecord {
    int load_case = 0;                   ///< load case number as printed
    std::vector<ForcePoint> points;      ///< stations as printed
    std::vector<ForcePoint> pkpm_points; ///< nine stations, filled by sort_pkpm_format()

    /// Sorts `points` by position, drops all but the first of stations closer than 0.0001 mm, and
    /// fills `pkpm_points` with nine stations: nine points are copied; from any other number come the first,
    /// seven at eighths of the last position (linear between neighbours) and the last. Fewer than two points
    /// leave `pkpm_points` as it was. Cost: n log n for n points.
    STAAD_API void sort_pkpm_format();
};

/// One station of the list that the downstream design program takes: a point for each kind of load, all zeros
/// for a kind without a case.
struct BeamLoadList {
    ForcePoint dead;
    ForcePoint live;
    ForcePoint wind;
    ForcePoint seismic;
};

/// Forces of one member under every load case of the listing.
struct BeamForceAndMOM {
    int beam = 0;                              ///< 1-based position in SdReader::beams
    std::map<int, BeamLoadCaseRecord> records; ///< by load case number

    /// Stores `record`, or appends its `points` to the record of the same load case.
    STAAD_API void add_loadCase_record(const BeamLoadCaseRecord& record);
    /// Adds every record of `other` if it is of the same member; else does nothing.
    STAAD_API void merge(const BeamForceAndMOM& other);
    /// Resamples every record.
    STAAD_API void sort_pkpm_format();

    /// The list that the downstream design program takes: station i has the i-th `pkpm_points` of the
    /// dead, live, wind and seismic load case. Of several cases of one kind the one with the highest number is
    /// taken; values are not added up. Empty if no record has both a kind and stations.
    STAAD_API std::vector<BeamLoadList> get_pkpm_load_on_section(const std::map<int, LoadCase>& load_cases) const;
};

} // namespace STAAD

#endif
