/// The order of the blocks, and the two places that a written model goes to.
#include "staad/io/file_access.h"
#include "staad/model/sd_reader.h"
#include "staad/text/text_output.h"
#include "staad/writer/normalised/written_loads.h"

namespace STAAD {

void SdReader::WriteDataToFile(const char* path)
{
    std::error_code unused;
    WriteDataToFile(path, unused);
}

bool SdReader::WriteDataToFile(const char* path, std::error_code& error)
{
    reset_member_id();
    detail::output_file file(path);
    {
        detail::text_output out(file);
        write_blocks(out);
    }
    error = file.close();
    return !error;
}

std::string SdReader::WriteDataToText()
{
    reset_member_id();
    detail::text_output out;
    write_blocks(out);
    return out.take();
}

void SdReader::write_blocks(detail::text_output& out)
{
    detail::written_loads loads;
    write_std_head(out);
    write_std_node(out);
    write_std_beam(out);
    write_std_board(out);
    write_std_usrSectTable(out);
    write_std_group(out);
    write_std_thickness(out);
    write_std_material(out);
    write_std_truss(out);
    write_std_section(out);
    write_std_mat_table(out);
    write_std_support(out);
    write_std_release(out);
    write_std_load(out, loads);
    write_std_WL(out, loads);
    write_std_EQ(out, loads);
    out.put("FINISH");
}

void SdReader::write_std_head(detail::text_output& out) const
{
    out.put("STAAD SPACE\n"
            "START JOB INFORMATION\n"
            "ENGINEER DATE 04-Jun-14\n"
            "END JOB INFORMATION\n"
            "INPUT WIDTH 79\n"
            "UNIT METER KN\n");
}

} // namespace STAAD
