// Checks that the engine and the plain grid draw the same.
#include "tests/relations/plaingrid.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <ostream>

#include "output/entities.h"
#include "tests/relations/picture.h"

namespace
{
using namespace relations;

// All numbers that a drawing keeps of a line or a text.
struct Drawn
{
    std::wstring text;
    AcGePoint3d anchor;  // the anchor of the text
    std::vector<double> numbers;
    std::vector<AcDbObjectId> ids;

    bool operator==(const Drawn& other) const
    {
        const auto sameBits = [](double a, double b)
        { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); };
        return text == other.text && ids == other.ids &&
               std::ranges::equal(numbers, other.numbers, sameBits);
    }
    void add(const AcGePoint3d& point)
    {
        numbers.insert(numbers.end(), {point.x, point.y, point.z});
    }
};

void PrintTo(const Drawn& drawn, std::ostream* out)
{
    *out << testing::PrintToString(drawn.text) << std::hexfloat;
    for (const double number : drawn.numbers)
    {
        *out << ' ' << number;
    }
}

void add(Drawn& drawn, const AcDbText& text)
{
    drawn.text = text.textStringConst();
    drawn.anchor = text.alignmentPoint();
    drawn.ids.push_back(text.textStyle());
    drawn.add(text.position());
    drawn.add(drawn.anchor);
    for (const double number : {text.height(), text.rotation(), text.oblique(), text.widthFactor(),
                                double(text.horizontalMode()), double(text.verticalMode())})
    {
        drawn.numbers.push_back(number);
    }
}

Drawn drawnOf(const AcDbEntity& entity)
{
    Drawn drawn;
    drawn.ids = {entity.layerId(), entity.linetypeId()};
    drawn.numbers = {double(entity.colorIndex()), entity.linetypeScale(),
                     double(entity.lineWeight()), double(entity.visibility())};
    const AcGeVector3d normal = entity.normal();
    drawn.add(AcGePoint3d(normal.x, normal.y, normal.z));
    if (const AcDbLine* const line = AcDbLine::cast(&entity))
    {
        drawn.add(line->startPoint());
        drawn.add(line->endPoint());
    }
    if (const AcDbText* const text = AcDbText::cast(&entity))
    {
        add(drawn, *text);
    }
    return drawn;
}

std::vector<Drawn> drawnOf(const AcDbObjectIdArray& made)
{
    std::vector<Drawn> all;
    forEach<AcDbEntity>(made, [&](const AcDbEntity& entity) { all.push_back(drawnOf(entity)); });
    EXPECT_EQ(static_cast<int>(all.size()), made.length());
    return all;
}

double oneOf(Chance& chance, std::initializer_list<double> numbers)
{
    return numbers.begin()[chance.below(static_cast<int>(numbers.size()))];
}

// Returns a small number around the tolerances and the limits of the shortcuts, from far below the
// smallest to far above the largest.
double hair(Chance& chance)
{
    return std::pow(10, chance.between(-14, -3)) * (chance.oneIn(2) ? 1 : -1);
}

// Makes lines so near each other that the ends of one line are those of its neighbour, too.
void shrink(GridCase& asked, double scale)
{
    const auto shrunk = [&](AcGePoint3d& point)
    { point = AcGePoint3d(point.x * scale, point.y * scale, point.z * scale); };
    std::ranges::for_each(asked.outline, shrunk);
    shrunk(asked.base);
    for (auto& row : asked.ucs.entry)
    {
        row[3] *= &row == &asked.ucs.entry[3] ? 1 : scale;
    }
    asked.steps = {asked.steps[0] * scale, asked.steps[1] * scale};
    asked.crossSize = asked.crossSize ? std::optional(*asked.crossSize * scale) : std::nullopt;
}

double oddNumber(Chance& chance)
{
    return oneOf(chance, {0, -0.0, -10, 1e-300, 1e17, 1e71, 1e150, 1.1e150, -infinity, infinity,
                          notANumber, std::numeric_limits<double>::max()});
}

