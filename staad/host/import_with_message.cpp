/// The imports of forces that show a message box.
#include "staad/forces/import_forces.h"
#include "staad/host/platform_services.h"
#include "staad/model/sd_reader.h"
#include "staad/report/finding_sink.h"

namespace STAAD {
namespace {

using detail::finding_sink;
using detail::import_outcome;

/// Shows a message if the model has no members. True if forces were read.
bool shown(import_outcome outcome)
{
    if (outcome == import_outcome::no_members)
        GetPlatformServices().ShowMessage(
            {u"Error--Velkor\u8F6F\u4EF6", // "... software"
                                           // No model has been read! Read the model, then the forces.
             u"\u6CA1\u6709\u8BFB\u53D6\u5DE5\u7A0B\u4FE1\u606F! "
             u"\u8BFB\u53D6\u5DE5\u7A0B\u4FE1\u606F\u540E\u518D\u6765"
             u"\u8BFB\u53D6\u5185\u529B\u4FE1\u606F.",
             PlatformServices::Buttons::Ok, PlatformServices::Icon::Exclamation});
    return outcome == import_outcome::read;
}

} // namespace

void SdReader::ReadForceMomentFromTxtFile(const char* path)
{
    finding_sink findings(nullptr);
    shown(import_updatable_file(*this, path, findings));
}

void SdReader::ReadForceMomentFromTxtFile(const char* path, ReadReport& report)
{
    finding_sink findings(&report);
    shown(import_updatable_file(*this, path, findings));
}

bool SdReader::ReadForceMomentFromText(std::string_view text)
{
    finding_sink findings(nullptr);
    return shown(import_forces(*this, text, findings));
}

bool SdReader::ReadForceMomentFromText(std::string_view text, ReadReport& report)
{
    finding_sink findings(&report);
    return shown(import_forces(*this, text, findings));
}

} // namespace STAAD
