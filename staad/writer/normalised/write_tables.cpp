/// User section tables.
#include "staad/model/sd_reader.h"
#include "staad/text/text_output.h"

#include <cstdint>

namespace STAAD {
namespace {

/// A key above this gets no empty tables before it: they would make a file of any size.
constexpr int last_key_with_placeholders = 10000;

} // namespace

void SdReader::write_std_usrSectTable(detail::text_output& out)
{
    if (usr_tables.empty())
        return;
    out.line("START USER TABLE");
    int next = 1;
    for (auto& [key, table] : usr_tables) {
        // Empty tables keep the numbers without a gap.
        for (; next < key && key <= last_key_with_placeholders; ++next)
            out.line("TABLE ", next);
        out.line("TABLE ", key);
        table.SetType(static_cast<UsrDefineSectionType>(key)); // the number of a table is its family
        out.line(table.type);
        for (const auto& [name, dimensions] : table.records) {
            out.line(name);
            out.line(dimensions);
        }
        if (key >= next && key <= last_key_with_placeholders)
            next = key + 1;
    }
    out.line("END");
}

} // namespace STAAD