void degenerate(Chance& chance, GridCase& asked)
{
    auto& outline = asked.outline;
    switch (chance.below(10))
    {
        case 0:
            outline[2] = outline[1];
            outline[3] = outline[0];
            break;
        case 1:
            outline[1] = outline[0];
            outline[3] = outline[2];
            break;
        case 2:
            std::swap(outline[1], outline[2]);  // the edges of the outline cross
            break;
        case 3:
            outline[2].z += oneOf(chance, {1, hair(chance)});
            break;
        case 4:
            asked.steps[chance.below(2)] = oddNumber(chance);
            break;
        case 5:
            asked.crossSize = oneOf(chance, {300, hair(chance), oddNumber(chance)});
            break;
        case 6:
            (chance.oneIn(2) ? asked.base : outline[chance.below(4)]).x = oddNumber(chance);
            break;
        case 7:
        case 8:
            asked.base = outline[0] + AcGeVector3d(hair(chance), hair(chance), 0);
            break;
        default:
            outline[chance.below(4)] += AcGeVector3d(hair(chance), hair(chance), 0);
    }
}

// Thousands of lines take time and prove no more; from 2^25 nodes on no line is drawn.
void coarsen(GridCase& asked)
{
    const AcGeMatrix3d toUcs = asked.ucs.inverse();
    const AcGePoint3d first = asked.outline[0];
    const AcGePoint3d firstUcs = AcGePoint3d(first).transformBy(toUcs);
    for (const unsigned axis : {0u, 1u})
    {
        double farthest = 0;
        for (AcGePoint3d corner : asked.outline)
        {
            farthest = std::fmax(farthest, std::abs(corner[axis] - first[axis]));
            corner.transformBy(toUcs);
            farthest = std::fmax(farthest, std::abs(corner[axis] - firstUcs[axis]));
        }
        const double lines = farthest / asked.steps[axis];
        asked.steps[axis] = lines > 50 && lines < 1e8 ? farthest / 7 : asked.steps[axis];
    }
}

GridCase anyCase(Chance& chance)
{
    const auto shape = static_cast<Shape>(chance.oneIn(2) ? 0 : chance.below(3));
    GridCase asked = randomCase(chance, shape);
    asked.needText = !chance.oneIn(4);
    asked.alongUcs = asked.alongUcs || chance.oneIn(5);
    if (chance.oneIn(8))
    {
        asked.steps = {asked.steps[0] / 4, asked.steps[1] / 4};
    }
    if (shape != Shape::rectangle)
    {
        asked.xEdges = asked.yEdges = {true, true, true, chance.oneIn(2)};
    }
    for (int count = chance.below(3); count > 0; --count)
    {
        degenerate(chance, asked);
    }
    if (chance.oneIn(8))
    {
        shrink(asked, std::pow(10, chance.between(-11, -4)));
    }
    coarsen(asked);
    return asked;
}

class BorrowedTolerances
{
public:
    explicit BorrowedTolerances(Chance& chance) : m_former(AcGeContext::gTol)
    {
        if (chance.oneIn(5))
        {
            AcGeContext::gTol.setEqualPoint(oneOf(chance, {1, 1e-3, 1e-6, 1e-12, 0}));
            AcGeContext::gTol.setEqualVector(oneOf(chance, {1, 1e-3, 1e-6, 1e-10, 0}));
        }
    }
    ~BorrowedTolerances() { AcGeContext::gTol = m_former; }
    BorrowedTolerances(const BorrowedTolerances&) = delete;
    BorrowedTolerances& operator=(const BorrowedTolerances&) = delete;

private:
    AcGeTol m_former;
};

