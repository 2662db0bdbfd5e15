// Chooses random grids and draws them.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>

#include "engine/buildgrid.h"
#include "tests/support/opendrawing.h"

namespace relations
{
const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

// All parameters of a grid.
struct GridCase
{
    AcGeMatrix3d ucs;  // [ucs] to [wcs]
    bool alongUcs = false;
    std::array<AcGePoint3d, 4> outline;  // [wcs]; the first and the third are the picked corners
    AcGePoint3d base;                    // [wcs]
    std::array<double, 2> steps = {};    // between vertical lines and between horizontal lines
    std::optional<double> crossSize;     // no value: continuous lines
    bool needText = true;
    double heightText = 1;
    int decimals = 3;
    std::array<bool, 4> xEdges = {};  // top, bottom, left, right
    std::array<bool, 4> yEdges = {};
};

// Describes a case for the trace of a failure, with every bit of every number.
std::string describe(const GridCase& asked);

// Uses plain arithmetic on the engine's bits, so that every library and compiler gives the same
// cases.
class Chance
{
public:
    explicit Chance(std::uint64_t seed) : m_engine(seed) {}

    std::uint64_t bits() { return m_engine(); }
    int below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }
    bool oneIn(int count) { return below(count) == 0; }
    double between(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(m_engine() >> 11) * 0x1p-53);
    }

private:
    std::mt19937_64 m_engine;
};

// Returns a rotation of the plane without the C library's sine, whose last bit may differ between
// processors.
AcGeMatrix3d turnOfXY(double tangentOfHalf);
AcGeMatrix3d turnInSpace(Chance& chance);

enum class Shape
{
    rectangle,  // in the UCS, as the command draws it
    convex,     // any four corners, cut along the world's axes, without labels
    concave,    // four corners with a reflex angle, cut in the same way
};

// Returns cases of three kinds in turn: whole numbers, so that lines run along edges and through
// corners; fractions; survey coordinates. A case has up to some forty nodes.
GridCase randomCase(Chance& chance, Shape shape);

// Returns the number of cases of a test: its own number, or the value of NETRAX_CASES in the
// environment.
int caseCount(int usual);
// Returns the seed of a test: its own number, moved by the value of NETRAX_SEED in the environment.
std::uint64_t caseSeed(std::uint64_t own);

// A drawing in which grids are drawn.
class Sheet : public tests::OpenDrawing
{
protected:
    // Makes the case's UCS current and draws its outline. Ids from earlier calls may be invalid
    // afterwards: entities are not erased between calls, but now and then a new drawing replaces
    // the drawing.
    AcDbObjectId drawOutline(const GridCase& asked);
    // Adds an outline. Returns a null id when a number is not finite.
    static AcDbObjectId addOutline(const AcGePoint3dArray& points);
    // Draws the grid and returns all its entities.
    static AcDbObjectIdArray drawGrid(const AcDbObjectId& outline, const GridCase& asked,
                                      decltype(buildGrid)* build = &buildGrid);

private:
    int m_drawn = 0;
};
}  // namespace relations
