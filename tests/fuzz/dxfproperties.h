// Checks the properties that hold for any bytes that are opened as a drawing.
#pragma once

#include <string>
#include <string_view>

namespace tests
{
// Returns the violated property, or an empty text if all hold. Bytes are refused in one line, or
// they are read. If they are read:
// - saved unchanged, they are the same byte for byte, unless handles were repaired;
// - saved with a grid and its group, switched layers, a turned view and another UCS, they are a
//   drawing again, which has all former entities and the new ones;
// - drawing them for a plot comes to an end.
std::string complaintAbout(std::string_view bytes);
}  // namespace tests
