/// The offer to take definitions over from an earlier project.
#include "staad/host/platform_services.h"
#include "staad/model/sd_reader.h"

namespace STAAD {

void SdReader::compWithOldProj(const char* path)
{
    PlatformServices& services = GetPlatformServices();
    if (path == nullptr || !services.CanRead(path))
        return;
    // The project data already exist. Compare, and take over the earlier data?
    const PlatformServices::Message question{{},
                                             u"\u5DE5\u7A0B\u6570\u636E\u5DF2\u5B58\u5728\uFF0C\u662F\u5426"
                                             u"\u5BF9\u6BD4\u5E76\u63D0\u53D6\u539F\u6709\u7684\u6570\u636E\uFF1F",
                                             PlatformServices::Buttons::YesNo,
                                             PlatformServices::Icon::None};
    if (services.ShowMessage(question) != PlatformServices::Answer::Yes)
        return;
    SdReader earlier;
    if (earlier.ReadSDDataFromStdFile(path))
        TakeOverFrom(earlier);
}

} // namespace STAAD
