#include "tests/relations/gridcase.h"

#include <cmath>
#include <cstdlib>
#include <sstream>

#include "output/entities.h"
#include "tests/support/letgo.h"

namespace relations
{
AcGeMatrix3d turnOfXY(double tangentOfHalf)
{
    const double square = tangentOfHalf * tangentOfHalf;
    const double cosine = (1 - square) / (1 + square);
    const double sine = 2 * tangentOfHalf / (1 + square);
    AcGeMatrix3d turn;
    turn.entry[0][0] = turn.entry[1][1] = cosine;
    turn.entry[0][1] = -sine;
    turn.entry[1][0] = sine;
    return turn;
}

// Returns a rotation about the X axis.
static AcGeMatrix3d tilt(double tangentOfHalf)
{
    const AcGeMatrix3d turn = turnOfXY(tangentOfHalf);
    AcGeMatrix3d about;
    for (const int row : {0, 1})
    {
        for (const int column : {0, 1})
        {
            about.entry[row + 1][column + 1] = turn.entry[row][column];
        }
    }
    return about;
}

AcGeMatrix3d turnInSpace(Chance& chance)
{
    const AcGeMatrix3d first = turnOfXY(chance.between(-1, 1));
    const AcGeMatrix3d second = tilt(chance.between(-1, 1));
    return first * second * turnOfXY(chance.between(-1, 1));
}

namespace
{
// Numbers of one kind.
struct Numbers
{
    Chance& chance;
    int kind;
    double largest = kind == 2 || (kind == 0 && chance.oneIn(3)) ? 1e7 : 1000;

