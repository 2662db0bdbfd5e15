// Group codes of the points, curves and faces that the host draws but never creates.
#pragma once

#include "host/dxf/schema/code.h"

namespace host::dxf::schema
{
namespace circle  // and ARC
{
inline constexpr Code centre{10};
inline constexpr Code radius{40};
inline constexpr Code startAngle{50};
inline constexpr Code endAngle{51};
}  // namespace circle

namespace ellipse
{
inline constexpr Code centre{10};
inline constexpr Code majorAxis{11};
inline constexpr Code ratio{40};
inline constexpr Code start{41};
inline constexpr Code end{42};
}  // namespace ellipse

namespace point
{
inline constexpr Code position{10};
}  // namespace point

namespace solid  // and TRACE and 3DFACE
{
inline constexpr Code corners[] = {Code(10), Code(11), Code(12), Code(13)};
inline constexpr Code hiddenEdges{70};
}  // namespace solid

namespace spline
{
inline constexpr Code degree{71};
inline constexpr Code knot{40};
inline constexpr Code weight{41};
inline constexpr Code pole{10};
inline constexpr Code fitPoint{11};
}  // namespace spline

namespace ray  // and XLINE
{
inline constexpr Code start{10};
inline constexpr Code direction{11};
}  // namespace ray

namespace leader
{
inline constexpr Code vertex{10};
}  // namespace leader

namespace multiline
{
inline constexpr Code flags{71};
inline constexpr Code vertex{11};
inline constexpr Code miter{13};
inline constexpr Code parameterCount{74};  // of an element, before its parameters
inline constexpr Code parameter{41};       // the first is the distance along the miter
}  // namespace multiline

namespace lightpolyline
{
inline constexpr Code elevation{38};
inline constexpr Code width{43};
inline constexpr Code vertex{10};
inline constexpr Code startWidth{40};
inline constexpr Code endWidth{41};
inline constexpr Code bulge{42};
}  // namespace lightpolyline
}  // namespace host::dxf::schema
