/// A structure split into storeys: what a host builds from a ".std" file.
#ifndef STAAD_STOREYS_LAYERED_PROJECT_H
#define STAAD_STOREYS_LAYERED_PROJECT_H

#include "staad/export.h"
#include "staad/model/sd_reader.h"
#include "staad/model/storey_layer.h"

#include <filesystem>
#include <map>
#include <vector>

namespace STAAD {

struct ReadReport;

/// Storeys by the levels at which floors lie and columns end. A plain value.
class StaadProProject_layered {
public:
    std::vector<StoreyLayer> layers;    ///< storeys, the lowest first
    std::vector<NodeLevel> node_levels; ///< one per joint, in the order of SdReader::nodes
    std::vector<Section> sections;      ///< every distinct property text once, by `tag` from 1
    std::map<int, LoadCase> load_cases; ///< as read

    /// Reads a ".std" file and makes its storeys the content of this project.
    ///
    /// Forces:  unless `with_forces` is 0 they are read from the ".txt" file beside the model, or from
    ///          one that the user chooses in a file dialog (platform_services.h) if there is none.
    /// Levels:  whole mm. A column, its ends exactly one above the other, gives the heights of both ends;
    ///          a member whose ends have exactly the same height gives that; others give none. A member
    ///          belongs to the level of its higher end, an element to that of its highest corner; ends that
    ///          are no joints do not count, and without any the lowest level does. What lies at the lowest
    ///          of several levels, or above the last, is in no storey.
    /// Returns: true if a model was read and has a level. False leaves the project as it was, but for
    ///          `node_levels` if a model was read.
    /// Throws:  as SdReader::ReadSDDataFromStdFile; the project is then as it was.
    /// Cost:    that of reading; n log n in members, and for joints and elements a search among the levels.
    STAAD_API bool BuidFromFile(const char* path, int with_forces);
    /// The same, and reports what is worth knowing about the model's text and about the listing of forces.
    /// Both reports are emptied first; that of the forces stays empty if none were asked for.
    STAAD_API bool BuidFromFile(const char* path, int with_forces, ReadReport& of_model, ReadReport& of_forces);
    /// The same of files that need only be readable. No message box is shown of a model without members.
    STAAD_API bool BuidFromFile(const std::filesystem::path& path, int with_forces);
    STAAD_API bool BuidFromFile(const std::filesystem::path& path, int with_forces, ReadReport& of_model,
                                ReadReport& of_forces);
    /// The same from a model in memory, forces included if it has them; true if it has a level. Move a
    /// large model in.
    STAAD_API bool BuildFromModel(SdReader model);
};

} // namespace STAAD

#endif
