// Compares the points that are kept in order with the list that is searched from its beginning.
#include <cmath>

#include "engine/pointtests.h"
#include "output/tolerance.h"
#include "tests/relations/gridcase.h"
#include "tests/relations/plainpoints.h"

namespace
{
using relations::Chance;
using relations::infinity;

// Returns offsets of the deciding length, of the next shorter and longer lengths, and of any other
// length.
double offset(Chance& chance, double distance)
{
    switch (chance.below(6))
    {
        case 0:
            return distance;
        case 1:
            return std::nextafter(distance, 0.0);
        case 2:
            return -std::nextafter(distance, infinity);
        case 3:
            return 0;
        default:
            return distance * std::pow(10, chance.between(-3, 1)) * (chance.oneIn(2) ? 1 : -1);
    }
}

double coordinate(Chance& chance)
{
    const double odd[] = {
        infinity, -infinity, relations::notANumber, -0.0, 1e150, 1.1e150, -1e300, 1e200,
        1e-300,   0x1p-1074};
    const double sizes[] = {1e-7, 1, 1e4, 1e7, 1e12};
    return chance.oneIn(20) ? odd[chance.below(10)]
                            : chance.between(-1, 1) * sizes[chance.below(5)];
}

// Returns a new point, or one near a former point.
AcGePoint3d point(Chance& chance, const AcGePoint3dArray& list)
{
    if (list.isEmpty() || chance.oneIn(4))
    {
        return {coordinate(chance), coordinate(chance), chance.oneIn(2) ? 0 : coordinate(chance)};
    }
    const AcGePoint3d& former = list[chance.below(list.length())];
    const double distance = atLeastRounding(1e-6, largestCoordinate(former));
    AcGeVector3d away;
    (chance.oneIn(2) ? away.x : chance.oneIn(2) ? away.y : away.z) = offset(chance, distance);
    if (chance.oneIn(3))
    {
        away.y = offset(chance, distance);
    }
    return former + away;
}

TEST(KnownPoints, areFoundExactlyWhereAListFindsThem)
{
    Chance chance(relations::caseSeed(11));
    long long found = 0, asked = 0;
    for (int left = relations::caseCount(100000); left > 0 && !HasFailure(); --left)
    {
        const AcGeVector3d directions[] = {
            AcGeVector3d::kXAxis,
            AcGeVector3d::kYAxis,
            AcGeVector3d::kZAxis,
            {chance.between(-1, 1), chance.between(-1, 1), chance.between(-1, 1)}};
        KnownPoints known(directions[chance.below(4)]);
        AcGePoint3dArray list;
        for (int i = chance.below(40); i >= 0; --i)
        {
            const AcGePoint3d P = point(chance, list);
            const bool isInList = relations::plain::containsPoint(list, P);
            EXPECT_EQ(known.containsPoint(P), isInList)
                << std::hexfloat << P.x << ' ' << P.y << ' ' << P.z;
            found += isInList;
            ++asked;
            list.append(P);
            known.add(P);
        }
    }
    EXPECT_GT(found, asked / 10);
    EXPECT_LT(found, asked / 2);
    std::printf("%lld of %lld points were known\n", found, asked);
}
}  // namespace
