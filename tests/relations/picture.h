// A grid relative to its base point, along its own axes. Shifted and turned grids have the same
// picture; mirrored grids have a mirrored picture.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "tests/relations/gridcase.h"

namespace relations
{
enum Direction
{
    vertical,
    horizontal,
};

struct Spot
{
    double x;
    double y;

    double along(Direction direction) const { return direction == vertical ? y : x; }
    double across(Direction direction) const { return direction == vertical ? x : y; }
};

// Names the n-th line of a direction, counted from the base point.
using LineName = std::pair<Direction, long long>;

struct Part
{
    double low;
    double high;
};

// Names the label at the higher or the lower end of a line.
using LabelName = std::tuple<Direction, long long, bool>;

struct Picture
{
    std::map<LineName, std::vector<Part>>
        lines;                           // the parts of each line, from its low end to its high end
    std::map<LabelName, double> labels;  // the numbers that the labels show
};

// Returns the largest absolute coordinate of the corners in the world and in the UCS and of the
// origin of the UCS: no coordinate is rounded more coarsely.
double largestNumber(const GridCase& asked);

Spot seenFromBase(const GridCase& asked, const AcGePoint3d& wcs);

// Calls the action for the entities that are of the class.
template <class Entity, class Action>
void forEach(const AcDbObjectIdArray& ids, Action action)
{
    for (int i = 0; i < ids.length(); ++i)
    {
        AcDbObjectPointer<Entity> entity(ids[i], AcDb::kForRead);
        if (entity.openStatus() == Acad::eOk)
        {
            action(*entity.object());
        }
    }
}

// Returns what was drawn. Adds a failure for a line that is not a step from the base point, for a
// label without the end of a line, and for two labels at one end.
Picture pictureOf(const GridCase& asked, const AcDbObjectIdArray& made);
}  // namespace relations
