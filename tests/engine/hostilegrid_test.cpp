#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <random>

#include "tests/engine/gridtest.h"

namespace
{
const double infinity = std::numeric_limits<double>::infinity();
const double badNumbers[] = {DBL_MAX, -DBL_MAX, infinity, -infinity, std::nan(""), 1e151};

// Options may come from a file that anyone edits.
class HostileGrid : public tests::Grid, public testing::WithParamInterface<int>
{
protected:
    void SetUp() override
    {
        Grid::SetUp();
        options.WCSBasePoint = GetParam();
        options.needText = true;
        pickSheet();
    }
    void erase(const AcDbObjectIdArray& ids)
    {
        for (int i = 0; i < ids.length(); ++i)
        {
            eraseEntity(ids[i]);
        }
    }
};

TEST_P(HostileGrid, stepsThatMakeNoRowDrawNothing)
{
    const double steps[] = {0,    -0.0,    -10,      DBL_MIN,  4e-324,    1e-300,
                            1e-7, DBL_MAX, -DBL_MAX, infinity, -infinity, std::nan("")};
    for (const double step : steps)
    {
        options.HorStep = step;
        EXPECT_EQ(build().length(), 0) << step;
        std::swap(options.HorStep, options.VertStep);
        EXPECT_EQ(build().length(), 0) << step;
        std::swap(options.HorStep, options.VertStep);
    }
    EXPECT_EQ(entities().length(), 1);
}

TEST_P(HostileGrid, cornersThatCannotBeMeasuredDrawNothing)
{
    const AcGePoint3d good = corner1;
    for (const double bad : badNumbers)
    {
        for (const unsigned axis : {0u, 1u, 2u})
        {
            corner1[axis] = bad;
            EXPECT_EQ(build().length(), 0) << bad;
            std::swap(corner1, corner2);
            EXPECT_EQ(build().length(), 0) << bad;
            std::swap(corner1, corner2);
            corner1 = good;
        }
    }
    corner1 = {-1e150, -1e150, 0};
    EXPECT_EQ(build().length(), 0);
}

TEST_P(HostileGrid, aBasePointThatIsNotSetDrawsNothing)
{
    for (const double bad : badNumbers)
    {
        options.basePoint = {bad, 0, 0};
        EXPECT_EQ(build().length(), 0) << bad;
        options.basePoint = {0, bad, 0};
        EXPECT_EQ(build().length(), 0) << bad;
    }
    options.basePoint = {1e17, 0, 0};  // more steps away than an int counts
    EXPECT_EQ(build().length(), 0);
}

TEST_P(HostileGrid, crossesOfNoMeasurableSizeAreNotDrawn)
{
    options.LookType = 1;
    for (const double bad : badNumbers)
    {
        options.crossSize = bad;
        EXPECT_EQ(build().length(), 0) << bad;
    }
    for (const double odd : {0.0, -4.0, 1e15, 1e150})  // drawn for what they are worth
    {
        options.crossSize = odd;
        erase(build());
    }
}

TEST_P(HostileGrid, labelsOfNoMeasurableHeightAreNotDrawnButTheLinesAre)
{
    for (const double bad : badNumbers)
    {
        options.heightText = bad;
        EXPECT_EQ(build().length(), 10) << bad;
        EXPECT_TRUE(texts().empty()) << bad;
    }
    for (const double odd : {0.0, -4.0, 1e150})  // the host says what it makes of them
    {
        options.heightText = odd;
        const AcDbObjectIdArray made = build();
        EXPECT_EQ(texts().size(), 6u) << odd;
        erase(made);
    }
}

TEST_P(HostileGrid, otherOptionsMayHoldAnything)
{
    for (const int bad : {INT_MAX, INT_MIN, -1, 10, 99999})
    {
        options.iCountSigns = bad;
        options.Color = static_cast<Adesk::UInt16>(bad);
        const AcDbObjectIdArray made = build();
        EXPECT_EQ(texts().size(), 6u) << bad;
        erase(made);
    }
    options.textStyleName = L"";
    EXPECT_EQ(build().length(), 16);
}

TEST_P(HostileGrid, everyMixtureEnds)
{
    const double numbers[] = {0,        -1,      10,       7,         1e7,          1e150, DBL_MAX,
                              -DBL_MAX, DBL_MIN, infinity, -infinity, std::nan(""), 1e-12, 1e17};
    std::mt19937 random(54321);
    const auto any = [&] { return numbers[random() % std::size(numbers)]; };
    for (int i = 0; i < 3000; ++i)
    {
        options.HorStep = any();
        options.VertStep = any();
        options.crossSize = any();
        options.heightText = any();
        options.LookType = int(random() % 3);
        options.basePoint = {any(), any(), any()};
        corner1 = {random() % 4 ? 0 : any(), random() % 4 ? 0 : any(), 0};
        corner2 = {random() % 4 ? 30 : any(), random() % 4 ? 20 : any(), 0};
        if (std::fabs(corner1.x) < 1e6 && std::fabs(corner1.y) < 1e6 &&
            std::fabs(corner2.x) < 1e6 && std::fabs(corner2.y) < 1e6)
        {
            erase(build());
        }
        else
        {
            options.HorStep = 1e-12;  // an enormous rectangle with real steps is just a large grid
            erase(build());
        }
    }
    EXPECT_EQ(entities().length(), 1);
}

INSTANTIATE_TEST_SUITE_P(InBothFrames, HostileGrid, testing::Values(0, 1));
}  // namespace
