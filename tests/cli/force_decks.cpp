#include "force_decks.h"

#include <utility>

namespace cli_test {

std::string force_model()
{
    return "STAAD SPACE\n"
           "UNIT METER KN\n"
           "JOINT COORDINATES\n"
           "1 0 0 0; 2 0 4 0; 3 6 4 0; 4 6 0 0;\n"
           "MEMBER INCIDENCES\n"
           "11 1 2; 12 2 3; 13 3 4;\n"
           "LOAD 1 LOADTYPE Dead TITLE SELF WEIGHT\n"
           "LOAD 2 LOADTYPE Live TITLE CROWD\n"
           "LOAD 3 LOADTYPE Dead TITLE FINISHES\n"
           "LOAD 4 LOADTYPE Wind TITLE WIND +X\n"
           "LOAD 5 CRANE\n"
           "LOAD 6 LOADTYPE Temperature TITLE HOT\n"
           "FINISH\n";
}

std::string force_section(const std::vector<std::string>& data, std::string_view units)
{
    // Details of beam internal forces, in GBK.
    std::string text = "\xC1\xBA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2\n"
                       "--------\n"
                       " member case position\n"
                       " of the frame\n ";
    text.append(units).append("\n");
    for (const std::string& line : data)
        text += ' ' + line + '\n';
    return text + '\n';
}

std::string force_listing()
{
    return force_section({
        "12 1:SELF WEIGHT 0 1 2 3 4 5 6",
        "6 -1 -2 -3 -4 -5 -6",
        "2:CROWD 0 10 20 30 0 0 0",
        "6 10 -20 30 0 0 0",
        "3:FINISHES 0 0.5 0 0 0 0 -0.25",
        "6 0.5 0 0 0 0 0.25",
        "9:COMBINATION 0 100 0 0 0 0 0",
        "6 100 0 0 0 0 0",
        "11 1:SELF WEIGHT 0 -7 0 0 0 0 0",
        "4 -7.5 0 0 0 0 1.5",
        "4:WIND +X 0 0 0 0 0 0 2",
        "4 0 0 0 0 0 -2",
        "77 1:SELF WEIGHT 0 9 9 9 9 9 9",
        "1 9 9 9 9 9 9",
        "13 1:SELF WEIGHT 0 3 0 0 0 0 0",
        "4 2 0 0 0 0 0",
        "2:CROWD 0 8 0 0 0 0 0",
        "4 8 0 0 0 0 0",
    });
}

force_files::force_files(const std::string& listing_text, const std::string& model_text)
    : model(tool.write("frame.std", model_text)), listing(tool.write("frame.txt", listing_text))
{
}

tool_result force_files::operator()(std::vector<std::string> options) const
{
    return tool(call(std::move(options)));
}

std::vector<std::string> force_files::call(std::vector<std::string> options) const
{
    options.insert(options.begin(), {"forces", model, listing});
    return options;
}

} // namespace cli_test
