/// The model container: what was read from one ".std" file, in one system of units and one frame.
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
    HorizontalBrace = 3 ///< declared as one of these, and level
};

/// One structural model, and the operations on it.
///
/// A plain value: copies share nothing, a moved-from model has empty containers. Different models may be used
/// in different threads at the same time; one model has no lock.
///
/// Names of files: a `const char*` goes to the C library, on Windows as a name in the ANSI code page; a file to
/// be read must open for reading and writing, although nothing is written to it. A `std::filesystem::path` is
/// opened for reading only: write-protected files, devices and pipes are read, and on Windows every name can be
/// given. A string literal or null is a `const char*`; a `std::string` becomes a path as the standard library
/// converts it.
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
    /// Joint number to 1-based position in `nodes`: the last joint of that number. A number that members or
    /// elements name and the file does not define has 0.
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
    /// Empties everything, also what init() keeps: afterwards the model equals a new one.
    STAAD_API void Reset();

    /// Reads one ".std" file and makes it the content of this model.
    ///
    /// Replaces: all that init() empties. All that init() keeps is added to, or replaced, by what the file has.
    /// Units:    afterwards lengths are mm, forces kN, moments kN*mm. An unknown unit word leaves its factor at
    ///           1. Only the first UNIT line counts.
    /// Numbers:  joint references in members and shells become 1-based positions in `nodes`;
    ///           0 stands for a joint that the file does not define.
    /// Tolerant: unknown commands are skipped and unreadable numbers count as 0.
    /// Returns:  true if a model was read. False if `path` is null, if the file cannot be opened for
    ///           reading and writing, has no UNIT line with a line after it, no JOINT COORDINATES line
    ///           after it, or no MEMBER INCIDENCES line after the joints; the model keeps what was read up to
    ///           there.
    /// Throws:   ReadLimitError, a std::bad_alloc, if lists, or long texts that go to many records, pass a
    ///           limit of report/read_limit.h; std::bad_alloc if memory runs out. The model may then be
    ///           incomplete, and can be read into again.
    /// Cost:     the text is held in memory once; time is linear in its length, in the numbers of its stored
    ///           lists and in the references to its loads.
    STAAD_API bool ReadSDDataFromStdFile(const char* path);
    /// Reads the same model, and reports what an engineer should know about the text. The report is emptied
    /// first; after an exception it holds the findings up to there.
    STAAD_API bool ReadSDDataFromStdFile(const char* path, ReadReport& report);
    /// Reads a file that is opened for reading only; everything else is the same.
    STAAD_API bool ReadSDDataFromStdFile(const std::filesystem::path& path);
    STAAD_API bool ReadSDDataFromStdFile(const std::filesystem::path& path, ReadReport& report);
    /// Reads the text of a ".std" file from memory; everything else is the same.
    STAAD_API bool ReadSDDataFromText(std::string_view text);
    STAAD_API bool ReadSDDataFromText(std::string_view text, ReadReport& report);

    /// Writes the model as normalised ".std", replacing a file of that name; reports nothing.
    ///
    /// Text:     lengths in metres, Y up, lines of at most 79 characters. Joints are numbered by their
    ///           position; load directions and values, and the numbers in groups, supports and releases,
    ///           are written as the model holds them. The wind and seismic loads of `wl_param` and
    ///           `eq_param` follow the load cases. Offsets, and loads on joints, areas, floors and by
    ///           self weight, are not written.
    /// Changes:  before anything is written, and even if `path` cannot be opened: members become
    ///           numbers 1 to M in list order, shells M + 1 and on; `brace_ids` becomes the members whose
    ///           `kind_code` is Brace or HorizontalBrace; the user tables with keys 1 to 10 get the
    ///           family word of their key. normalised_text() gives the same text and leaves the model
    ///           unchanged.
    /// Threads:  different models may be written at the same time.
    /// Throws:   std::bad_alloc; the file then holds the beginning of the text.
    /// Cost:     linear in the model; distinct texts and unsorted lists are sorted.
    STAAD_API void WriteDataToFile(const char* path);
    /// Writes the same file, and returns true if every byte was written; else `error` is the first error of the
    /// system. A null path is std::errc::invalid_argument.
    STAAD_API bool WriteDataToFile(const char* path, std::error_code& error);
    STAAD_API bool WriteDataToFile(const std::filesystem::path& path, std::error_code& error);
    /// Returns the same text, lines ended by a line feed on every platform, and makes the same changes. Cost:
    /// as above, and memory for the text twice.
    STAAD_API std::string WriteDataToText();

    /// Adds the members that "MEMBER TRUSS", "MEMBER COMPRESSION" and "MEMBER TENSION" lines declare
    /// to `brace_ids`. `lines` are logical lines; the line after each keyword is its list. Throws
    /// ReadLimitError as ReadSDDataFromStdFile does.
    STAAD_API void ReadBrace(const std::vector<std::string>& lines);

    /// Number in `load_defs` of a definition equal to `def`, which is added under the next number if there is
    /// none. Cost: linear in `load_defs`.
    STAAD_API int add_a_load(const LoadDefination& def);

    /// Family and dimensions of an "UPTABLE table row" text: whole mm joined by "X". An unknown
    /// table gives (UnknownSection, ""), an unknown row an empty dimension text.
    /// Throws std::out_of_range if the row is blank.
    STAAD_API std::pair<UsrDefineSectionType, std::string> GetSectionFromUsrTable(const std::string& text) const;

    /// Reads the beam forces that the analysis printed, and makes them the content of `beam_forces`,
    /// each load case resampled at nine stations.
    ///
    /// Listing:  sections under a Chinese title line, in GBK or UTF-8, each with its own units; see
    ///           docs/forces.md. Members are found by their number in `beam_index`; unknown ones are skipped.
    ///           The last load case of a section's last member is left out.
    /// Units:    afterwards positions are mm, forces kN, moments kN*mm. `unit_text` and the factors
    ///           become those of the last section: call GetSectionFromUsrTable before, if you need it.
    /// Messages: for a model without members a message box (platform_services.h), and nothing changes.
    /// Tolerant: a file that cannot be opened for reading and writing, or has no title line, empties
    ///           `beam_forces`; so does a null path.
    /// Throws:   std::bad_alloc; `beam_forces` then has the members read up to there; `unit_text` and the
    ///           factors are unchanged.
    /// Cost:     the text is held in memory once and walked over twice; the n stations of a record take n log
    ///           n.
    STAAD_API void ReadForceMomentFromTxtFile(const char* path);
    /// Reads the same forces, and reports what an engineer should know about the listing. The report is emptied
    /// first.
    STAAD_API void ReadForceMomentFromTxtFile(const char* path, ReadReport& report);
    /// Reads a file that is opened for reading only, and shows no message box. True if `beam_forces` has forces
    /// afterwards; false also for a model without members, which stays unchanged.
    STAAD_API bool ReadForceMomentFromTxtFile(const std::filesystem::path& path);
    STAAD_API bool ReadForceMomentFromTxtFile(const std::filesystem::path& path, ReadReport& report);
    /// Reads the text of a listing from memory, which must not be a string of this model; everything else, the
    /// message box too, as for a `const char*` path. True if `beam_forces` has forces afterwards.
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
    /// gives a model. Then as TakeOverFrom. A null path is a file that cannot be read.
    STAAD_API void compWithOldProj(const char* path);
    /// Does the same with a file that is opened for reading only. PlatformServices is not asked whether it can
    /// be read.
    STAAD_API void compWithOldProj(const std::filesystem::path& path);

    /// Takes groups, supports and releases over from `earlier`, in this model's numbers: those of the
    /// counterparts that MakeMap finds. Numbers without a counterpart are left out.
    ///
    /// Groups:   replaced; one that would be empty is left out. The numbers of element groups are taken for
    ///           joint numbers, like those of joint groups.
    /// Supports: replaced, empty lists included.
    /// Releases: added to those of this model; the same description is replaced.
    STAAD_API void TakeOverFrom(const SdReader& earlier);

    /// The kind of `member`. Its joints are looked up by position; with a position outside `nodes` it is
    /// neither a column nor a horizontal brace. Cost: one look-up in `brace_ids`.
    STAAD_API BeamType GetBeamType(const SdBeam& member) const;
    /// Unit normal of the shell at the 1-based position `index`, model frame, turned upward.
    /// (0, 0, 1) if there is no such shell, if a corner is no joint, or if the shell has next to no area.
    STAAD_API void NormalOfShell(int index, double& nx, double& ny, double& nz) const;
    /// 1-based position of the first member, joint or shell with this number; -1 if there is none. Cost: a scan
    /// of the list; for many numbers use `beam_index`, `node_index` and `shell_index`.
    STAAD_API int locateBeamIndex(int id) const;
    STAAD_API int locateNodeIndex(int id) const;
    STAAD_API int locateShellIndex(int id) const;

private:
    // The steps of reading, importing and writing, and the classes that call them in their order.
    friend class detail::model_reader;
    friend class detail::force_import;
    friend class detail::model_writer;
    friend struct detail::sd_reader_access; // for tests of single steps

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
