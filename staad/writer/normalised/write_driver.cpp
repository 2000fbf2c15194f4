/// The changes that writing makes to a model, the order of the blocks, and writing to files and texts.
#include "staad/io/output_file.h"
#include "staad/text/text_output.h"
#include "staad/writer/normalised/written_loads.h"
#include "staad/writer/normalised/written_numbers.h"
#include "staad/writer/normalised_text.h"

namespace STAAD {
namespace detail {

/// Writes one model.
class model_writer {
public:
    template<class Path>
    static std::error_code write_file(SdReader& model, const Path& path)
    {
        take_over_written(model);
        output_file file(path);
        {
            text_output out(file);
            write_blocks(model, out);
        }
        return file.close();
    }

    static std::string write_text(SdReader& model)
    {
        take_over_written(model);
        return text_of(model);
    }

    static std::string text_of(const SdReader& model)
    {
        text_output out;
        write_blocks(model, out);
        return out.take();
    }

private:
    static void take_over_written(SdReader& model);
    static void write_blocks(const SdReader& model, text_output& out);
};

/// Changes the model to what its text will say: numbers, families of user tables, braces. The text itself does
/// not depend on it.
void model_writer::take_over_written(SdReader& model)
{
    model.reset_member_id();
    for (auto& [number, table] : model.usr_tables)
        table.SetType(static_cast<UsrDefineSectionType>(number)); // the number of a table is its family
    const std::vector<int> braces = brace_numbers(model, written_numbers(model));
    model.brace_ids = std::set<int>(braces.begin(), braces.end());
}

void model_writer::write_blocks(const SdReader& model, text_output& out)
{
    const written_numbers numbers(model);
    written_loads loads;
    model.write_std_head(out);
    model.write_std_node(out);
    model.write_std_beam(out, numbers);
    model.write_std_board(out, numbers);
    model.write_std_usrSectTable(out);
    model.write_std_group(out);
    model.write_std_thickness(out, numbers);
    model.write_std_material(out);
    model.write_std_truss(out, numbers);
    model.write_std_section(out, numbers);
    model.write_std_mat_table(out, numbers);
    model.write_std_support(out);
    model.write_std_release(out);
    model.write_std_load(out, numbers, loads);
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

std::string normalised_text(const SdReader& model)
{
    return detail::model_writer::text_of(model);
}

void SdReader::reset_member_id()
{
    const detail::written_numbers numbers(*this);
    for (SdBeam& member : beams)
        member.id = numbers.of(member);
    for (SdShell& shell : shells)
        shell.id = numbers.of(shell);
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
