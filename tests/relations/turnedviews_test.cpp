#include <cmath>
#include <cstdio>

#include "engine/viewframe.h"
#include "tests/relations/gridcase.h"
#include "tests/relations/picture.h"

namespace
{
using namespace relations;

// Returns twists as DVIEW and the host's own frame leave them: a rounding error beside the quarter
// turn.
double quarterTurn(Chance& chance)
{
    const double degrees = 90 * (chance.below(9) - 4);
    return degrees * (M_PI / 180);
}

class TurnedView : public Sheet
{
protected:
    // Returns a random case that is picked in a plan view with that twist. [ucs] coordinates stay
    // unchanged.
    GridCase seenTwisted(GridCase asked, double twist)
    {
        const AcGeMatrix3d toUcs = asked.ucs.inverse();
        const AcGePoint3d origin = AcGePoint3d().transformBy(asked.ucs);
        state().view.direction = AcGeVector3d::kZAxis;
        state().view.twist = twist;
        setUcs(AcGePoint3d(origin.x, origin.y, 0));
        EXPECT_EQ(setViewFrameUcs(), Acad::eOk);
        asked.ucs = state().ucs().toWorld;
        for (AcGePoint3d& corner : asked.outline)
        {
            corner.transformBy(toUcs).transformBy(asked.ucs);
        }
        asked.base.transformBy(toUcs).transformBy(asked.ucs);
        asked.xEdges = asked.yEdges = {true, true, true, true};
        return asked;
    }
    AcDbObjectIdArray drawn(const GridCase& asked, double twist)
    {
        const AcDbObjectId outline = drawOutline(asked);
        state().view.twist = twist;
        return drawGrid(outline, asked);
    }
};

// The widest angle between labels that begin with the same text, and their number.
struct Spread
{
    double angle = 0;  // [rad]
    int count = 0;
};

Spread spreadOf(const AcDbObjectIdArray& made, wchar_t first)
{
    Spread spread;
    double rotation = 0;
    forEach<AcDbText>(made,
                      [&](const AcDbText& text)
                      {
                          if (text.textStringConst()[0] != first)
                          {
                              return;
                          }
                          rotation = spread.count++ == 0 ? text.rotation() : rotation;
                          const double off = std::remainder(text.rotation() - rotation, 2 * M_PI);
                          spread.angle = std::max(spread.angle, std::abs(off));
                      });
    return spread;
}

TEST_F(TurnedView, hasAllLabelsOfOneKindReadingInOneDirection)
{
    Chance chance(caseSeed(8));
    long long labels = 0;
    for (int left = caseCount(20000); left > 0 && !HasFailure(); --left)
    {
        const double twist = chance.oneIn(4) ? chance.between(-7, 7) : quarterTurn(chance);
        const GridCase asked = seenTwisted(randomCase(chance, Shape::rectangle), twist);
        const AcDbObjectIdArray made = drawn(asked, twist);
        for (const wchar_t kind : {L'X', L'Y'})
        {
            const Spread spread = spreadOf(made, kind);
            EXPECT_LT(spread.angle, 1e-4) << char(kind) << ' ' << twist << '\n' << describe(asked);
            labels += spread.count;
        }
    }
    std::printf("%lld labels\n", labels);
}
}  // namespace
