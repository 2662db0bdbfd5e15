// Describes in words what a drawing shows.
#pragma once

#include <string>

namespace tests
{
// Returns the file of a drawing with these tags, which blanks separate; "_" is a blank in a text.
std::string dxfText(const std::string& tags);

// Returns the shapes of its model space, one a line: "path 0,0 10,0", "closed 0,0 1,0 1,1", "area
// 0,0 1,0 1,1 / ...", "dot 1,2", "ray 0,0 > 1,0", "xline ...", "text 0,0 > 2,0 ^ 0,2 left:0 below:0
// WORDS", each with its colour when that is not black. A curve is described by its number of points
// and the first, the middle and the last of them. The text ends with "not drawn: 1 IMAGE" when an
// entity is left out.
std::string drawn(const std::string& tags, long mostFromBlocks = 1000);

// Returns the shapes of these tags in section ENTITIES.
std::string drawnEntities(const std::string& tags);
}  // namespace tests
