#include <algorithm>
#include <cmath>
#include <cstdio>

#include "tests/relations/expectation.h"
#include "tests/relations/moves.h"

namespace
{
using namespace relations;

double lengthOf(const std::vector<Part>& parts)
{
    double length = 0;
    for (const Part& part : parts)
    {
        length += part.high - part.low;
    }
    return length;
}

void expectSameNames(const Picture& drawn, const Picture& expected)
{
    const auto names = [](const auto& map)
    {
        std::vector<typename std::decay_t<decltype(map)>::key_type> all;
        for (const auto& [name, value] : map)
        {
            all.push_back(name);
        }
        return all;
    };
    EXPECT_EQ(names(drawn.lines), names(expected.lines));
    EXPECT_EQ(names(drawn.labels), names(expected.labels));
}

// Checks that each line is as long as the outline allows, in as many pieces as there are nodes.
void expectSameLengths(const Picture& drawn, const Expectation& expected)
{
    for (const auto& [name, parts] : expected.picture.lines)
    {
        const std::vector<Part>& drawnParts = drawn.lines.at(name);
        ASSERT_EQ(drawnParts.size(), parts.size());
        const double tolerance = expected.tolerance * static_cast<double>(2 * parts.size());
        EXPECT_NEAR(lengthOf(drawnParts), lengthOf(parts), tolerance);
    }
}

void expectValues(const Picture& drawn, const Expectation& expected, int decimals)
{
    const double shown = 0.5 * std::pow(10, -decimals);
    for (const auto& [name, value] : expected.picture.labels)
    {
        EXPECT_NEAR(drawn.labels.at(name), value, shown + expected.tolerance);
    }
}

void expectJoined(const Picture& drawn, double tolerance)
{
    for (const auto& [name, parts] : drawn.lines)
    {
        for (std::size_t i = 1; i < parts.size(); ++i)
        {
            EXPECT_NEAR(parts[i - 1].high, parts[i].low, tolerance);
        }
    }
}

// Returns the distance to the outline's area, which is 0 inside.
double distanceOutside(const std::array<Spot, 4>& corners, const Spot& spot)
{
    bool isInside = false;
    double nearest = 1e300;
    for (unsigned i = 0; i < 4; ++i)
    {
        const Spot& a = corners[i];
        const Spot& b = corners[(i + 1) % 4];
        if ((a.y > spot.y) != (b.y > spot.y) &&
            spot.x < a.x + (b.x - a.x) * (spot.y - a.y) / (b.y - a.y))
        {
            isInside = !isInside;
        }
        const double square = (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
        const double way = (spot.x - a.x) * (b.x - a.x) + (spot.y - a.y) * (b.y - a.y);
        const double t = std::clamp(way / square, 0.0, 1.0);
        nearest = std::min(
            nearest, std::hypot(a.x + (b.x - a.x) * t - spot.x, a.y + (b.y - a.y) * t - spot.y));
    }
    return isInside ? 0 : nearest;
}

double farthestOutside(const GridCase& asked, const AcDbObjectIdArray& made)
{
    std::array<Spot, 4> corners;
    std::ranges::transform(asked.outline, corners.begin(),
                           [&](const AcGePoint3d& corner) { return seenFromBase(asked, corner); });
    double farthest = 0;
    const auto look = [&](const AcGePoint3d& end)
    { farthest = std::max(farthest, distanceOutside(corners, seenFromBase(asked, end))); };
    forEach<AcDbLine>(made,
                      [&](const AcDbLine& line)
                      {
                          look(line.startPoint());
                          look(line.endPoint());
                      });
    return farthest;
}

// Returns the rounding error of coordinates: one unit in the last place, times the number of times
// that it can add up.
double rounding(const GridCase& asked)
{
    return 1e-13 + 64 * 0x1p-52 * largestNumber(asked);
}

void checkAlone(const GridCase& asked, const Picture& drawn, const Expectation& expected)
{
    expectSameNames(drawn, expected.picture);
    if (testing::Test::HasFailure())
    {
        return;
    }
    expectSameLengths(drawn, expected);
    expectValues(drawn, expected, asked.decimals);
    if (!asked.crossSize)
    {
        expectJoined(drawn, rounding(asked));
    }
}

void expectSame(const Picture& left, const Picture& right, double tolerance)
{
    expectSameNames(left, right);
    for (auto a = left.lines.begin(), b = right.lines.begin();
         a != left.lines.end() && !testing::Test::HasFailure(); ++a, ++b)
    {
        ASSERT_EQ(a->second.size(), b->second.size());
        for (std::size_t i = 0; i < a->second.size(); ++i)
        {
            EXPECT_NEAR(a->second[i].low, b->second[i].low, tolerance);
            EXPECT_NEAR(a->second[i].high, b->second[i].high, tolerance);
        }
    }
    for (const auto& [name, value] : left.labels)
    {
        EXPECT_NEAR(value, right.labels.at(name),
                    0.001 + tolerance);  // the labels have three decimals
    }
}

struct Seen
{
    Picture picture;
    double tolerance;  // the tolerance of the grid's numbers
};

struct Tally
{
    int drawn = 0;
    int doubtful = 0;
    long long pieces = 0;
    long long labels = 0;

    void add(const Picture& picture)
    {
        ++drawn;
        labels += static_cast<long long>(picture.labels.size());
        for (const auto& [name, parts] : picture.lines)
        {
            pieces += static_cast<long long>(parts.size());
        }
    }
    ~Tally()
    {
        std::printf("%d grids of %lld pieces with %lld labels, %d more left out as doubtful\n",
                    drawn, pieces, labels, doubtful);
        // Otherwise the relations would hold only because there are no cases.
        EXPECT_LT(doubtful, drawn / 20 + 1);
    }
};

class Relations : public Sheet
{
protected:
    // Draws a case and checks that no end lies outside.
    Picture drawn(const GridCase& asked)
    {
        m_asked = asked;
        const AcDbObjectIdArray made = drawGrid(drawOutline(asked), asked);
        EXPECT_LE(farthestOutside(asked, made), rounding(asked));
        return pictureOf(asked, made);
    }
    // Writes only the first failure, because writing it takes longer than the grid.
    void TearDown() override
    {
        if (HasFailure())
        {
            std::printf("%s", describe(m_asked).c_str());
        }
        Sheet::TearDown();
    }
    // Draws a case and checks everything that holds for it alone.
    std::optional<Seen> check(const GridCase& asked, Tally& tally)
    {
        const auto expected = expectationOf(asked);
        if (!expected)
        {
            ++tally.doubtful;
            return std::nullopt;
        }
        const Picture picture = drawn(asked);
        checkAlone(asked, picture, *expected);
        tally.add(picture);
        return Seen{picture, expected->tolerance};
    }

private:
    GridCase m_asked;
};

Shape mostlyRectangle(Chance& chance)
{
    return chance.oneIn(3) ? Shape::convex : Shape::rectangle;
}

TEST_F(Relations, linesAreAsLongAsTheOutlineAllowsAndEndOnIt)
{
    Chance chance(caseSeed(2));
    Tally tally;
    for (int left = caseCount(50000); left > 0 && !HasFailure(); --left)
    {
        check(randomCase(chance, mostlyRectangle(chance)), tally);
    }
}

class MovedGrid : public Relations, public testing::WithParamInterface<Move>
{
};

// Moving rounds every number again, so each grid differs by a few units in the last place from the
// other.
TEST_P(MovedGrid, followsWhatItIsDrawnIn)
{
    Chance chance(caseSeed(5));
    Tally tally;
    for (int left = caseCount(20000); left > 0 && !HasFailure(); --left)
    {
        const GridCase asked = randomCase(chance, mostlyRectangle(chance));
        const auto here = check(asked, tally);
        const auto there = check(GetParam().moved(asked, chance), tally);
        if (here && there && !HasFailure())
        {
            expectSame(GetParam().seen(here->picture, asked.alongUcs), there->picture,
                       here->tolerance + there->tolerance);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Each, MovedGrid, testing::ValuesIn(moves),
                         [](const auto& info) { return info.param.name; });

// A concave outline may draw other pieces of a line: the point test accepts only points that see
// all corners in turn, and a piece is cut at its farthest crossing. The command never draws such an
// outline.
TEST_F(Relations, noEndLiesOutsideAConcaveOutlineEither)
{
    Chance chance(caseSeed(3));
    long long lines = 0;
    for (int left = caseCount(10000); left > 0 && !HasFailure(); --left)
    {
        const GridCase asked = randomCase(chance, Shape::concave);
        const AcDbObjectIdArray made = drawGrid(drawOutline(asked), asked);
        EXPECT_LE(farthestOutside(asked, made), rounding(asked)) << describe(asked);
        lines += made.length();
    }
    std::printf("%lld pieces\n", lines);
}
}  // namespace
