// Grids shifted, turned and mirrored, and what becomes of their pictures.
#pragma once

#include "tests/relations/picture.h"

namespace relations
{
struct Move
{
    const char* name;
    GridCase (*moved)(const GridCase& asked, Chance& chance);
    // What the moved grid has to look like when the other looks so.
    Picture (*seen)(const Picture& picture, bool alongUcs);
};

// Everything goes to another place, up to 1000 or up to ten million units away.
// Everything is turned: by a quarter where the grid runs along the world's axes, which do not turn
// with it, by anything and in space along the UCS.
// The X axis of the world is turned round; left and right of the UCS change places.
extern const Move moves[3];
}  // namespace relations
