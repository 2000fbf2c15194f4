/// The services of a Windows desktop. Knows no model.
#ifndef STAAD_HOST_WINDOWS_SERVICES_H
#define STAAD_HOST_WINDOWS_SERVICES_H

#ifdef _WIN32

#    include "staad/host/platform_services.h"

namespace STAAD::detail {

/// Message boxes and file dialogs of the system, without an owner window. Without a desktop, a question is
/// answered no and a dialog cancelled.
class windows_services final : public PlatformServices {
public:
    Answer ShowMessage(const Message& message) override;
    /// Leaves the current folder as it was.
    std::string AskForFile(const FileQuestion& question) override;
    bool CanRead(const char* path) override;
};

} // namespace STAAD::detail

#endif

#endif
