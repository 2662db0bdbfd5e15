// Group codes of the blocks, attributes and paragraphs that the host draws but never creates.
#pragma once

#include "host/dxf/schema/code.h"

namespace host::dxf::schema
{
namespace insert
{
inline constexpr Code block{2};  // of a dimension, too
inline constexpr Code position{10};
inline constexpr Code rotation{50};
inline constexpr Code scaleX{41};
inline constexpr Code scaleY{42};
inline constexpr Code scaleZ{43};
inline constexpr Code columns{70};
inline constexpr Code rows{71};
inline constexpr Code columnSpacing{44};
inline constexpr Code rowSpacing{45};
}  // namespace insert

// ATTRIB and ATTDEF have the codes of texts and these codes.
namespace attribute
{
inline constexpr Code flags{70};
inline constexpr Code tag{2};
inline constexpr Code verticalMode{74};
}  // namespace attribute

namespace paragraphs
{
inline constexpr Code position{10};
inline constexpr Code height{40};
inline constexpr Code width{41};
inline constexpr Code part{3};  // a part of a long text before its last part
inline constexpr Code lastPart{1};
inline constexpr Code attachment{71};
inline constexpr Code direction{11};
inline constexpr Code rotation{50};
inline constexpr Code lineSpacing{44};
}  // namespace paragraphs
}  // namespace host::dxf::schema
