#include "staad/deck/catalogue.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace STAAD {
namespace {

using C = Command;
using D = DataLines;
using R = Reading;
constexpr CommandPlace anywhere = CommandPlace::anywhere;
constexpr CommandPlace in_case = CommandPlace::load_case;
constexpr bool host = true;
constexpr bool not_host = false;

// The words that begin a line in the definition of seismic loads. The lists in it are weights, no loads.
constexpr const char* seismic_words =
    "ZONE|SELF|JOIN WEIG|MEMB WEIG|ELEM WEIG|FLOO WEIG|ONEW|REFE LOAD|R#|PX|PY|PZ|CS|SS|S1|"
    "RF|I|R|ACCI|SA|DM|ST|CT|PART|RESU|SITE|K|NA|NV|TL|FA|FV|RX|RZ";

// Of several rows that fit a line the first counts: longer forms stand before shorter ones.
constexpr CommandInfo table[] = {
    {C::none, "", "", D::none, "", anywhere, R::silent, not_host, "What stands before the first command."},
    {C::unknown, "", "", D::lists, "", anywhere, R::noted, not_host, "A command that the catalogue does not know."},

    {C::title, "STAAD", "STAA", D::none, "", anywhere, R::into_model, not_host, "Kind of structure and title."},
    {C::job_information, "START JOB INFORMATION", "STAR JOB", D::until_end, "END JOB|END $", anywhere, R::into_model,
     not_host, "Client, engineer, dates."},
    {C::page, "INPUT", "INPU", D::none, "", anywhere, R::silent, not_host, "Width of the input."},
    {C::page, "OUTPUT", "OUTP", D::none, "", anywhere, R::silent, not_host, "Width of the output."},
    {C::page, "PAGE", "PAGE", D::none, "", anywhere, R::silent, not_host, "Length of a page."},
    {C::page, "SEPARATOR", "SEPA", D::none, "", anywhere, R::silent, not_host, "Sign between items."},
    {C::set, "SET", "SET", D::none, "", anywhere, R::as_text, not_host, "Upward axis, limits of the analysis."},
    {C::unit, "UNIT", "UNIT", D::none, "", anywhere, R::into_model, host, "Units of the numbers that follow."},
    {C::ignore, "IGNORE", "IGNO", D::none, "", anywhere, R::as_text, not_host, "Lists that the analysis passes over."},

    {C::joint_coordinates, "JOINT COORDINATES", "JOIN COOR", D::items, "REPE|JTOR", anywhere, R::into_model, host,
     "Joints: number and place."},
    {C::member_incidences, "MEMBER INCIDENCES", "MEMB INCI", D::items, "REPE", anywhere, R::into_model, host,
     "Members: number and the joints at both ends."},
    {C::element_incidences, "ELEMENT INCIDENCES", "ELEM INCI", D::items, "REPE", anywhere, R::into_model, host,
     "Plate elements and solids: number and corners."},
    {C::surface_incidence, "SURFACE INCIDENCE", "SURF INCI", D::items, "", anywhere, R::into_model, host,
     "Surfaces: corners and number."},
    {C::define_mesh, "DEFINE MESH", "DEFI MESH", D::until_command, "", anywhere, R::as_text, not_host,
     "Regions that the analysis divides into elements."},
    {C::generate_element, "GENERATE ELEMENT", "GENE ELEM", D::until_command, "", anywhere, R::as_text, not_host,
     "Elements that the analysis makes of the regions."},
    {C::delete_records, "DELETE", "DELE", D::none, "", anywhere, R::into_model, not_host,
     "Takes joints, members or elements away."},
    {C::inactive, "INACTIVE", "INAC", D::none, "", anywhere, R::as_text, not_host,
     "Members that take no part until the next CHANGE."},
    {C::substitute, "SUBSTITUTE", "SUBS", D::none, "", anywhere, R::as_text, not_host,
     "Other letters for numbers of joints and members."},
    {C::groups, "START GROUP DEFINITION", "STAR GROU", D::until_end, "END GROU|END $", anywhere, R::into_model, host,
     "Named groups of joints, members, elements."},

    {C::user_table, "START USER TABLE", "STAR USER", D::until_end, "END $|END USER|END TABL", anywhere, R::into_model,
     host, "Tables of sections."},
    {C::member_property, "MEMBER PROPERTY", "MEMB PROP", D::lists, "", anywhere, R::into_model, host,
     "Sections of members."},
    {C::element_property, "ELEMENT PROPERTY", "ELEM PROP", D::lists, "", anywhere, R::into_model, host,
     "Thickness of elements."},
    {C::surface_property, "SURFACE PROPERTY", "SURF PROP", D::lists, "", anywhere, R::into_model, host,
     "Thickness of surfaces."},
    {C::define_material, "DEFINE MATERIAL", "DEFI MATE", D::until_end, "END $|END DEFI $|END DEFI MATE|END MATE",
     anywhere, R::into_model, host, "Materials with their constants."},
    {C::constants, "CONSTANTS", "CONS", D::none, "", anywhere, R::into_model, host,
     "Heads MATERIAL, BETA and constants of members."},
    {C::material, "MATERIAL", "MATE", D::none, "", anywhere, R::into_model, host, "Material of members and elements."},
    {C::beta, "BETA", "BETA", D::none, "", anywhere, R::into_model, host, "Turn of members about their axis."},
    {C::constant, "E", "E", D::none, "", anywhere, R::into_model, not_host, "Modulus of elasticity of members."},
    {C::constant, "G", "G", D::none, "", anywhere, R::into_model, not_host, "Shear modulus of members."},
    {C::constant, "POISSON", "POIS", D::none, "", anywhere, R::into_model, not_host, "Poisson's ratio of members."},
    {C::constant, "DENSITY", "DENS", D::none, "", anywhere, R::into_model, not_host, "Density of members."},
    {C::constant, "ALPHA", "ALPH", D::none, "", anywhere, R::into_model, not_host, "Thermal expansion of members."},
    {C::constant, "CDAMP", "CDAM", D::none, "", anywhere, R::into_model, not_host, "Damping of members."},
    {C::member_cracked, "MEMBER CRACKED", "MEMB CRAC", D::lists, "", anywhere, R::into_model, not_host,
     "Factors of stiffness of cracked members."},

    {C::other_load, "SUPPORT DISPLACEMENT", "SUPP DISP", D::lists, "", in_case, R::as_text, not_host,
     "Given displacements."},
    {C::supports, "SUPPORTS", "SUPP", D::lists, "", anywhere, R::into_model, host, "Supports of joints."},
    {C::member_release, "MEMBER RELEASE", "MEMB RELE", D::lists, "", anywhere, R::into_model, host,
     "What the ends of members do not hand on."},
    {C::member_offset, "MEMBER OFFSET", "MEMB OFFS", D::lists, "", anywhere, R::into_model, host,
     "How far the ends of members are from their joints."},
    {C::member_truss, "MEMBER TRUSS", "MEMB TRUS", D::lists, "", anywhere, R::into_model, host,
     "Members with axial force alone."},
    {C::member_tension, "MEMBER TENSION", "MEMB TENS", D::lists, "", anywhere, R::into_model, host,
     "Members with tension alone."},
    {C::member_compression, "MEMBER COMPRESSION", "MEMB COMP", D::lists, "", anywhere, R::into_model, host,
     "Members with compression alone."},
    {C::member_cable, "MEMBER CABLE", "MEMB CABL", D::lists, "", anywhere, R::into_model, not_host, "Cables."},
    {C::diaphragm, "FLOOR DIAPHRAGM", "FLOO DIAP", D::lists, "DIA|CHEC|TYPE|BASE", anywhere, R::as_text, not_host,
     "Floors that are stiff in their plane."},
    {C::master_slave, "MASTER", "MAST", D::none, "", anywhere, R::as_text, not_host, "Joints that follow a joint."},
    {C::master_slave, "SLAVE", "SLAV", D::lists, "SLAV|MAST", anywhere, R::as_text, not_host,
     "Joints that follow a joint."},
    {C::cut_off, "CUT", "CUT", D::none, "", anywhere, R::as_text, not_host, "How many modes count."},

    {C::define_wind, "DEFINE WIND LOAD", "DEFI WIND", D::lists, "TYPE|INT|HEIG|EXP", anywhere, R::as_text, not_host,
     "Profiles of wind."},
    {C::define_envelope, "DEFINE ENVELOPE", "DEFI ENVE", D::until_end, "END $|END DEFI $|END DEFI ENVE|END ENVE",
     anywhere, R::as_text, not_host, "Cases of which the extremes are wanted."},
    {C::define_reference, "DEFINE REFERENCE LOADS", "DEFI REFE", D::none, "", anywhere, R::into_model, not_host,
     "Cases that other cases refer to."},
    {C::define_moving, "DEFINE MOVING LOAD", "DEFI MOVI", D::lists, "TYPE|DIST", anywhere, R::as_text, not_host,
     "Vehicles."},
    {C::define_seismic, "DEFINE * LOAD", "DEFI * LOAD", D::lists, seismic_words, anywhere, R::as_text, not_host,
     "Parameters and weights of a seismic code."},
    {C::define_seismic, "DEFINE IBC", "DEFI IBC", D::lists, seismic_words, anywhere, R::as_text, not_host,
     "Parameters and weights of a seismic code."},
    {C::define_other, "DEFINE", "DEFI", D::until_command, "", anywhere, R::as_text, not_host, "Another definition."},
    {C::end_define_reference, "END DEFINE REFERENCE LOADS", "END DEFI REFE", D::none, "", anywhere, R::into_model,
     not_host, "Ends the cases that other cases refer to."},

    {C::load_combination, "LOAD COMBINATION", "LOAD COMB", D::items, "", anywhere, R::into_model, not_host,
     "Sum of cases with factors."},
    {C::load_list, "LOAD LIST", "LOAD LIST", D::none, "", anywhere, R::as_text, not_host,
     "Cases that print and design go by."},
    {C::load_generation, "LOAD GENERATION", "LOAD GENE", D::lists, "TYPE|ADD", anywhere, R::as_text, not_host,
     "Cases that the analysis makes of moving loads."},
    {C::load_envelope, "LOAD ENVELOPE", "LOAD ENVE", D::none, "", anywhere, R::as_text, not_host,
     "Cases of which the extremes are wanted."},
    {C::load_case, "LOADING", "LOAD", D::none, "", anywhere, R::into_model, host, "Number, type and title of a case."},
    {C::self_weight, "SELFWEIGHT", "SELF", D::none, "", in_case, R::into_model, host,
     "Weight of members and elements."},
    {C::joint_load, "JOINT LOAD", "JOIN LOAD", D::lists, "", in_case, R::into_model, host,
     "Forces and moments on joints."},
    {C::member_load, "MEMBER LOAD", "MEMB LOAD", D::lists, "", in_case, R::into_model, host, "Loads on members."},
    {C::element_load, "ELEMENT LOAD", "ELEM LOAD", D::lists, "", in_case, R::into_model, not_host,
     "Pressure on elements."},
    {C::floor_load, "FLOOR LOAD", "FLOO LOAD", D::lists, "", in_case, R::into_model, host,
     "Pressure on floors, carried by the members around."},
    {C::one_way_load, "ONEWAY LOAD", "ONEW", D::lists, "", in_case, R::into_model, not_host,
     "Pressure on floors that span one way."},
    {C::area_load, "AREA LOAD", "AREA", D::lists, "", in_case, R::into_model, host, "Pressure on areas of members."},
    {C::temperature_load, "TEMPERATURE LOAD", "TEMP", D::lists, "", in_case, R::into_model, not_host,
     "Changes of temperature, strains."},
    {C::temperature_load, "STRAIN LOAD", "STRA", D::lists, "", in_case, R::into_model, not_host, "Strains."},
    {C::repeat_load, "REPEAT LOAD", "REPE LOAD", D::items, "", in_case, R::into_model, not_host,
     "The loads of other cases with factors."},
    {C::reference_load, "REFERENCE LOAD", "REFE LOAD", D::items, "R#", in_case, R::into_model, not_host,
     "The loads of reference cases with factors."},
    {C::wind_load, "WIND LOAD", "WIND LOAD", D::items, "", in_case, R::as_text, not_host, "Wind by a profile."},
    {C::code_load, "# LOAD", "# LOAD", D::none, "", in_case, R::as_text, not_host, "Seismic loads of a code."},
    {C::code_load, "UBC LOAD", "UBC LOAD", D::none, "", in_case, R::as_text, not_host, "Seismic loads of a code."},
    {C::code_load, "IBC LOAD", "IBC LOAD", D::none, "", in_case, R::as_text, not_host, "Seismic loads of a code."},
    {C::spectrum, "SPECTRUM", "SPEC", D::items, "", in_case, R::as_text, not_host, "Response spectrum."},
    {C::other_load, "NOTIONAL LOAD", "NOTI", D::items, "R#", in_case, R::as_text, not_host, "Notional loads."},
    {C::other_load, "HYDROSTATIC LOAD", "HYDR", D::lists, "", in_case, R::as_text, not_host, "Pressure of a fluid."},
    {C::other_load, "MEMBER PRESTRESS", "MEMB PRES", D::lists, "", in_case, R::as_text, not_host, "Prestress."},
    {C::other_load, "MEMBER POSTSTRESS", "MEMB POST", D::lists, "", in_case, R::as_text, not_host, "Prestress."},
    {C::other_load, "FIXED END LOAD", "FIXE END", D::lists, "", in_case, R::as_text, not_host, "Forces at fixed ends."},
    {C::other_load, "SURFACE LOAD", "SURF LOAD", D::lists, "", in_case, R::as_text, not_host, "Loads on surfaces."},
    {C::other_load, "SNOW LOAD", "SNOW", D::lists, "", in_case, R::as_text, not_host, "Snow."},
    {C::other_load, "TIME LOAD", "TIME", D::lists, "AT", in_case, R::as_text, not_host, "Loads over time."},
    {C::other_load, "GROUND MOTION", "GROU MOTI", D::none, "", in_case, R::as_text, not_host, "Ground motion."},
    {C::dynamics, "MODAL CALCULATION", "MODA", D::none, "", in_case, R::as_text, not_host, "Modes of the case."},
    {C::dynamics, "CALCULATE", "CALC", D::none, "", in_case, R::noted, not_host, "Frequency of the case."},
    {C::member_other, "MEMBER", "MEMB @", D::lists, "", anywhere, R::as_text, not_host, "Something else of members."},
    {C::element_other, "ELEMENT", "ELEM @", D::lists, "", anywhere, R::as_text, not_host,
     "Something else of elements."},

    {C::perform, "PERFORM ANALYSIS", "PERF", D::none, "", anywhere, R::as_text, not_host, "Runs the analysis."},
    {C::perform, "PDELTA ANALYSIS", "PDEL", D::none, "", anywhere, R::as_text, not_host, "Runs the analysis."},
    {C::change, "CHANGE", "CHAN", D::none, "", anywhere, R::as_text, not_host, "Lets data change between analyses."},
    {C::finish, "FINISH", "FINI", D::none, "", anywhere, R::as_text, not_host, "Ends the deck."},
    {C::print, "PRINT", "PRIN", D::none, "", anywhere, R::as_text, not_host, "What the analysis prints."},
    {C::print, "SECTION", "SECT", D::none, "", anywhere, R::as_text, not_host, "Where forces are printed."},
    {C::draw, "DRAW", "DRAW", D::none, "", anywhere, R::as_text, not_host, "What the analysis draws."},
    {C::draw, "PLOT", "PLOT", D::none, "", anywhere, R::as_text, not_host, "What the analysis draws."},
    {C::parameter, "PARAMETER", "PARA", D::until_command, "", anywhere, R::as_text, not_host,
     "Parameters of the design of members."},
    {C::concrete_design, "START CONCRETE DESIGN", "STAR CONC", D::until_end, "END CONC|END $", anywhere, R::as_text,
     not_host, "Design of concrete."},
    {C::design, "START", "STAR", D::until_command, "", anywhere, R::as_text, not_host, "A block of design."},
    {C::design, "DESIGN", "DESI", D::none, "", anywhere, R::as_text, not_host, "Design of members and elements."},
    {C::design, "CONCRETE TAKE", "CONC TAKE", D::none, "", anywhere, R::as_text, not_host, "Quantities."},
    {C::design, "STEEL", "STEE", D::none, "", anywhere, R::as_text, not_host, "Quantities."},
    {C::design, "SELECT", "SELE", D::none, "", anywhere, R::as_text, not_host, "Choice of sections."},
    {C::design, "GROUP", "GROU", D::none, "", anywhere, R::as_text, not_host, "Members of one section."},
    {C::design, "FIXED GROUP", "FIXE GROU", D::none, "", anywhere, R::as_text, not_host, "Members of one section."},
    {C::design, "END", "END", D::none, "", anywhere, R::as_text, not_host, "Ends a block of design."},
    {C::irregularity, "CHECK SOFT STORY", "CHEC SOFT", D::none, "", anywhere, R::as_text, not_host,
     "A check of the whole building."},
    {C::irregularity, "CHECK IRREGULARITIES", "CHEC IRRE", D::none, "", anywhere, R::as_text, not_host,
     "A check of the whole building."},
    {C::code_check, "CHECK CODE", "CHEC", D::none, "", anywhere, R::as_text, not_host, "Design check of members."},
};

constexpr auto first_rows = [] {
    std::array<std::uint8_t, number_of_commands> rows{};
    for (std::size_t i = std::size(table); i-- > 0;)
        rows[static_cast<std::size_t>(table[i].command)] = static_cast<std::uint8_t>(i);
    return rows;
}();

static_assert(std::size(table) < 256);
static_assert(std::ranges::all_of(first_rows.begin() + 1, first_rows.end(), [](auto row) { return row != 0; }),
              "a row for each command");

} // namespace

CommandList command_catalogue() noexcept
{
    return {std::begin(table), std::end(table)};
}

const CommandInfo& command_info(Command command) noexcept
{
    const auto index = static_cast<std::size_t>(command);
    return table[first_rows[index < number_of_commands ? index : static_cast<std::size_t>(Command::unknown)]];
}

} // namespace STAAD
