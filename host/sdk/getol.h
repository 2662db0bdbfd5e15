// Tolerances of geometric comparisons.
#pragma once

class AcGeTol
{
public:
    constexpr AcGeTol() : m_equalPoint(1e-10), m_equalVector(1e-12) {}

    double equalPoint() const { return m_equalPoint; }    // drawing units
    double equalVector() const { return m_equalVector; }  // length of the difference
    void setEqualPoint(double tolerance) { m_equalPoint = tolerance; }
    void setEqualVector(double tolerance) { m_equalVector = tolerance; }

private:
    double m_equalPoint;
    double m_equalVector;
};
