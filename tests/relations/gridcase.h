// Grids that chance asks for, and how they are drawn.
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

// Everything that a grid is asked for with.
struct GridCase
{
    AcGeMatrix3d ucs;  // to world
    bool alongUcs = false;
    std::array<AcGePoint3d, 4> outline;  // [wcs]; the first and the third are the picked corners
    AcGePoint3d base;                    // [wcs]
    std::array<double, 2> steps = {};    // between vertical lines, between horizontal ones
    std::optional<double> crossSize;     // none: continuous lines
    bool needText = true;
    double heightText = 1;
    int decimals = 3;
    std::array<bool, 4> xEdges = {};  // top, bottom, left, right
    std::array<bool, 4> yEdges = {};
};

// For the trace of a failure, with every bit of every number.
std::string describe(const GridCase& asked);

// Plain arithmetic on the engine's bits: the same cases come out of every library and compiler.
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

// A turn of the plane without the C library's sine, whose last bit may differ between processors.
AcGeMatrix3d turnOfXY(double tangentOfHalf);
AcGeMatrix3d turnInSpace(Chance& chance);

enum class Shape
{
    rectangle,  // in the UCS, as the command draws it
    convex,     // any four corners, cut along the world's axes, without labels
    concave,    // likewise
};

// Three kinds in turn: whole numbers, so that lines run along edges and through corners; fractions;
// survey coordinates. Up to some forty nodes.
GridCase randomCase(Chance& chance, Shape shape);

// How many cases a test takes: its own number, or what the environment says in NETRAX_CASES.
int caseCount(int usual);
// The seed of a test: a number of its own, moved by what the environment says in NETRAX_SEED.
std::uint64_t caseSeed(std::uint64_t own);

// A drawing to draw grids in.
class Sheet : public tests::OpenDrawing
{
protected:
    // Makes the case's UCS current and draws its outline. What earlier calls gave may be gone then:
    // nothing is erased between them, but now and then the drawing is left for a new one.
    AcDbObjectId drawOutline(const GridCase& asked);
    // None with a number that is not finite.
    static AcDbObjectId addOutline(const AcGePoint3dArray& points);
    // Everything that the grid made.
    static AcDbObjectIdArray drawGrid(const AcDbObjectId& outline, const GridCase& asked,
                                      decltype(buildGrid)* build = &buildGrid);

private:
    int m_drawn = 0;
};
}  // namespace relations