    double between(double low, double high) const
    {
        const double number = chance.between(low, high);
        return kind == 0 ? std::floor(number) : number;
    }
    double anywhere() const { return between(-largest, largest); }
};

AcGeMatrix3d randomFrame(const Numbers& numbers, bool mayTilt)
{
    Chance& chance = numbers.chance;
    const int quarters = chance.below(6);
    const double tangents[] = {0, 1, -1};
    AcGeMatrix3d frame = turnOfXY(quarters < 3 ? tangents[quarters] : chance.between(-1, 1));
    if (mayTilt && chance.oneIn(2))
    {
        frame = turnInSpace(chance);
    }
    // Braces are evaluated from left to right; the order between parentheses depends on the
    // compiler.
    const AcGePoint3d origin{numbers.anywhere(), numbers.anywhere(), numbers.between(-200, 200)};
    return frame.setTranslation(origin.asVector());
}

AcGePoint3d carried(const AcGeMatrix3d& frame, double x, double y)
{
    return AcGePoint3d(x, y, 0).transformBy(frame);
}

// Returns a step for 0 to about four lines in each direction, now and then up to thirty.
double randomStep(const Numbers& numbers, double size)
{
    const double most = numbers.chance.oneIn(50) ? 30 : 4.5;
    const double step = size / numbers.chance.between(0.4, most);
    return numbers.kind == 0 ? std::ceil(step * 2) / 2 : step;
}

void shakeCorners(const Numbers& numbers, Shape shape, double width, double height,
                  std::array<AcGePoint3d, 4>& outline)
{
    for (AcGePoint3d& corner : outline)
    {
        corner.x += numbers.between(-width / 4, width / 4);
        corner.y += numbers.between(-height / 4, height / 4);
    }
    if (shape == Shape::concave)
    {
        const AcGeVector3d across = outline[1] - outline[3];
        outline[3] += across * numbers.chance.between(0.6, 0.9);
    }
}
}  // namespace

GridCase randomCase(Chance& chance, Shape shape)
{
    // A concave outline has no whole numbers: on the diagonal that closes the notch, the angles to
    // its corners make a full turn, too, and whole numbers put nodes there.
    const Numbers numbers{chance, shape == Shape::concave ? 1 + chance.below(2) : chance.below(3)};
    GridCase asked;
    asked.alongUcs = shape == Shape::rectangle && chance.oneIn(2);
    asked.ucs = randomFrame(numbers, asked.alongUcs);

    const double width = numbers.between(5, 100);
    const double height = numbers.between(5, 100);
    const double left = chance.oneIn(2) ? numbers.between(-50, 50) : numbers.anywhere();
    const double low = numbers.between(-50, 50);
    const double right = left + width;
    const double high = low + height;
    asked.outline = {carried(asked.ucs, left, low), carried(asked.ucs, left, high),
                     carried(asked.ucs, right, high), carried(asked.ucs, right, low)};
    if (chance.oneIn(2))
    {
        std::swap(asked.outline[0], asked.outline[1]);
        std::swap(asked.outline[2], asked.outline[3]);
    }
    if (shape != Shape::rectangle)
    {
        shakeCorners(numbers, shape, width, height, asked.outline);
    }
    const double baseX = left + numbers.between(-width, 2 * width);
    const double baseY = low + numbers.between(-height, 2 * height);
    asked.base = carried(asked.ucs, baseX, baseY);
    asked.steps = {randomStep(numbers, width), randomStep(numbers, height)};
    if (chance.oneIn(3))
    {
        // A bar is at most two steps long: a longer one would enter from nodes further than one
        // step outside, and the engine considers more of these on one side than on the other.
        asked.crossSize = std::min(asked.steps[0], asked.steps[1]) * chance.between(0.1, 1.9);
    }
    for (int edge = 0; edge < 4 && shape == Shape::rectangle; ++edge)
    {
        asked.xEdges[edge] = !chance.oneIn(4);
        asked.yEdges[edge] = !chance.oneIn(4);
    }
    return asked;
}

std::string describe(const GridCase& asked)
{
    std::ostringstream out;
    out << std::hexfloat << (asked.alongUcs ? "along the UCS" : "along the world") << "\nucs";
    for (const auto& row : asked.ucs.entry)
    {
        out << "\n ";
        for (const double value : row)
        {
            out << ' ' << value;
        }
    }
    const auto point = [&](const char* name, const AcGePoint3d& p)
    {
        out << '\n'
            << name << ' ' << std::hexfloat << p.x << ' ' << p.y << ' ' << p.z << std::defaultfloat
            << " = " << p.x << ' ' << p.y << ' ' << p.z << std::hexfloat;
    };
    for (const AcGePoint3d& corner : asked.outline)
    {
        point("corner", corner);
    }
    point("base", asked.base);
    out << "\nsteps " << asked.steps[0] << ' ' << asked.steps[1] << std::defaultfloat << " = "
        << asked.steps[0] << ' ' << asked.steps[1] << "\ncross "
        << (asked.crossSize ? *asked.crossSize : 0) << '\n';
    return out.str();
}

static std::optional<long long> fromEnvironment(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional(std::atoll(value));
}

int caseCount(int usual)
{
    return static_cast<int>(fromEnvironment("NETRAX_CASES").value_or(usual));
}

std::uint64_t caseSeed(std::uint64_t own)
{
    const auto moved = static_cast<std::uint64_t>(fromEnvironment("NETRAX_SEED").value_or(0));
    return own + moved * 1000003;
}

AcDbObjectId Sheet::drawOutline(const GridCase& asked)
{
    // A drawing keeps everything that was in it, even when it is not used any more.
    if (++m_drawn % 2000 == 0)
    {
        TearDown();
        SetUp();
    }
    setUcs(asked.ucs);
    AcGePoint3dArray points;
    for (int i = 0; i <= 4; ++i)
    {
        points.append(asked.outline[i % 4]);
    }
    return addOutline(points);
}

AcDbObjectId Sheet::addOutline(const AcGePoint3dArray& points)
{
    const tests::LetGo letGo;  // a refused entity has no owner
    return addPolylineFrame(false, points, 250, nullptr, nullptr, ACDB_MODEL_SPACE);
}

AcDbObjectIdArray Sheet::drawGrid(const AcDbObjectId& outline, const GridCase& asked,
                                  decltype(buildGrid)* build)
{
    const auto& x = asked.xEdges;
    const auto& y = asked.yEdges;
    return build(outline, asked.outline[0], asked.outline[2], asked.steps[0], asked.steps[1], 12,
                 asked.crossSize.value_or(4), asked.crossSize ? 1 : 0, asked.alongUcs ? 1 : 0,
                 asked.base, asked.needText, asked.heightText, asked.decimals, x[0], x[1], x[2],
                 x[3], y[0], y[1], y[2], y[3], L"X=", L"Y=", L"Standard", L"en-US");
}
}  // namespace relations
