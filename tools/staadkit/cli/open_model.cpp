#include "cli/open_model.h"

#include "cli/progress_line.h"
#include "cli/read_stream.h"
#include "staad/report/read_limit.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>
#include <utility>

#ifdef _WIN32
#    include <fcntl.h> // _O_BINARY
#    include <io.h>    // _setmode
#endif

namespace tool {
namespace {

using STAAD::Finding;

void add_error(STAAD::ReadReport& report, std::string code, std::size_t line, std::string text)
{
    Finding finding;
    finding.severity = Finding::Error;
    finding.code = std::move(code);
    finding.first_line = line;
    finding.last_line = line;
    finding.text = std::move(text);
    report.findings.push_back(std::move(finding));
}

/// All of standard input, byte by byte as it comes; false if it cannot be read.
bool read_standard_input(std::string& text)
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
#endif
    return read_to_end(stdin, text);
}

bool read_model(const std::string& path, opened_model& opened)
{
    if (path != "-")
        return opened.model.ReadSDDataFromStdFile(path.c_str(), opened.report);
    std::string text;
    if (read_standard_input(text))
        return opened.model.ReadSDDataFromText(text, opened.report);
    add_error(opened.report, "file-unreadable", 0, std::strerror(errno));
    return false;
}

void read_forces(const std::string& path, STAAD::SdReader& model, STAAD::ReadReport& report)
{
    if (path != "-") {
        const progress_line shown(path);
        return model.ReadForceMomentFromTxtFile(path.c_str(), report);
    }
    std::string text;
    if (read_standard_input(text))
        return model.ReadForceMomentFromText(text, report);
    add_error(report, "file-unreadable", 0, std::strerror(errno));
}

void fail_for_memory(opened_model& opened, const char* text)
{
    opened.model = {};
    opened.was_read = false;
    add_error(opened.report, "memory", 0, text);
}

} // namespace

opened_model open_model(const std::string& path)
{
    opened_model opened;
    opened.name = input_name(path);
    try {
        opened.was_read = read_model(path, opened);
        if (!opened.was_read && opened.report.worst() != Finding::Error)
            add_error(opened.report, "no-model", 0, "the input holds no model");
    } catch (const STAAD::ReadLimitError& error) {
        opened.model = {}; // what was read by then may fill the memory
        add_error(opened.report, "limit", error.first_line(), error.text());
    } catch (const std::bad_alloc&) {
        fail_for_memory(opened, "not enough memory to read it");
    }
    return opened;
}

opened_forces open_forces(const std::string& path, STAAD::SdReader& model)
{
    opened_forces opened;
    opened.name = input_name(path);
    try {
        read_forces(path, model, opened.report);
    } catch (const std::bad_alloc&) {
        model.beam_forces.clear();
        add_error(opened.report, "memory", 0, "not enough memory to read it");
    }
    opened.was_read = opened.report.worst() != Finding::Error;
    return opened;
}

void give_up_for_memory(opened_model& opened)
{
    fail_for_memory(opened, "not enough memory to tell what it holds");
}

std::string input_name(const std::string& path)
{
    return path == "-" ? "<stdin>" : path;
}

std::string first_error(const STAAD::ReadReport& report)
{
    for (const Finding& finding : report.findings) {
        if (finding.severity == Finding::Error)
            return finding.text;
    }
    return {};
}

} // namespace tool
