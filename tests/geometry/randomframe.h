// Creates random frames and numbers for the tests that try many.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "gemat3d.h"

// Gives the same numbers in every plain run; a shuffled run prints the seed that it uses.
class Dice
{
public:
    double between(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(m_engine);
    }
    // Returns a number with three decimals, as surveyors write them.
    double measured(double low, double high) { return std::round(between(low, high) * 1e3) / 1e3; }

    AcGeVector3d vector(double reach)
    {
        return {between(-reach, reach), between(-reach, reach), between(-reach, reach)};
    }
    AcGePoint3d point(double reach) { return AcGePoint3d() + vector(reach); }

    AcGeMatrix3d frame(double reach, const AcGeVector3d& axis)
    {
        const double angle = between(-std::numbers::pi, std::numbers::pi);
        return AcGeMatrix3d::rotation(angle, axis).setTranslation(vector(reach));
    }
    AcGeMatrix3d tiltedFrame(double reach) { return frame(reach, vector(1)); }

private:
    std::mt19937_64 m_engine{
        static_cast<std::uint64_t>(testing::UnitTest::GetInstance()->random_seed())};
};
