// What a drawing shows, in words.
#pragma once

#include <string>

namespace tests
{
// The file of a drawing from its tags, all parted by blanks; "_" stands for a blank in a text.
std::string dxfText(const std::string& tags);

// The shapes of its model space, a line each: "path 0,0 10,0", "closed 0,0 1,0 1,1",
// "area 0,0 1,0 1,1 / ...", "dot 1,2", "ray 0,0 > 1,0", "xline ...", "text 0,0 > 2,0 ^ 0,2 left:0
// below:0 WORDS", each with its colour when that is not black. A curve is shown by its number of
// points and the first, the middle and the last of them. At the end "not drawn: 1 IMAGE" when
// something is left out.
std::string drawn(const std::string& tags, long mostFromBlocks = 1000);

// The same for what stands in ENTITIES.
std::string drawnEntities(const std::string& tags);
}  // namespace tests
