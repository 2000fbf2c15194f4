/// Everything that the author of a deck wrote about a structure, typed.
///
/// Units are mm, kN, kN*mm and degrees, the frame is that of the model: z up, right-handed. Files with Y up
/// have X, Y, Z as model y, z, x; files with Z up have X, Y, Z as model x, y, z. Records have the numbers of
/// the file and refer to each other by position, from 0; -1 stands for none.
#ifndef STAAD_STRUCTURE_STRUCTURE_H
#define STAAD_STRUCTURE_STRUCTURE_H

#include "staad/export.h"
#include "staad/report/read_report.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace STAAD {

/// A place or a direction in the model frame, or three numbers along the axes of a member.
struct Vector3 {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/// A structure. Plain values: copies share nothing.
struct Structure {
    /// Where a record comes from: position in `sources` + 1; 0: in no file.
    using Source = std::uint32_t;

    enum class Kind : std::uint8_t { space, plane, truss, floor };
    enum class UpAxis : std::uint8_t { y, z }; ///< the file's axis that points up

    struct Head {
        Kind kind = Kind::space;
        UpAxis up = UpAxis::y;
        std::string title;                  ///< what follows the kind
        std::vector<std::string> job_lines; ///< of START JOB INFORMATION, as written
        std::string length_unit;            ///< word of the first UNIT line as written: "METER"
        std::string force_unit;             ///< the same: "KN"
        Source source = 0;
    };

    struct Joint {
        int number = 0;
        double x = 0.0; ///< mm, model frame
        double y = 0.0;
        double z = 0.0;
        Source source = 0;
    };

    enum class Behaviour : std::uint8_t { normal, truss, tension, compression, cable };

    struct Member {
        int number = 0;
        int start = -1; ///< position in `joints`
        int end = -1;
        int section = -1;  ///< position in `sections`
        int material = -1; ///< position in `materials`
        double beta = 0.0; ///< degrees, by the right hand about the member's x axis
        Behaviour behaviour = Behaviour::normal;
        Vector3 start_offset; ///< mm, model frame, from the joint to the end of the member
        Vector3 end_offset;
        int start_release = -1; ///< position in `releases`
        int end_release = -1;
        int cracked = -1; ///< position in `cracked`
        Source source = 0;
        Source section_source = 0;
        Source material_source = 0;
        Source beta_source = 0;
        Source behaviour_source = 0;
        Source offset_source = 0; ///< of the offset given last
        Source cracked_source = 0;
    };

    /// A plate element of three or four corners.
    struct Element {
        int number = 0;
        std::array<int, 4> corners{-1, -1, -1, -1}; ///< positions in `joints`; the fourth -1: a triangle
        std::array<double, 4> thickness{};          ///< mm, at each corner; 0: none given
        int material = -1;
        Source source = 0;
        Source thickness_source = 0;
        Source material_source = 0;
    };

    /// A solid of eight corners, some of which may be the same joint.
    struct Solid {
        int number = 0;
        std::array<int, 8> corners{-1, -1, -1, -1, -1, -1, -1, -1};
        int material = -1;
        Source source = 0;
        Source material_source = 0;
    };

    struct Surface {
        int number = 0;
        std::vector<int> corners; ///< positions in `joints`
        double thickness = 0.0;   ///< mm; 0: none given
        int material = -1;
        Source source = 0;
        Source thickness_source = 0;
        Source material_source = 0;
    };

    /// A value with the name that the deck gives it.
    struct NamedValue {
        std::string name; ///< upper case: "YD", "AX"
        double value = 0.0;
    };

    /// A section that members have; members of one section share the record.
    struct Section {
        enum class Shape : std::uint8_t {
            rectangle,  ///< YD depth, ZD width
            circle,     ///< YD diameter
            tee,        ///< YD ZD YB ZB
            trapezoid,  ///< YD ZD ZB
            round_tube, ///< PRIS ROUND: STA and END diameters, THI
            general,    ///< PRIS by AX, IX, IY, IZ ...
            tube,       ///< TABLE ST TUBE: TH, WT, DT
            pipe,       ///< TABLE ST PIPE: OD, ID
            tapered,    ///< TAPERED: F1 to F5 or F7
            table,      ///< a row of the analysis program's tables
            user_table, ///< a row of one of `user_tables`
            assigned,   ///< ASSIGN: the analysis program chooses it
            other,      ///< kept as text
        };
        Shape shape = Shape::other;
        std::string code;  ///< what follows MEMBER PROPERTY: "AMERICAN"; a quoted data base with its quotes
        std::string text;  ///< what follows the list, as written, single blanks between words
        std::string type;  ///< of `table` ST, LD, SD, T ...; of `assigned` the word: BEAM
        std::string name;  ///< of `table` and `user_table` the row: "W12X26", quotes kept
        std::string group; ///< of `table` the quoted word before the type: "'IPE'"
        int table = 0;     ///< of `user_table` its number
        /// By the names above, in the order of the text, further numbers of a table row included (SP gap, TH, WT,
        /// DT ...): lengths in mm, AX AY AZ in mm2, IX IY IZ in mm4.
        std::vector<NamedValue> values;
        /// mm2, where it follows from the values: rectangle, circle, tee, trapezoid, tubes, pipe, AX; else 0.
        double area = 0.0;
        Source source = 0; ///< of the line that gives it first
    };

