/// The model container: everything that one ".std" file says, in one unit system and one frame.
///
/// Units: mm, kN, kN*mm. Frame: z is up; see geometry.h for the turn from the file's axes.
#ifndef STAAD_MODEL_SD_READER_H
#define STAAD_MODEL_SD_READER_H

#include "staad/export.h"
#include "staad/model/force.h"
#include "staad/model/geometry.h"
#include "staad/model/group.h"
#include "staad/model/load.h"
#include "staad/model/old_proj_maps.h"
#include "staad/model/parameters.h"
#include "staad/model/section.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace STAAD {

struct ReadReport;

namespace detail {
class force_import;
class line_list;
class model_reader;
class model_writer;
class reading;
class text_output;
class written_numbers;
struct sd_reader_access;
struct written_loads;
} // namespace detail

/// What a member is, by its declaration and its geometry.
enum BeamType : int {
    Beam = 0,           ///< none of the others
    Column = 1,         ///< vertical
    Brace = 2,          ///< declared as truss, compression-only or tension-only member
    HorizontalBrace = 3 ///< declared so, and level
};

/// One structural model, and the operations on it.
///
/// A plain value: copies share nothing, a moved-from model has empty containers. It has no lock;
/// different objects may be used in different threads at the same time.
///
/// Names of files: a `const char*` is what the C library opens, on Windows a name in the ANSI code page,
/// and is refused unless the file can be opened for reading and writing, although nothing is written to
/// it. A `std::filesystem::path` is opened for reading alone: write-protected files, devices and pipes
/// are read, and on Windows it holds every name. A string literal or null is a `const char*`; any other
/// text, a `std::string` among them, becomes a path as the standard library has it.
class SdReader {
public:
    /// Density of the isotropic concrete: 23.5615 kN/m3, or a number of the file as written there.
    double concrete_density = 23.5615;
    WindLoadParam wl_param;                                ///< for the generated wind loads
    SeismicParam eq_param;                                 ///< for the generated seismic loads
    std::vector<SdNode> nodes;                             ///< joints in the order read
    std::vector<SdBeam> beams;                             ///< members in the order read
    std::vector<SdShell> shells;                           ///< elements in the order read, then a copy of each surface
    std::vector<SdSurface> surfaces;                       ///< surfaces in the order read
    std::vector<SdGroup> groups;                           ///< groups in the order read
    std::map<std::string, std::vector<unsigned>> supports; ///< description to joint numbers
    std::map<std::string, std::vector<unsigned>> releases; ///< description to member numbers
    std::map<int, LoadCase> load_cases;                    ///< by load case number
    std::map<int, LoadDefination> load_defs;               ///< by definition number, as in raw_load_defs
    std::map<int, SdUserSectionTable> usr_tables;          ///< by table number
    std::map<int, BeamForceAndMOM> beam_forces;            ///< by 1-based position in `beams`
    std::map<int, LoadDef_raw> raw_load_defs;              ///< definition texts, numbered from 1
    /// Joint number to 1-based position in `nodes`: the last joint of that number. Numbers that
    /// members or elements name and the file does not define stand here with 0.
    std::map<int, int> node_index;
    std::map<int, int> beam_index; ///< member number to 1-based position in `beams`, the last of that number
    /// Element number to 1-based position in `shells`, the last of that number; 0 for numbers that
    /// thickness or material lines name and the file does not define. Surfaces are not in it.
    std::map<int, int> shell_index;
    std::map<int, int> surface_index; ///< surface number to 1-based position in `surfaces`
    std::string unit_text;            ///< the UNIT line that governs the file
    double length_factor = 1.0;       ///< mm per length unit of the file
    double force_factor = 1.0;        ///< kN per force unit of the file
    double force_length_factor = 1.0; ///< kN*mm per moment unit of the file
    OldProjMaps old_proj_maps;        ///< filled by the comparison with an earlier project
    std::set<int> brace_ids;          ///< numbers of truss, compression-only and tension-only members

