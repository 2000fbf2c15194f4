/// The import of a listing, and what came of it. Shows no messages.
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
    no_members, ///< of the model, which stays as it is; after all others `beam_forces` is new
    no_file,
    no_title,
    no_forces ///< there are sections, but no load case of a member that the model has
};

/// Makes the forces of `listing` the content of `model.beam_forces`; see SdReader::ReadForceMomentFromTxtFile.
import_outcome import_forces(SdReader& model, std::string_view listing, finding_sink& findings);

/// The same of a file that is opened for reading and writing, null being no file.
import_outcome import_updatable_file(SdReader& model, const char* path, finding_sink& findings);

/// The same of a file that is opened for reading.
import_outcome import_file(SdReader& model, const std::filesystem::path& path, finding_sink& findings);

} // namespace detail
} // namespace STAAD

#endif