    /// Materials by name, and nameless ones, that constants give to sets of members.
    struct Material {
        std::string name;        ///< as written; empty: nameless
        std::string type;        ///< "CONCRETE", "STEEL"; empty if not given
        std::optional<double> e; ///< kN/mm2
        std::optional<double> g; ///< kN/mm2
        std::optional<double> poisson;
        std::optional<double> density; ///< weight, kN/mm3
        std::optional<double> alpha;   ///< 1/degree
        std::optional<double> damping;
        std::vector<NamedValue> strengths; ///< FCU, FY, FU: kN/mm2; RY, RT: factors
        /// The material is one of the analysis program's own (STEEL, CONCRETE, ALUMINUM): no DEFINE MATERIAL block
        /// has it.
        bool is_built_in = false;
        Source source = 0;
    };

    /// Degrees of freedom in the order of the arrays: along model x, y, z, then about them; of releases, of the
    /// member's own axes.
    struct Support {
        int joint = -1; ///< position in `joints`
        std::array<bool, 6> held{};
        std::array<double, 6> springs{}; ///< kN/mm and kN*mm/degree, 0: none; never of a direction that is held
        bool enforced = false;           ///< ENFORCED: held for given displacements
        /// INCLINED, ELASTIC MAT, GENERATE, MULTILINEAR: only `text` says what holds the joint.
        bool is_kept = false;
        std::string text; ///< what follows the list, as written, single blanks: "FIXED BUT MZ KFY 100"
        Source source = 0;
    };

    /// Springs under elements, PLATE MAT.
    struct Mat {
        std::vector<int> elements; ///< positions in `elements`
        Vector3 direction;         ///< unit vector of the axis, model frame
        double subgrade = 0.0;     ///< kN/mm3
        bool one_way = false;      ///< the direction alone ("YONLY"), free along the other axes
        bool compression = false;  ///< in compression alone
        std::string text;          ///< what follows the list, as written
        Source source = 0;
    };

    /// What the end of a member does not hand on, along and about the member's x, y, z.
    struct Release {
        int member = -1; ///< position in `members`
        bool is_end = false;
        std::array<bool, 6> released{};
        std::array<double, 3> partial{}; ///< factor of moments, 0 to 1: the part that is released; 0: none
        std::array<double, 6> springs{}; ///< kN/mm and kN*mm/degree; 0: none
        std::string text;                ///< what follows the list, as written, single blanks: "START MY MZ"
        Source source = 0;
    };

    /// Factors of stiffness of a cracked member. 1: as it is.
    struct Cracked {
        double ax = 1.0, ay = 1.0, az = 1.0;
        double ix = 1.0, iy = 1.0, iz = 1.0;
    };

    enum class GroupKind : std::uint8_t { joints, members, elements, floor, solids, geometry };

    struct Group {
        std::string name; ///< as written where it first stands: "_FLOOR1"
        GroupKind kind = GroupKind::members;
        std::vector<int> numbers; ///< of the file, in the order of the text
        std::vector<Source> sources;
    };

    /// Sections of a family under names of the deck's own. Of two tables of one number the later row counts where
    /// both have one of the same name.
    struct UserTable {
        struct Row {
            std::string name;
            std::string text; ///< its numbers as written, rows over several lines joined
            Source source = 0;
        };
        int number = 0;
        std::string file;           ///< that holds the rows, as written; empty: they are in the deck
        std::string family;         ///< "WIDE FLANGE"; empty if not given
        std::string length_unit;    ///< its own UNIT line, or what was in force: "METER"
        double length_factor = 1.0; ///< mm
        std::vector<Row> rows;
        Source source = 0;
    };

    /// Positions first to last, both included.
    struct Range {
        int first = 0;
        int last = 0;
    };

    /// A part of space, mm, model frame; an open side is infinite.
    struct Box {
        Vector3 low;
        Vector3 high;
    };

    /// A case with a factor.
    struct CaseFactor {
        int number = 0;
        bool is_reference = false; ///< R1 and not 1
        double factor = 0.0;
    };

