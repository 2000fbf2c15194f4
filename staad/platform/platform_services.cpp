#include "staad/platform/platform_services.h"

#include "staad/platform/file_access.h"

#include <atomic>

namespace STAAD {
namespace {

/// For a machine without a desktop.
class silent_services final : public PlatformServices {
public:
    Answer ShowMessage(const Message& message) override
    {
        return message.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
    std::string AskForFile(const FileQuestion&) override { return {}; }
    bool CanRead(const char* path) override { return detail::can_read(path); }
};

PlatformServices& default_services() noexcept
{
    static silent_services services;
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
