// Curves as chords, against their formulas.
#include "host/plot/curves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace host::plot;

namespace
{
constexpr double pi = std::numbers::pi;

double distance(const AcGePoint3d& a, const AcGePoint3d& b)
{
    return (b - a).length();
}

void expectNear(const AcGePoint3d& a, const AcGePoint3d& b, const char* what)
{
    EXPECT_NEAR(distance(a, b), 0, 1e-12) << what << ": " << a.x << ',' << a.y << ',' << a.z;
}
}  // namespace

TEST(Curves, anArcRunsCounterClockwiseOnItsCircle)
{
    const struct
    {
        double start, end;
        double angle;  // that the arc covers
        std::size_t chords;
    } rows[] = {
        {0, 2 * pi, 2 * pi, 96},  //
        {1, 1, 2 * pi, 96},       // equal angles
        {0, pi / 2, pi / 2, 24}, {pi / 2, 0, 3 * pi / 2, 72}, {3 * pi / 2, pi / 2, pi, 48},
        {0, 0.001, 0.001, 2},  // the fewest
        {7, 7.5, 0.5, 8},      // more than a turn
    };
    const AcGePoint3d centre(3, -4, 5);
    for (const auto& row : rows)
    {
        const Points points = arc(centre, 2, row.start, row.end);
        ASSERT_EQ(points.size(), row.chords + 1) << row.start << ' ' << row.end;
        for (std::size_t i = 0; i < points.size(); ++i)
        {
            const double at = row.start + row.angle * double(i) / double(row.chords);
            expectNear(points[i], centre + AcGeVector3d(std::cos(at), std::sin(at), 0) * 2, "arc");
        }
    }
}

TEST(Curves, anEllipseRunsFromItsMajorToItsMinorAxis)
{
    const AcGePoint3d centre(1, 2, 3);
    const AcGeVector3d major(3, 4, 0), minor(0, 0, 2);
    for (const AcGePoint3d& point : ellipse(centre, major, minor, 0.3, 4))
    {
        const double along = (point - centre).dotProduct(major) / major.lengthSqrd();
        const double across = (point - centre).dotProduct(minor) / minor.lengthSqrd();
        EXPECT_NEAR(along * along + across * across, 1, 1e-12);
        expectNear(point, centre + major * along + minor * across, "within the plane of the axes");
    }
    expectNear(ellipse(centre, major, minor, 0, pi / 2).front(), centre + major, "major");
    expectNear(ellipse(centre, major, minor, 0, pi / 2).back(), centre + minor, "minor");
}

TEST(Curves, aBulgeIsTheHeightOfTheArcInHalfChords)
{
    for (const double bulge : {1.0, -1.0, 0.25, -0.25, 3.0, 1e-3})
    {
        const AcGePoint3d from(1, 1, 7), to(5, 1, 7);
        const Points points = segment({from, bulge}, to);
        expectNear(points.front(), from, "begin");
        // The circle through both ends and the top of the arc, which is to the right of the chord.
        const double radius = 4 * (1 + bulge * bulge) / (4 * std::abs(bulge));
        const AcGePoint3d top(3, 1 - 2 * bulge, 7);
        const AcGePoint3d centre = top + AcGeVector3d(0, std::copysign(radius, bulge), 0);
        for (const AcGePoint3d& point : points)
        {
            EXPECT_NEAR(distance(point, centre), radius, 1e-9 * radius) << bulge;
        }
        const double angle = 4 * std::atan(std::abs(bulge));
        EXPECT_EQ(points.size(), std::clamp(std::ceil(angle / (2 * pi) * 96), 2.0, 96.0)) << bulge;
    }
}

TEST(Curves, aSegmentThatIsNoArcIsAChord)
{
    const struct
    {
        const char* what;
        double bulge;
        AcGePoint3d to;
    } rows[] = {
        {"no bulge", 0, {4, 0, 0}},
        {"a bulge whose inverse is infinite", 1e-320, {4, 0, 0}},
        {"no length", 1, {0, 0, 0}},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(segment({AcGePoint3d(0, 0, 0), row.bulge}, row.to).size(), 1U) << row.what;
    }
}

TEST(Curves, aChainHasASegmentBackToItsBeginIfItIsClosed)
{
    const Vertex square[] = {{{0, 0, 0}}, {{1, 0, 0}}, {{1, 1, 0}}, {{0, 1, 0}, 1}};
    EXPECT_EQ(chain(square, false).size(), 4U);
    EXPECT_EQ(chain(square, true).size(), 3U + 48U);  // the last side is half a circle
    EXPECT_EQ(chain({}, false).size(), 0U);
    EXPECT_EQ(chain({}, true).size(), 0U);
}

