/// The comparison with an earlier project file that asks the user first.
#include "staad/host/platform_services.h"
#include "staad/io/open_file.h"
#include "staad/model/sd_reader.h"

namespace STAAD {
namespace {

bool user_agrees()
{
    // The project data already exist. Compare, and take over the earlier data?
    const PlatformServices::Message question{{},
                                             u"\u5DE5\u7A0B\u6570\u636E\u5DF2\u5B58\u5728\uFF0C\u662F\u5426"
                                             u"\u5BF9\u6BD4\u5E76\u63D0\u53D6\u539F\u6709\u7684\u6570\u636E\uFF1F",
                                             PlatformServices::Buttons::YesNo,
                                             PlatformServices::Icon::None};
    return GetPlatformServices().ShowMessage(question) == PlatformServices::Answer::Yes;
}

/// `path` is a `const char*` or a path.
template<class Path>
void take_over_if_wanted(SdReader& model, const Path& path)
{
    SdReader earlier;
    if (user_agrees() && earlier.ReadSDDataFromStdFile(path))
        model.TakeOverFrom(earlier);
}

} // namespace

void SdReader::compWithOldProj(const char* path)
{
    if (path != nullptr && GetPlatformServices().CanRead(path))
        take_over_if_wanted(*this, path);
}

void SdReader::compWithOldProj(const std::filesystem::path& path)
{
    if (detail::can_read(path))
        take_over_if_wanted(*this, path);
}

} // namespace STAAD
