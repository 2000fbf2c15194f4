/// Any text as a parameter file of the tool: it is refused with a reason, or gives a record that can be written.

#include "fuzz/fuzz_target.h"
#include "staad/model/sd_reader.h"
#include "tests/support/model_equal.h"
#include "tools/staadkit/cli/text_encoding.h"
#include "tools/staadkit/convert/parameter_file.h"

namespace {

using STAAD::ReadReport;
using STAAD::SdReader;

void check_findings(const ReadReport& report)
{
    for (const STAAD::Finding& finding : report.findings) {
        fuzz::require(!finding.text.empty() && finding.first_line == finding.last_line, "a finding says something",
                      finding.code);
        fuzz::require(tool::is_utf8(finding.text), "a finding is UTF-8", finding.text);
    }
}

/// Reads the text as the record that `field` points to, and writes a model that has it.
template<class Record>
void read_and_write(const std::string& text, Record SdReader::*field)
{
    SdReader model;
    const ReadReport report = tool::parameters_of_text(text, model.*field);
    check_findings(report);
    if (report.worst() == STAAD::Finding::Error)
        return;
    Record again;
    tool::parameters_of_text(text, again);
    fuzz::require_none(STAAD::record_differences(model.*field, again), "a text gives one record");
    fuzz::require(!model.WriteDataToText().empty(), "a record is written");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(fuzz::text_of(data, size));
    read_and_write(text, &SdReader::wl_param);
    read_and_write(text, &SdReader::eq_param);
    return 0;
}