namespace
{
// The value of a B-spline's basis function by its definition.
double basis(int degree, const std::vector<double>& knots, std::size_t i, double t)
{
    if (degree == 0)
    {
        return knots[i] <= t && t < knots[i + 1] ? 1 : 0;
    }
    const auto part = [](double above, double below) { return below == 0 ? 0 : above / below; };
    const std::size_t p = std::size_t(degree);
    return part(t - knots[i], knots[i + p] - knots[i]) * basis(degree - 1, knots, i, t) +
           part(knots[i + p + 1] - t, knots[i + p + 1] - knots[i + 1]) *
               basis(degree - 1, knots, i + 1, t);
}

AcGePoint3d pointBy(int degree, const std::vector<double>& knots, const Points& poles,
                    const std::vector<double>& weights, double t)
{
    AcGeVector3d sum;
    double weight = 0;
    for (std::size_t i = 0; i < poles.size(); ++i)
    {
        const double part = basis(degree, knots, i, t) * (weights.empty() ? 1 : weights[i]);
        sum = sum + poles[i].asVector() * part;
        weight += part;
    }
    return AcGePoint3d() + sum / weight;
}
}  // namespace

TEST(Curves, aSplineHasThePointsOfItsDefinition)
{
    const struct
    {
        int degree;
        std::vector<double> knots;
        Points poles;
        std::vector<double> weights;
    } rows[] = {
        {1, {0, 0, 1, 2, 2}, {{0, 0, 0}, {4, 0, 1}, {4, 3, 0}}, {}},
        {2, {0, 0, 0, 1, 1, 1}, {{0, 0, 0}, {2, 4, 0}, {4, 0, 0}}, {1, 3, 1}},
        {3,
         {0, 0, 0, 0, 1, 3, 3, 3, 3},
         {{0, 0, 0}, {1, 5, 0}, {3, -2, 4}, {6, 6, 0}, {7, 0, 0}},
         {}},
        {3, {0, 1, 2, 3, 4, 5, 6, 7}, {{0, 0, 0}, {1, 2, 0}, {3, 2, 0}, {4, 0, 0}}, {2, 1, 1, 5}},
        {2,
         {0, 0, 0, 1, 1, 2, 2, 2},  // a double knot, where two arcs meet
         {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 1, 0}, {4, 0, 0}},
         {}},
    };
    for (const auto& row : rows)
    {
        const Points points = bspline(row.degree, row.knots, row.poles, row.weights);
        std::size_t at = 0;
        for (std::size_t k = std::size_t(row.degree); k < row.poles.size(); ++k)
        {
            const double low = row.knots[k], high = row.knots[k + 1];
            for (int i = at == 0 ? 0 : 1; i <= 12 && high > low; ++i, ++at)
            {
                ASSERT_LT(at, points.size());
                // Basis functions do not count the end of a span.
                const double t = std::min(low + (high - low) * i / 12, std::nextafter(high, low));
                EXPECT_NEAR(
                    distance(points[at], pointBy(row.degree, row.knots, row.poles, row.weights, t)),
                    0, 1e-9)
                    << row.degree << ' ' << t;
            }
        }
        EXPECT_EQ(at, points.size());
    }
}

TEST(Curves, aWeightedSplineCanBeAQuarterOfACircle)
{
    const std::vector<double> knots{0, 0, 0, 1, 1, 1}, weights{1, std::sqrt(0.5), 1};
    const Points poles{{1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    for (const AcGePoint3d& point : bspline(2, knots, poles, weights))
    {
        EXPECT_NEAR(distance(point, {0, 0, 0}), 1, 1e-12);
    }
}

TEST(Curves, numbersThatMakeNoSplineGiveNoPoints)
{
    const Points two{{0, 0, 0}, {1, 0, 0}};
    std::vector<double> ofDegree26(54);
    std::fill(ofDegree26.begin() + 27, ofDegree26.end(), 1);
    const struct
    {
        const char* what;
        int degree;
        std::vector<double> knots;
        Points poles;
        std::vector<double> weights;
    } rows[] = {
        {"degree 0", 0, {0, 1, 2}, two, {}},
        {"a negative degree", -1, {0, 1}, two, {}},
        {"too high a degree", 26, ofDegree26, Points(27), {}},
        {"as many poles as the degree", 2, {0, 0, 0, 1, 1}, two, {}},
        {"too few knots", 1, {0, 0, 1}, two, {}},
        {"too many knots", 1, {0, 0, 1, 1, 1}, two, {}},
        {"knots that go back", 1, {0, 1, 0, 1}, two, {}},
        {"too few weights", 1, {0, 0, 1, 1}, two, {1}},
    };
    for (const auto& row : rows)
    {
        EXPECT_TRUE(bspline(row.degree, row.knots, row.poles, row.weights).empty()) << row.what;
    }
    EXPECT_EQ(bspline(1, std::vector<double>{0, 0, 1, 1}, two, {}).size(), 13U);
}
