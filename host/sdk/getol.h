// Tolerances of geometric comparisons.
#pragma once

// Two lengths: how near two points have to be to count as one, and how near two vectors.
class AcGeTol
{
public:
    // The host's defaults: 1e-10 for points, 1e-12 for vectors.
    constexpr AcGeTol() : m_equalPoint(1e-10), m_equalVector(1e-12) {}

    double equalPoint() const { return m_equalPoint; }    // drawing units
    double equalVector() const { return m_equalVector; }  // length of the difference
    // Any value is taken; a negative one makes nothing equal.
    void setEqualPoint(double tolerance) { m_equalPoint = tolerance; }
    void setEqualVector(double tolerance) { m_equalVector = tolerance; }

private:
    double m_equalPoint;
    double m_equalVector;
};
