// Shifts, turns and mirrors grids, and tells how their pictures change.
#pragma once

#include "tests/relations/picture.h"

namespace relations
{
struct Move
{
    const char* name;
    GridCase (*moved)(const GridCase& asked, Chance& chance);
    // Returns what the moved grid must look like when the other grid has this picture.
    Picture (*seen)(const Picture& picture, bool alongUcs);
};

// - The whole grid is shifted, by up to 1000 or up to ten million units.
// - The whole grid is turned: by a quarter turn where it runs along the world's axes, which do not
//   turn with it, and by any angle, also in space, along the UCS.
// - The X axis of the world is reversed, so that left and right of the UCS are swapped.
extern const Move moves[3];
}  // namespace relations