    /// Empties joints, members, shells, load cases and definitions, user tables, beam forces and the
    /// joint, member and element indexes. Everything else stays: surfaces, groups, supports,
    /// releases, `surface_index`, `unit_text`, factors, `old_proj_maps`, `brace_ids`, density and
    /// the parameter blocks.
    STAAD_API void init();
    /// Empties everything, also what init() leaves: the model is as a new one.
    STAAD_API void Reset();

    /// Reads one ".std" file and makes it the content of this model.
    ///
    /// Replaces: what init() empties; what init() leaves is added to or replaced by what the file has.
    /// Units:    afterwards lengths are mm, forces kN, moments kN*mm. A unit word that the tables do
    ///           not know leaves its factor at 1. Only the first UNIT line counts.
    /// Numbers:  joint references in members and shells become 1-based positions in `nodes`;
    ///           0 stands for a joint that the file does not define.
    /// Tolerant: unknown commands are skipped and unreadable numbers count as 0.
    /// Returns:  true if a model was read. False if `path` is null, if the file cannot be opened for
    ///           reading and writing, has no UNIT line with a line after it, no JOINT COORDINATES line
    ///           after that, or no MEMBER INCIDENCES line after the joints; what was read by then stays
    ///           in the model.
    /// Throws:   ReadLimitError, a std::bad_alloc, if lists, or long texts that go to many records, grow
    ///           past the limits of a reading (see reader/read_limit.h); other std::bad_alloc pass
    ///           through. The model may then be incomplete and can be read into again.
    /// Cost:     the text is held in memory once; time grows linearly with its length and with the
    ///           numbers that its stored lists and the references to its loads come to.
    STAAD_API bool ReadSDDataFromStdFile(const char* path);
    /// The same, and reports what is worth knowing about the text. The model is the same either way. The
    /// report is emptied first; after an exception it holds what was found by then.
    STAAD_API bool ReadSDDataFromStdFile(const char* path, ReadReport& report);
    /// The same of a file that need only be readable.
    STAAD_API bool ReadSDDataFromStdFile(const std::filesystem::path& path);
    STAAD_API bool ReadSDDataFromStdFile(const std::filesystem::path& path, ReadReport& report);
    /// Reads the text of a ".std" file from memory; everything else as ReadSDDataFromStdFile.
    STAAD_API bool ReadSDDataFromText(std::string_view text);
    STAAD_API bool ReadSDDataFromText(std::string_view text, ReadReport& report);

    /// Writes the model as normalised ".std", replacing a file of that name; reports nothing.
    ///
    /// Text:     lengths in metres, Y up, lines of at most 79 characters. Joints are numbered by their
    ///           position; load directions and values, and the numbers in groups, supports and releases,
    ///           are written as the model holds them. The wind and seismic loads of `wl_param` and
    ///           `eq_param` follow the load cases. Offsets, and loads on joints, areas, floors and by
    ///           self weight, are not written.
    /// Changes:  before anything is written, and also where `path` cannot be opened: members become
    ///           numbers 1 to M in list order, shells M + 1 and on; `brace_ids` becomes the members whose
    ///           `kind_code` is Brace or HorizontalBrace; the user tables with keys 1 to 10 get the
    ///           family word of their key. normalised_text() gives the text without these changes.
    /// Threads:  different models may be written at the same time.
    /// Throws:   std::bad_alloc; what was written by then stays in the file.
    /// Cost:     linear in the model, beside the sorting of distinct texts and of unsorted lists.
    STAAD_API void WriteDataToFile(const char* path);
    /// The same, and reports how it went: true if every byte was written; else `error` is the first
    /// failure of the system. A null path is std::errc::invalid_argument.
    STAAD_API bool WriteDataToFile(const char* path, std::error_code& error);
    STAAD_API bool WriteDataToFile(const std::filesystem::path& path, std::error_code& error);
    /// The same text in memory, lines ended by a line feed on every platform. Cost: as above, and room
    /// for the text once more.
    STAAD_API std::string WriteDataToText();

