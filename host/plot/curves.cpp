#include "host/plot/curves.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace host::plot
{
namespace
{
const double fullTurn = 2 * std::numbers::pi;
const int chordsInTurn = 96;

int chordsFor(double angle)
{
    return std::clamp(int(std::ceil(std::abs(angle) / fullTurn * chordsInTurn)), 2, chordsInTurn);
}

// Returns the angle from start to end, counter-clockwise; a full turn when they are equal.
double sweep(double start, double end)
{
    const double turn = std::fmod(end - start, fullTurn);
    return turn <= 1e-12 ? turn + fullTurn : turn;
}
}  // namespace

Points ellipse(const AcGePoint3d& centre, const AcGeVector3d& major, const AcGeVector3d& minor,
               double start, double end)
{
    const double angle = sweep(start, end);
    const int chords = chordsFor(angle);
    Points points;
    for (int i = 0; i <= chords; ++i)
    {
        const double at = start + angle * i / chords;
        points.push_back(centre + major * std::cos(at) + minor * std::sin(at));
    }
    return points;
}

Points arc(const AcGePoint3d& centre, double radius, double start, double end)
{
    return ellipse(centre, {radius, 0, 0}, {0, radius, 0}, start, end);
}

Points segment(const Vertex& a, const AcGePoint3d& b)
{
    Points points{a.point};
    const AcGeVector3d half = (b - a.point) / 2;
    if (a.bulge == 0 || !std::isfinite(1 / a.bulge) || half.lengthSqrd() == 0)
    {
        return points;
    }
    // The distance of the centre to the left of the chord, as a part of half the chord.
    const double offset = (1 / a.bulge - a.bulge) / 2;
    const AcGePoint3d centre = a.point + half + AcGeVector3d(-half.y, half.x, 0) * offset;
    const double angle = 4 * std::atan(a.bulge);
    const AcGeVector3d out = a.point - centre;
    const AcGeVector3d left(-out.y, out.x, 0);
    const int chords = chordsFor(angle);
    for (int i = 1; i < chords; ++i)
    {
        const double at = angle * i / chords;
        points.push_back(centre + out * std::cos(at) + left * std::sin(at));
    }
    return points;
}

Points chain(std::span<const Vertex> vertices, bool closed)
{
    Points points;
    for (std::size_t i = 0; i + (closed ? 0 : 1) < vertices.size(); ++i)
    {
        const Points part = segment(vertices[i], vertices[(i + 1) % vertices.size()].point);
        points.insert(points.end(), part.begin(), part.end());
    }
    if (!closed && !vertices.empty())
    {
        points.push_back(vertices.back().point);
    }
    return points;
}

namespace
{
struct Weighted
{
    AcGeVector3d sum;
    double weight;
};

// Evaluates De Boor's scheme within the span that begins at knot `k`.
Weighted pointOnSpan(int degree, std::span<const double> knots, std::vector<Weighted> poles,
                     std::size_t k, double t)
{
    for (int level = 1; level <= degree; ++level)
    {
        for (int j = degree; j >= level; --j)
        {
            const double low = knots[k - std::size_t(degree) + std::size_t(j)];
            const double high = knots[k + 1 + std::size_t(j - level)];
            const double part = high > low ? (t - low) / (high - low) : 0;
            Weighted& pole = poles[std::size_t(j)];
            const Weighted& before = poles[std::size_t(j - 1)];
            pole.sum = before.sum * (1 - part) + pole.sum * part;
            pole.weight = before.weight * (1 - part) + pole.weight * part;
        }
    }
    return poles[std::size_t(degree)];
}
}  // namespace

Points bspline(int degree, std::span<const double> knots, std::span<const AcGePoint3d> poles,
               std::span<const double> weights)
{
    const int highestDegree = 25, chordsInSpan = 12;
    if (degree < 1 || degree > highestDegree || poles.size() <= std::size_t(degree) ||
        knots.size() != poles.size() + std::size_t(degree) + 1 || !std::ranges::is_sorted(knots) ||
        (!weights.empty() && weights.size() != poles.size()))
    {
        return {};
    }
    Points points;
    for (std::size_t k = std::size_t(degree); k < poles.size(); ++k)
    {
        if (knots[k] == knots[k + 1])
        {
            continue;
        }
        std::vector<Weighted> local;
        for (std::size_t i = k - std::size_t(degree); i <= k; ++i)
        {
            const double weight = weights.empty() ? 1 : weights[i];
            local.push_back({poles[i].asVector() * weight, weight});
        }
        const int first = points.empty() ? 0 : 1;
        for (int i = first; i <= chordsInSpan; ++i)
        {
            const double t = knots[k] + (knots[k + 1] - knots[k]) * i / chordsInSpan;
            const Weighted at = pointOnSpan(degree, knots, local, k, t);
            points.push_back(AcGePoint3d() + at.sum / at.weight);
        }
    }
    return points;
}
}  // namespace host::plot
