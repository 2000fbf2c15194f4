#include "staad/host/platform_services.h"

#include <atomic>

#ifdef _WIN32
#    include "staad/host/windows_services.h"
#else
#    include "staad/io/open_file.h"
#endif

namespace STAAD {
namespace {

#ifdef _WIN32
using default_services_type = detail::windows_services;
#else
/// Shows nothing; for a machine without a desktop.
class silent_services final : public PlatformServices {
public:
    Answer ShowMessage(const Message& message) override
    {
        return message.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
    std::string AskForFile(const FileQuestion&) override { return {}; }
    bool CanRead(const char* path) override { return detail::can_read(path); }
};
using default_services_type = silent_services;
#endif

PlatformServices& default_services() noexcept
{
    static default_services_type services;
    return services;
}

std::atomic<PlatformServices*> services_in_use{nullptr};

} // namespace

PlatformServices::~PlatformServices() = default;

void SetPlatformServices(PlatformServices* services) noexcept
{
    services_in_use.store(services);
}

PlatformServices& GetPlatformServices() noexcept
{
    PlatformServices* const chosen = services_in_use.load();
    return chosen != nullptr ? *chosen : default_services();
}

} // namespace STAAD
