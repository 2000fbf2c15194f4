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

/// The storeys of a structure, divided at the levels where floors lie and columns end. A plain value.
class StaadProProject_layered {
public:
    std::vector<StoreyLayer> layers;    ///< storeys, the lowest first
    std::vector<NodeLevel> node_levels; ///< one per joint, in the order of SdReader::nodes
    std::vector<Section> sections;      ///< every distinct property text once, by `tag` from 1
    std::map<int, LoadCase> load_cases; ///< as read

    /// Reads a ".std" file and makes its storeys the content of this project.
    ///
    /// Forces:  unless `with_forces` is 0, read from the ".txt" file beside the model; if there is none, from
    ///          the file that the user chooses in a file dialog (platform_services.h).
    /// Levels:  those of storey_levels(), whole mm. A member belongs to the level of its higher end, an element
    ///          to that of its highest corner. Ends and corners without a joint are left out; a record without
    ///          any joint belongs to the lowest level. Members and elements at the lowest of several levels, or
    ///          above the last, are in no storey.
    /// Returns: true if a model was read and has a level. Otherwise the project stays as it was, except that
    ///          `node_levels` is new if a model was read.
    /// Throws:  as SdReader::ReadSDDataFromStdFile; the project then stays as it was.
    /// Cost:    that of reading, n log n in members, and a binary search of the levels for each joint.
    STAAD_API bool BuidFromFile(const char* path, int with_forces);
    /// Does the same, and reports what an engineer should know about the model's text and about the listing of
    /// forces. Both reports are emptied first; `of_forces` stays empty if `with_forces` is 0.
    STAAD_API bool BuidFromFile(const char* path, int with_forces, ReadReport& of_model, ReadReport& of_forces);
    /// Does the same with files that are opened for reading only. A model without members shows no message box.
    STAAD_API bool BuidFromFile(const std::filesystem::path& path, int with_forces);
    STAAD_API bool BuidFromFile(const std::filesystem::path& path, int with_forces, ReadReport& of_model,
                                ReadReport& of_forces);
    /// Divides a model in memory, with its `beam_forces`; true if it has a level. Move a large model in.
    STAAD_API bool BuildFromModel(SdReader model);
};

} // namespace STAAD

#endif