    struct Load {
        /// With their `values` in order. Lengths along a member are from its start.
        enum class Kind : std::uint8_t {
            joint_forces,         ///< on joints: FX FY FZ, kN, MX MY MZ, kN*mm, about the model's axes
            uniform,              ///< on members: kN/mm; from, to, mm; distances from the shear centre, mm
            uniform_moment,       ///< on members: kN*mm/mm; as `uniform`
            concentrated,         ///< on members: kN; at, mm (the middle if not given); distances, mm
            concentrated_moment,  ///< on members: kN*mm; as `concentrated`
            linear,               ///< on members: kN/mm at start, at end, or 0, 0 and in the middle
            trapezoidal,          ///< on members: kN/mm at `from`, at `to`; from, to, mm (all of it if not given)
            pressure,             ///< on elements: kN/mm2
            partial_pressure,     ///< on elements: kN/mm2; x1, y1, x2, y2, mm in the element's own axes
            point_on_element,     ///< on elements: kN; x1, y1, mm in the element's own axes (its centre if not given)
            corner_pressure,      ///< on elements: kN/mm2 at each corner, three or four
            trapezoidal_pressure, ///< on elements: kN/mm2 at both ends along the element's own `along` axis
            self_weight,          ///< on members and elements: factor
            floor,                ///< kN/mm2 in `box`, on the floor of `group`, or among the members `on`
            one_way,              ///< the same, spanning one way: along the file's axis `along`, to member `towards`
            area,                 ///< the same, by the areas that members have
            temperature,          ///< on members and elements: degrees along the axis, over the depth, across
            strain,               ///< on members and elements: elongation, mm
            cases,                ///< the loads of other cases, `sum`
            kept,                 ///< the statement `kept`, as it stands
        };
        /// In which direction the values act. Letters of the member or element are its own axes as the deck has
        /// them, see Structure::Head::up and local_axes(); global ones are axes of the model.
        enum class Direction : std::uint8_t {
            none,
            local_x,
            local_y,
            local_z,
            global_x,
            global_y,
            global_z,
            projected_x, ///< along the model axis, by length on a plane square to it
            projected_y,
            projected_z,
        };
        Kind kind = Kind::kept;
        Direction direction = Direction::none;
        std::uint8_t value_count = 0; ///< how many values the line gives
        char along = 0;               ///< 'X', 'Y' or 'Z': see the kinds; 0: not given
        std::array<double, 6> values{};
        /// Positions of joints, of members or of elements, as the kind has it.
        std::vector<Range> on;
        std::vector<Range> on_elements; ///< of loads on members and elements: the elements
        std::optional<Box> box;         ///< of floor, one_way, area
        int group = -1;                 ///< of floor, one_way, area: position in `groups`
        int towards = -1;               ///< of one_way: position in `members`
        int kept = -1;                  ///< of `kept`: position in Structure::kept
        Source source = 0;
        std::vector<CaseFactor> sum;
        /// What follows the list, as written, single blanks: "UNI GY -5"; of `cases` and `kept` empty.
        std::string text;
    };

    struct LoadCase {
        int number = 0;
        bool is_reference = false; ///< R1 and not 1
        std::string type;          ///< what follows LOADTYPE: "Dead", "Roof Live"; empty if not given
        std::string title;
        std::vector<Load> loads; ///< in the order of the text
        Source source = 0;
    };

    struct Combination {
        int number = 0;
        std::string title;
        std::string method; ///< "SRSS", "ABS"; empty: the sum
        std::vector<CaseFactor> terms;
        Source source = 0;
    };

    /// A statement that is kept as text.
    struct Kept {
        std::string command;     ///< upper case: "PERFORM ANALYSIS", "1893 LOAD"; of an unknown one its first word
        std::string text;        ///< its lines without comments and blank lines at its end, line ends as in the file
        std::string length_unit; ///< in force there, as written
        std::string force_unit;
        bool is_load = false; ///< a load of a case refers to it
        Source source = 0;
    };

    Head head;
    std::vector<Joint> joints;
    std::vector<Member> members;
    std::vector<Element> elements;
    std::vector<Solid> solids;
    std::vector<Surface> surfaces;
    std::vector<Section> sections;
    std::vector<Material> materials;
    std::vector<Support> supports; ///< one a joint, in the order of the text
    std::vector<Mat> mats;
    std::vector<Release> releases; ///< one a member end, in the order of the text
    std::vector<Cracked> cracked;
    std::vector<Group> groups;
    std::vector<UserTable> user_tables;
    std::vector<LoadCase> load_cases;      ///< in the order of the text
    std::vector<LoadCase> reference_cases; ///< R1, R2 ...
    std::vector<Combination> combinations;
    std::vector<Kept> kept;         ///< in the order of the text
    std::vector<FileLines> sources; ///< see Source
};

/// The physical lines that a record comes from; {0, 0} if it comes from no file.
STAAD_API FileLines origin(const Structure& structure, Structure::Source source) noexcept;

} // namespace STAAD

#endif