    /// Adds the members that "MEMBER TRUSS", "MEMBER COMPRESSION" and "MEMBER TENSION" lines declare
    /// to `brace_ids`. `lines` are logical lines; the one line after each keyword is its list.
    /// Throws ReadLimitError as ReadSDDataFromStdFile does.
    STAAD_API void ReadBrace(const std::vector<std::string>& lines);

    /// Number in `load_defs` of a definition equal to `def`; added under the next number if there
    /// is none. Cost: linear in `load_defs`.
    STAAD_API int add_a_load(const LoadDefination& def);

    /// Family and dimensions of an "UPTABLE table row" text: whole mm joined by "X". An unknown
    /// table gives (UnknownSection, ""), an unknown row an empty dimension text.
    /// Throws std::out_of_range if the row is blank.
    STAAD_API std::pair<UsrDefineSectionType, std::string> GetSectionFromUsrTable(const std::string& text) const;

    /// Reads the beam forces that the analysis printed, and makes them the content of `beam_forces`,
    /// each load case resampled at nine stations.
    ///
    /// Listing:  sections under a Chinese title line, in GBK or UTF-8, each with its own units; see
    ///           docs/forces.md. Members are found by their number in `beam_index`; those that the
    ///           model does not have are skipped. The last load case of a section's last member is
    ///           left out.
    /// Units:    afterwards positions are mm, forces kN, moments kN*mm. `unit_text` and the factors
    ///           become those of the last section: ask for sections of user tables before.
    /// Messages: a model without members shows a message box (platform_services.h) and changes nothing.
    /// Tolerant: a file that cannot be opened for reading and writing, or has no title, empties
    ///           `beam_forces`; a null path as well.
    /// Throws:   std::bad_alloc; `beam_forces` then has the members read by then, and `unit_text` and the
    ///           factors are as they were.
    /// Cost:     the text is held in memory once; two walks over it, and n log n in the stations of a
    ///           record.
    STAAD_API void ReadForceMomentFromTxtFile(const char* path);
    /// The same, and reports what is worth knowing about the listing. The report is emptied first.
    STAAD_API void ReadForceMomentFromTxtFile(const char* path, ReadReport& report);
    /// The same of a file that need only be readable, and without message boxes: true if `beam_forces` was
    /// read and has forces. False also of a model without members, which stays as it is.
    STAAD_API bool ReadForceMomentFromTxtFile(const std::filesystem::path& path);
    STAAD_API bool ReadForceMomentFromTxtFile(const std::filesystem::path& path, ReadReport& report);
    /// Reads the text of a listing from memory, which must not be a text of this model; everything else
    /// as ReadForceMomentFromTxtFile of a `const char*`, message box included. True if `beam_forces` was
    /// read and has forces.
    STAAD_API bool ReadForceMomentFromText(std::string_view text);
    STAAD_API bool ReadForceMomentFromText(std::string_view text, ReadReport& report);

    /// Finds the counterparts of this model's joints, members and shells in `old`, and makes them the
    /// content of `old_proj_maps`.
    ///
    /// Joints:  the first earlier joint in list order that differs by less than 0.1 mm in each
    ///          coordinate and is not another joint's counterpart yet.
    /// Members: the first earlier member between the counterparts of both ends, in either direction.
    /// Shells:  the first earlier shell with the counterparts of all corners in the same order.
    /// Cost:    linear in both models; joints crowded within half a millimetre are compared one by one.
    STAAD_API void MakeMap(const SdReader& old);

    /// Offers to take groups, supports and releases over from an earlier project file: nothing happens
    /// unless the file can be read, a yes/no question (platform_services.h) is answered yes, and the file
    /// gives a model. Then as TakeOverFrom. A null path is none.
    STAAD_API void compWithOldProj(const char* path);
    /// The same of a file that need only be readable; whether it is, is asked of the system and not of
    /// PlatformServices.
    STAAD_API void compWithOldProj(const std::filesystem::path& path);

    /// Takes groups, supports and releases over from `earlier`, in this model's numbers: those of the
    /// counterparts that MakeMap finds. What has none is left out.
    ///
    /// Groups:   replaced; one that would be empty is left out. Element groups go by joints, like joint
    ///           groups.
    /// Supports: replaced, empty lists included.
    /// Releases: added to; the same description is replaced.
    STAAD_API void TakeOverFrom(const SdReader& earlier);

