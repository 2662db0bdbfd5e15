#include <cmath>
#include <random>
#include <set>

#include "tests/engine/gridtest.h"

namespace
{
// Sheets where surveyors work: coordinates with fractions up to 10^7.
class SurveyGrid : public tests::Grid, public testing::WithParamInterface<int>
{
protected:
    void SetUp() override
    {
        Grid::SetUp();
        options.WCSBasePoint = GetParam();
        options.needText = true;
        options.iCountSigns = 5;
    }
    double between(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(m_random);
    }
    AcGePoint3d anywhere() { return {between(1e6, 1e7), between(1e6, 1e7), between(0, 300)}; }

    // Both ends of every line are labelled, each once and with a whole number of steps.
    void expectEveryLabelOnce()
    {
        std::set<std::pair<long long, long long>> places;
        const std::vector<tests::LabelSeen> seen = labels();
        for (const tests::LabelSeen& label : seen)
        {
            places.insert({std::llround(label.anchor.x * 1e3), std::llround(label.anchor.y * 1e3)});
            EXPECT_TRUE(label.text.ends_with(L"0.00000")) << testing::PrintToString(label.text);
        }
        EXPECT_EQ(seen.size(), 2 * countLines());
        EXPECT_EQ(places.size(), seen.size());
    }
    // Grid lines that have a piece inside.
    std::size_t countLines() const
    {
        const AcGePoint3d base = inGrid(options.basePoint);
        std::set<long long> x;
        std::set<long long> y;
        for (const tests::LineSeen& line : lines())
        {
            const AcGePoint3d start = inGrid(line.start);
            const AcGeVector3d along = inGrid(line.end) - start;
            std::fabs(along.x) < std::fabs(along.y)
                ? x.insert(std::llround((start.x - base.x) / options.HorStep))
                : y.insert(std::llround((start.y - base.y) / options.VertStep));
        }
        return x.size() + y.size();
    }
    AcGePoint3d inGrid(const AcGePoint3d& wcs) const { return GetParam() == 0 ? wcs : toUcs(wcs); }
    void eraseAll()
    {
        const AcDbObjectIdArray ids = entities();
        for (int i = 0; i < ids.length(); ++i)
        {
            eraseEntity(ids[i]);
        }
    }

private:
    std::mt19937 m_random{1000003};
};

TEST_P(SurveyGrid, plainSheetsHaveEveryLineAndLabel)
{
    for (int i = 0; i < 30; ++i)
    {
        AcGePoint3d low = anywhere();
        low.z = 0;
        options.basePoint = low + AcGeVector3d(between(1, 9), between(1, 9), 0);
        pick(low, low + AcGeVector3d(200, 100, 0));
        build();
        expectEveryLabelOnce();
        EXPECT_EQ(texts().size(), 60u);
        EXPECT_EQ(lines().size(), 20u * 11 + 10u * 21);
        eraseAll();
    }
}

// The frame's origin is on the ground and coordinates in it are small, or it is the world's and
// they are large.
TEST_P(SurveyGrid, turnedSheetsHaveEveryLabel)
{
    for (int i = 0; i < 60; ++i)
    {
        const bool isLocal = i % 2 == 0;
        const AcGePoint3d ground = anywhere();
        setUcs(isLocal ? ground : AcGePoint3d(0, 0, 50), between(-180, 180));
        AcGePoint3d low = isLocal ? AcGePoint3d(0, 0, 0) : toUcs(ground);
        low.z = 0;
        pick(low, low + AcGeVector3d(200, 100, 0));
        options.basePoint = toWcs(low + AcGeVector3d(between(1, 9), between(1, 9), 0));
        build();
        expectEveryLabelOnce();
        eraseAll();
    }
}

TEST_P(SurveyGrid, longLinesOfManyPiecesAreLabelledOnce)
{
    for (const double degrees : {0.0, 33.0})
    {
        setUcs({9123456.789, 8765432.101, 0}, degrees);
        options.basePoint = toWcs({0.5, 0.5, 0});
        options.HorStep = 40;
        options.VertStep = 10;
        pick({0, 0, 0}, {80, 5000, 0});
        build();
        expectEveryLabelOnce();
        eraseAll();
    }
}

TEST_P(SurveyGrid, anElevatedPlaneIsStillAPlane)
{
    if (GetParam() != 0)
    {
        GTEST_SKIP() << "grids in the UCS ask no elevation";
    }
    // A frame taken from a view direction leaves such traces.
    AcGeMatrix3d plan = AcGeMatrix3d::rotation(0.3, AcGeVector3d::kZAxis);
    plan.entry[2][0] = 1e-16;
    setUcs(plan.setTranslation(AcGeVector3d(0, 0, 0)));
    const AcGePoint3d low(9e6, 8e6, 0);
    pick(low, low + AcGeVector3d(2e5, 1e5, 0));
    options.basePoint = corner1;
    options.HorStep = options.VertStep = 5e4;
    EXPECT_NE(corner1.z, corner2.z);
    EXPECT_GT(build().length(), 1);
}

INSTANTIATE_TEST_SUITE_P(InBothFrames, SurveyGrid, testing::Values(0, 1));
}  // namespace
