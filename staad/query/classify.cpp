// Kinds of members, load cases and groups.

#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"
#include "staad/text/words.h"

#include <cmath>

namespace STAAD {
namespace {

/// A column's ends stand above each other within this, mm, on both plan axes.
constexpr double column_tolerance = 0.1;
/// The ends of a horizontal brace are level within this, mm; on purpose ten times tighter than the column's.
constexpr double level_tolerance = 0.01;

} // namespace

BeamType SdReader::GetBeamType(const SdBeam& member) const
{
    if (IsHBrace(member))
        return HorizontalBrace;
    if (IsBrace(member))
        return Brace;
    return IsColumn(member) ? Column : Beam;
}

bool SdReader::IsColumn(const SdBeam& member) const
{
    const SdNode* const start = at_position(nodes, member.node_start);
    const SdNode* const end = at_position(nodes, member.node_end);
    return start != nullptr && end != nullptr && column_tolerance > std::fabs(start->x - end->x) &&
           column_tolerance > std::fabs(start->y - end->y);
}

bool SdReader::IsBrace(const SdBeam& member) const
{
    return brace_ids.count(member.id) != 0;
}

bool SdReader::IsHBrace(const SdBeam& member) const
{
    const SdNode* const start = at_position(nodes, member.node_start);
    const SdNode* const end = at_position(nodes, member.node_end);
    return IsBrace(member) && start != nullptr && end != nullptr && level_tolerance > std::fabs(start->z - end->z);
}

LoadCase::LoadType LoadCase::load_type() const
{
    const std::string type = detail::to_lower_ascii(type_text);
    if (detail::starts_with(type, "dead"))
        return Dead;
    if (detail::starts_with(type, "live"))
        return Live;
    if (detail::starts_with(type, "wind"))
        return Wind;
    return detail::starts_with(type, "seismic") ? Seismic : Unknown;
}

SdGroup::IdType SdGroup::GetIdType() const
{
    if (kind == "MEMBER" || kind == "GEOMETRY")
        return MemberId;
    return kind == "ELEMENT" || kind == "FLOOR" ? ElementId : JointId;
}

} // namespace STAAD
