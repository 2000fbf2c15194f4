/// The import of a listing, and its outcome. Shows no messages.
#ifndef STAAD_FORCES_IMPORT_FORCES_H
#define STAAD_FORCES_IMPORT_FORCES_H

#include <filesystem>
#include <string_view>

namespace STAAD {

class SdReader;

namespace detail {

class finding_sink;

enum class import_outcome {
    read,
    no_members, ///< of the model, which stays as it is; with any other outcome `beam_forces` is new
    no_file,
    no_title,
    no_forces ///< there are sections, but no load case of a member that the model has
};

/// Makes the forces of `listing` the content of `model.beam_forces`; see SdReader::ReadForceMomentFromTxtFile.
import_outcome import_forces(SdReader& model, std::string_view listing, finding_sink& findings);

/// Imports from a file that is opened for reading and writing; null is no file.
import_outcome import_updatable_file(SdReader& model, const char* path, finding_sink& findings);

/// Imports from a file that is opened for reading only.
import_outcome import_file(SdReader& model, const std::filesystem::path& path, finding_sink& findings);

} // namespace detail
} // namespace STAAD

#endif