class PlainGrid : public Sheet
{
protected:
    // Sometimes draws outlines other than the four corners.
    AcDbObjectId drawAnyOutline(Chance& chance, const GridCase& asked)
    {
        const AcDbObjectId outline = drawOutline(asked);
        state().view.twist = oneOf(chance, {0, 0, 0.5, 2, 3.5});
        if (!chance.oneIn(10))
        {
            return outline;
        }
        AcGePoint3dArray points;
        for (int i = 0, count = 2 + chance.below(5); i < count; ++i)
        {
            const double across = asked.steps[0] * chance.below(3);
            points.append(asked.outline[i % 4] + AcGeVector3d(across, asked.steps[1], 0));
        }
        return addOutline(points);
    }
    std::size_t objects() const { return host::coreOf(database()).objects().size(); }
};

TEST_F(PlainGrid, isWhatTheEngineDrawsToTheLastBit)
{
    Chance chance(caseSeed(6));
    long long lines[2] = {}, texts[2] = {};
    for (int left = caseCount(40000); left > 0 && !HasFailure(); --left)
    {
        const GridCase asked = anyCase(chance);
        const AcDbObjectId outline = drawAnyOutline(chance, asked);
        const BorrowedTolerances tolerances(chance);
        const std::size_t before = objects();
        const auto quick = drawnOf(drawGrid(outline, asked));
        const std::size_t between = objects();
        const auto plain = drawnOf(drawGrid(outline, asked, &buildPlainGrid<CarriedOn::wholeLine>));
        EXPECT_EQ(quick, plain) << describe(asked);
        EXPECT_EQ(between - before, objects() - between) << describe(asked);
        for (const Drawn& drawn : plain)
        {
            ++(drawn.text.empty() ? lines : texts)[asked.alongUcs];
        }
    }
    std::printf("%lld lines and %lld texts along the world, %lld and %lld along the UCS\n",
                lines[0], texts[0], lines[1], texts[1]);
}

std::vector<Drawn> textsOf(std::vector<Drawn> all)
{
    std::erase_if(all, [](const Drawn& drawn) { return drawn.text.empty(); });
    return all;
}

// Along the UCS the sign of zero depends on rounding.
std::wstring unsignedNought(const std::wstring& text)
{
    return text.substr(2) == L"-0.000" ? text.substr(0, 2) + L"0.000" : text;
}

// The order of the ends of a line depends on rounding where both are equally high.
double distanceToNearest(const AcGePoint3d& anchor, const std::vector<Drawn>& texts)
{
    double nearest = infinity;
    for (const Drawn& drawn : texts)
    {
        nearest = std::min(nearest, drawn.anchor.distanceTo(anchor));
    }
    return nearest;
}

// Which line is extended makes a difference of rounding only.
TEST_F(PlainGrid, hasTheSameLabelsWhenEveryPieceIsCarriedOn)
{
    Chance chance(caseSeed(7));
    long long texts = 0;
    double farthest = 0;
    for (int left = caseCount(10000); left > 0 && !HasFailure(); --left)
    {
        const GridCase asked = randomCase(chance, Shape::rectangle);
        const AcDbObjectId outline = drawOutline(asked);
        const auto quick = textsOf(drawnOf(drawGrid(outline, asked)));
        const auto plain =
            textsOf(drawnOf(drawGrid(outline, asked, &buildPlainGrid<CarriedOn::piece>)));
        if (largestNumber(asked) > 28000)
        {
            continue;
        }
        ASSERT_EQ(quick.size(), plain.size()) << describe(asked);
        for (std::size_t i = 0; i < quick.size(); ++i)
        {
            EXPECT_EQ(unsignedNought(quick[i].text), unsignedNought(plain[i].text))
                << describe(asked);
            farthest = std::max(farthest, distanceToNearest(quick[i].anchor, plain));
        }
        texts += static_cast<long long>(quick.size());
    }
    std::printf("%lld texts, %g off at most\n", texts, farthest);
    EXPECT_LT(farthest, 1e-8);
}
}  // namespace
