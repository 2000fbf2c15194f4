/// The steps of SdReader that hosts do not call, for tests that check them one by one.
#ifndef STAAD_TESTS_SUPPORT_SD_READER_ACCESS_H
#define STAAD_TESTS_SUPPORT_SD_READER_ACCESS_H

#include "staad/model/sd_reader.h"
#include "staad/reader/reading.h"
#include "staad/text/lines.h"

#include <string>
#include <vector>

namespace STAAD::detail {

struct sd_reader_access {
    static line_list get_all_lines_from_file(SdReader& model, const char* path, const std::string& skip_prefix)
    {
        reading context(nullptr);
        return model.get_all_lines_from_file(path, skip_prefix, context);
    }
    static std::vector<unsigned> extract_id_from_items(SdReader& model, const std::vector<std::string>& tokens,
                                                       unsigned start)
    {
        return model.extract_id_from_items(tokens, start);
    }
    static std::vector<unsigned> extract_id_from_line(SdReader& model, const std::string& line)
    {
        return model.extract_id_from_line(line);
    }
    static void unify_staadpro_unit(SdReader& model) { model.unify_staadpro_unit(); }
    static bool IsColumn(const SdReader& model, const SdBeam& member) { return model.IsColumn(member); }
    static bool IsBrace(const SdReader& model, const SdBeam& member) { return model.IsBrace(member); }
    static bool IsHBrace(const SdReader& model, const SdBeam& member) { return model.IsHBrace(member); }
    static void reset_member_id(SdReader& model) { model.reset_member_id(); }
    static std::string ConvertSectionParamByUnit(const SdReader& model, const std::string& text)
    {
        return model.ConvertSectionParamByUnit(text);
    }
    static LoadDefination get_load_defnination_from_string(SdReader& model, const LoadDef_raw& raw)
    {
        return model.get_load_defnination_from_string(raw);
    }
};

} // namespace STAAD::detail

#endif
