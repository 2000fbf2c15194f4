/// The order of the blocks, and the two places that a written model goes to.
#include "staad/io/file_access.h"
#include "staad/model/sd_reader.h"
#include "staad/text/text_output.h"
#include "staad/writer/normalised/written_loads.h"

namespace STAAD {
namespace detail {

/// Writes one model: the blocks in their order.
class model_writer {
public:
    template<class Path>
    static std::error_code write_file(SdReader& model, const Path& path)
    {
        model.reset_member_id();
        output_file file(path);
        {
            text_output out(file);
            write_blocks(model, out);
        }
        return file.close();
    }
    static std::string write_text(SdReader& model)
    {
        model.reset_member_id();
        text_output out;
        write_blocks(model, out);
        return out.take();
    }

private:
    static void write_blocks(SdReader& model, text_output& out);
};

void model_writer::write_blocks(SdReader& model, text_output& out)
{
    written_loads loads;
    model.write_std_head(out);
    model.write_std_node(out);
    model.write_std_beam(out);
    model.write_std_board(out);
    model.write_std_usrSectTable(out);
    model.write_std_group(out);
    model.write_std_thickness(out);
    model.write_std_material(out);
    model.write_std_truss(out);
    model.write_std_section(out);
    model.write_std_mat_table(out);
    model.write_std_support(out);
    model.write_std_release(out);
    model.write_std_load(out, loads);
    model.write_std_WL(out, loads);
    model.write_std_EQ(out, loads);
    out.put("FINISH");
}

} // namespace detail

void SdReader::WriteDataToFile(const char* path)
{
    detail::model_writer::write_file(*this, path);
}

bool SdReader::WriteDataToFile(const char* path, std::error_code& error)
{
    error = detail::model_writer::write_file(*this, path);
    return !error;
}

bool SdReader::WriteDataToFile(const std::filesystem::path& path, std::error_code& error)
{
    error = detail::model_writer::write_file(*this, path);
    return !error;
}

std::string SdReader::WriteDataToText()
{
    return detail::model_writer::write_text(*this);
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
