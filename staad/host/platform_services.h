/// What the library needs of the desktop: a message box, a file dialog, a test whether a file can be read.
#ifndef STAAD_HOST_PLATFORM_SERVICES_H
#define STAAD_HOST_PLATFORM_SERVICES_H

#include "staad/export.h"

#include <string>

namespace STAAD {

/// Modal services, called on the thread of the operation that needs them. A host may replace the default ones.
class STAAD_API PlatformServices {
public:
    enum class Buttons { Ok, YesNo };
    enum class Icon { None, Exclamation };
    enum class Answer { Ok, Yes, No };

    /// A message box without an owner window. Texts are UTF-16.
    struct Message {
        std::u16string caption; ///< may be empty, and is then shown empty
        std::u16string text;
        Buttons buttons = Buttons::Ok;
        Icon icon = Icon::None;
    };

    /// An open-file dialog without default extension or initial name.
    struct FileQuestion {
        /// Pairs of description and pattern, each ended by "|", one more "|" at the end.
        std::u16string filter;
        /// The Windows OFN_ flags.
        unsigned flags = 0;
    };

    virtual ~PlatformServices();

    /// Shows the message until it is answered; Ok if it has one button only.
    virtual Answer ShowMessage(const Message& message) = 0;
    /// Path of the file chosen, in the encoding that narrow paths have on the platform; empty if the
    /// dialog was cancelled.
    virtual std::string AskForFile(const FileQuestion& question) = 0;
    /// Whether a file of that name is there and may be read.
    virtual bool CanRead(const char* path) = 0;

protected:
    PlatformServices() = default;
    PlatformServices(const PlatformServices&) = default;
    PlatformServices& operator=(const PlatformServices&) = default;
};

/// Replaces the services in use, for the whole process; null restores the default ones. The caller keeps
/// ownership, and keeps the object alive while any operation may use it. Safe in any thread.
STAAD_API void SetPlatformServices(PlatformServices* services) noexcept;

/// The services in use. The default ones are those of the desktop on Windows. Elsewhere they show nothing: a
/// message is closed at once, a question answered no, a dialog cancelled; CanRead works everywhere.
STAAD_API PlatformServices& GetPlatformServices() noexcept;

} // namespace STAAD

#endif
