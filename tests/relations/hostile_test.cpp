#include <bit>
#include <cfloat>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <limits>

#include <sys/time.h>
#include <unistd.h>

#include "tests/relations/gridcase.h"

namespace
{
using relations::GridCase;
using relations::infinity;
using relations::notANumber;

const double oddNumbers[] = {
    0,          -0.0,   1,       -1,       10,      -7.3,       0.001,    1e7,
    DBL_MIN,    4e-324, 1e-300,  -1e-300,  DBL_MAX, -DBL_MAX,   infinity, -infinity,
    notANumber, 0x1p31, -0x1p31, 0x1p32,   0x1p53,  0x1p31 - 1, 0x1p63,   1e15,
    1e15 + 0.5, -1e15,  1e17,    1e150,    -1e150,  1.1e150,    5e-151,   1e154,
    1e-9,       1e-10,  1e-6,    33554432, 28000,   1e70,       -1.1e70,  3};

double anyNumber(relations::Chance& chance)
{
    if (chance.oneIn(8))
    {
        return std::bit_cast<double>(chance.bits());
    }
    const double number = oddNumbers[chance.below(std::size(oddNumbers))];
    return chance.oneIn(4) ? std::nextafter(number, chance.oneIn(2) ? infinity : 0) : number;
}

// Makes one to three numbers of a case hostile. A case of only hostile numbers would be refused at
// the first one.
void spoil(relations::Chance& chance, GridCase& asked)
{
    const auto point = [&]() -> double*
    {
        AcGePoint3d& any = chance.oneIn(3) ? asked.base : asked.outline[chance.below(4)];
        return &any[static_cast<unsigned>(chance.below(3))];
    };
    for (int count = 1 + chance.below(3); count > 0; --count)
    {
        switch (chance.below(6))
        {
            case 0:
            case 1:
                asked.steps[chance.below(2)] = anyNumber(chance);
                break;
            case 2:
            case 3:
                *point() = anyNumber(chance);
                break;
            case 4:
                asked.crossSize = anyNumber(chance);
                break;
            default:
                asked.heightText = anyNumber(chance);
                asked.decimals = static_cast<int>(chance.bits());
        }
    }
    if (chance.oneIn(8))
    {
        const double far = chance.oneIn(2) ? 1e15 : anyNumber(chance);
        asked.ucs.entry[chance.below(2)][3] = far;
    }
}

// The extent that the lines of a case must cover, along the grid's own axes.
struct Extent
{
    explicit Extent(const GridCase& asked, const AcGePoint3dArray& drawn)
    {
        for (AcGePoint3d corner : {asked.outline[0], asked.outline[2]})
        {
            take(asked.alongUcs ? corner.transformBy(asked.ucs.inverse()) : corner);
        }
        for (int i = 0; i < drawn.length() && !asked.alongUcs; ++i)
        {
            take(drawn[i]);
        }
    }

    double size(unsigned axis) const { return high[axis] - low[axis]; }
    // The count includes one line on either side and two for rounding.
    double lines(const GridCase& asked, unsigned axis) const
    {
        return size(axis) / asked.steps[axis] + 4;
    }

    double low[2] = {infinity, infinity};
    double high[2] = {-infinity, -infinity};

private:
    void take(const AcGePoint3d& point)
    {
        for (unsigned axis = 0; axis < 2; ++axis)
        {
            low[axis] = std::fmin(low[axis], point[axis]);
            high[axis] = std::fmax(high[axis], point[axis]);
        }
    }
};

// Millions of lines that a sheet really requests are not a hostile case but a large drawing, which
// takes time.
void coarsen(GridCase& asked, const Extent& extent)
{
    for (const unsigned axis : {0u, 1u})
    {
        const double lines = extent.lines(asked, axis);
        if (lines > 40 && lines < 4e7)
        {
            asked.steps[axis] = extent.size(axis) / 7;
        }
    }
}

double mostResults(const GridCase& asked, const Extent& extent)
{
    const double x = extent.lines(asked, 0);
    const double y = extent.lines(asked, 1);
    const bool isGrid = x >= 0 && y >= 0 && x <= 40 && y <= 40;
    return isGrid ? 2 * x * y + 2 * (x + y) : 1;  // the single text of a tilted sheet
}

// Ends the run and names the case when a case takes three seconds of processor time.
class Patience
{
public:
    Patience() { std::signal(SIGVTALRM, &giveUp); }
    ~Patience() { arm(0); }

    void begin(int number)
    {
        current = number;
        arm(3);
    }

private:
    static void arm(int seconds)
    {
        const itimerval timer = {{0, 0}, {seconds, 0}};
        setitimer(ITIMER_VIRTUAL, &timer, nullptr);
    }
    static void giveUp(int)
    {
        char said[64];
        const int length = std::snprintf(said, sizeof said, "case %d does not end\n", current);
        [[maybe_unused]] const auto written = write(2, said, static_cast<std::size_t>(length));
        _exit(1);
    }

    static inline volatile int current = 0;
};

AcGePoint3dArray pointsOf(const AcDbObjectId& outline)
{
    AcGePoint3dArray points;
    AcDbObjectPointer<AcDbEntity> opened(outline, AcDb::kForRead);
    if (opened.openStatus() == Acad::eOk)
    {
        opened->getStretchPoints(points);
    }
    return points;
}

double processorSeconds()
{
    timespec now;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Ten times the longest of a million cases, also with the sanitizers.
const double longest = 0.5;  // seconds of processor time

class HostileInput : public relations::Sheet
{
};

TEST_F(HostileInput, endsSoonWithNoMoreThanTheSheetHolds)
{
    const int count = relations::caseCount(1000000);
    relations::Chance chance(relations::caseSeed(1));
    Patience patience;
    double slowest = 0;
    long long results = 0;
    int drawn = 0;
    for (int i = 0; i < count && !HasFailure(); ++i)
    {
        const auto shape = static_cast<relations::Shape>(chance.oneIn(4) ? 1 + chance.below(2) : 0);
        GridCase asked = randomCase(chance, shape);
        // The grid has few lines, so that a million cases fit into the time.
        asked.steps = {2 * asked.steps[0], 2 * asked.steps[1]};
        spoil(chance, asked);
        patience.begin(i);
        const double begun = processorSeconds();
        const AcDbObjectId outline = drawOutline(asked);
        const Extent extent(asked, pointsOf(outline));
        coarsen(asked, extent);
        const int made = drawGrid(outline, asked).length();
        const double taken = processorSeconds() - begun;
        slowest = std::fmax(slowest, taken);
        EXPECT_LT(taken, longest) << "case " << i << '\n' << describe(asked);
        EXPECT_LE(made, mostResults(asked, extent)) << "case " << i << '\n' << describe(asked);
        results += made;
        drawn += made > 0;
    }
    std::printf("%d hostile cases, %d drawn with %lld results, the slowest took %.4f s\n", count,
                drawn, results, slowest);
}
}  // namespace
