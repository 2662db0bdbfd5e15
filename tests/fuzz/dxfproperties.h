// What holds for any bytes that are opened as a drawing.
#pragma once

#include <string>
#include <string_view>

namespace tests
{
// What is wrong, empty if nothing. Bytes are refused in one line, or they are read. Then
// - saved unchanged they are the same byte for byte, unless handles were repaired;
// - saved with a grid and its group, switched layers, a turned view and another UCS they are a
//   drawing again, which has all entities of before and the new ones;
// - looked at as for a plot, they come to an end.
std::string complaintAbout(std::string_view bytes);
}  // namespace tests
