// Group codes of hatches. The meaning of a code depends on its place in the record.
#pragma once

#include "host/dxf/schema/code.h"

namespace host::dxf::schema::hatch
{
inline constexpr Code elevation{10};  // the Z of this point
inline constexpr Code isSolid{70};
inline constexpr Code loopCount{91};
inline constexpr Code loopFlags{92};
inline constexpr Code partCount{93};  // the edges or the vertices of a loop
inline constexpr Code edgeKind{72};
inline constexpr Code patternLineCount{78};

inline constexpr Code hasBulges{72};
inline constexpr Code isClosed{73};
inline constexpr Code vertex{10};
inline constexpr Code bulge{42};

inline constexpr Code start{10};
inline constexpr Code end{11};

inline constexpr Code centre{10};
inline constexpr Code majorAxis{11};
inline constexpr Code radius{40};
inline constexpr Code ratio{40};
inline constexpr Code startAngle{50};
inline constexpr Code endAngle{51};
inline constexpr Code isCounterClockwise{73};

inline constexpr Code degree{94};
inline constexpr Code isRational{73};
inline constexpr Code isPeriodic{74};
inline constexpr Code knotCount{95};
inline constexpr Code poleCount{96};
inline constexpr Code knot{40};
inline constexpr Code pole{10};
inline constexpr Code weight{42};

inline constexpr Code lineAngle{53};
inline constexpr Code lineBaseX{43};
inline constexpr Code lineBaseY{44};
inline constexpr Code lineOffsetX{45};
inline constexpr Code lineOffsetY{46};
}  // namespace host::dxf::schema::hatch
