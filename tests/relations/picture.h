// A grid as its lines see it: everything relative to the base point, along the grid's own axes.
// Shifted and turned grids have one picture, mirrored ones a mirrored picture.
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

// Of the one direction, the n-th from the base point.
using LineName = std::pair<Direction, long long>;

struct Part
{
    double low;
    double high;
};

// At the higher end of the line or at the lower one.
using LabelName = std::tuple<Direction, long long, bool>;

struct Picture
{
    std::map<LineName, std::vector<Part>> lines;  // each from its low end to its high end
    std::map<LabelName, double> labels;           // the numbers they show
};

// Corners and coordinates in the world, in the UCS and of its origin: none is rounded more
// coarsely.
double largestNumber(const GridCase& asked);

Spot seenFromBase(const GridCase& asked, const AcGePoint3d& wcs);

// Those of the entities that are of the class.
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

// What was drawn. Adds a failure for a line that is not where a step from the base point is, for a
// label where no line ends and for two labels at one end.
Picture pictureOf(const GridCase& asked, const AcDbObjectIdArray& made);
}  // namespace relations