    /// What `member` is. Its joints are looked up by position; a position outside `nodes` makes it
    /// neither column nor horizontal brace. Cost: one look-up in `brace_ids`.
    STAAD_API BeamType GetBeamType(const SdBeam& member) const;
    /// Unit normal of the shell at the 1-based position `index`, model frame, turned upward.
    /// (0, 0, 1) if there is no such shell, if a corner is no joint, or if the shell has no area to
    /// speak of.
    STAAD_API void NormalOfShell(int index, double& nx, double& ny, double& nz) const;
    /// 1-based position of the first member, joint or shell of that number; -1 if there is none.
    /// Cost: a scan; for many numbers use `beam_index`, `node_index` and `shell_index`.
    STAAD_API int locateBeamIndex(int id) const;
    STAAD_API int locateNodeIndex(int id) const;
    STAAD_API int locateShellIndex(int id) const;

private:
    // The steps of reading, importing and writing, and those that call them in their order.
    friend class detail::model_reader;
    friend class detail::force_import;
    friend class detail::model_writer;
    friend struct detail::sd_reader_access; // lets the suite call the steps one by one

    detail::line_list get_all_lines_from_file(const char* path, const std::string& skip_prefix,
                                              detail::reading& context);
    std::vector<unsigned> extract_id_from_items(const std::vector<std::string>& tokens, unsigned start);
    std::vector<unsigned> extract_id_from_line(const std::string& line);

    void unify_staadpro_unit();
    void read_user_table(const detail::line_list& lines, detail::reading& context);
    void ReadGroudData(const detail::line_list& lines, std::size_t start, detail::reading& context);
    void read_material(const detail::line_list& lines, detail::reading& context);
    void ReadBrace(const detail::line_list& lines, detail::reading& context);
    void read_surface(const detail::line_list& lines, detail::reading& context);
    void read_beta(const detail::line_list& lines, detail::reading& context);
    void read_support(const detail::line_list& lines, detail::reading& context);
    void read_release(const detail::line_list& lines, detail::reading& context);
    void read_offset(const detail::line_list& lines, detail::reading& context);
    void read_load(const detail::line_list& lines, detail::reading& context);
    LoadDefination get_load_defnination_from_string(const LoadDef_raw& raw);
    std::string ConvertSectionParamByUnit(const std::string& text) const;

    void add_beam_force_moment(const BeamForceAndMOM& forces);

    bool IsColumn(const SdBeam& member) const;
    bool IsBrace(const SdBeam& member) const;
    bool IsHBrace(const SdBeam& member) const;
    void reset_member_id();

    void write_std_head(detail::text_output& out) const;
    void write_std_node(detail::text_output& out) const;
    void write_std_beam(detail::text_output& out, const detail::written_numbers& numbers) const;
    void write_std_board(detail::text_output& out, const detail::written_numbers& numbers) const;
    void write_std_usrSectTable(detail::text_output& out) const;
    void write_std_group(detail::text_output& out) const;
    void write_std_thickness(detail::text_output& out, const detail::written_numbers& numbers) const;
    void write_std_material(detail::text_output& out) const;
    void write_std_truss(detail::text_output& out, const detail::written_numbers& numbers) const;
    void write_std_section(detail::text_output& out, const detail::written_numbers& numbers) const;
    void write_std_mat_table(detail::text_output& out, const detail::written_numbers& numbers) const;
    void write_std_beta(detail::text_output& out, const detail::written_numbers& numbers) const;
    void write_std_support(detail::text_output& out) const;
    void write_std_release(detail::text_output& out) const;
    void write_std_load(detail::text_output& out, const detail::written_numbers& numbers,
                        detail::written_loads& loads) const;
    void write_std_WL(detail::text_output& out, detail::written_loads& loads) const;
    void write_std_EQ(detail::text_output& out, detail::written_loads& loads) const;
};

} // namespace STAAD

#endif
