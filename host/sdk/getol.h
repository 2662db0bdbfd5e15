// The tolerances of geometric comparisons.
#pragma once

// Two lengths: the largest distance between points that count as equal, and the largest difference
// between vectors that count as equal.
class AcGeTol
{
public:
    // Creates the host's defaults: 1e-10 for points, 1e-12 for vectors.
    constexpr AcGeTol() : m_equalPoint(1e-10), m_equalVector(1e-12) {}

    double equalPoint() const { return m_equalPoint; }    // drawing units
    double equalVector() const { return m_equalVector; }  // length of the difference
    // Set a tolerance to any value. With a negative one nothing is equal.
    void setEqualPoint(double tolerance) { m_equalPoint = tolerance; }
    void setEqualVector(double tolerance) { m_equalVector = tolerance; }

private:
    double m_equalPoint;
    double m_equalVector;
};
