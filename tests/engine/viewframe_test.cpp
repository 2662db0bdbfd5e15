#include "engine/viewframe.h"

#include <cmath>

#include "tests/support/opendrawing.h"

namespace
{
testing::AssertionResult near(const AcGeVector3d& left, const AcGeVector3d& right)
{
    return tests::near(AcGePoint3d() + left, AcGePoint3d() + right, 1e-12);
}

class ViewFrame : public tests::OpenDrawing
{
protected:
    void look(const AcGeVector3d& direction, double twist)
    {
        state().view.direction = direction;
        state().view.twist = twist;
    }
    AcGeVector3d axis(int column) const
    {
        const AcGeMatrix3d& m = state().ucs().toWorld;
        return {m.entry[0][column], m.entry[1][column], m.entry[2][column]};
    }
    void expectUcs(const AcGeMatrix3d& ucs) const
    {
        for (int column = 0; column < 4; ++column)
        {
            const AcGeVector3d expected(ucs.entry[0][column], ucs.entry[1][column],
                                        ucs.entry[2][column]);
            EXPECT_TRUE(near(axis(column), expected));
        }
    }
};

TEST_F(ViewFrame, ofAPlanViewHasTheWorldsAxesAndTheOldOrigin)
{
    setUcs({10, 20, 30}, 25);
    EXPECT_EQ(setViewFrameUcs(), Acad::eOk);
    EXPECT_TRUE(near(axis(0), {1, 0, 0}));
    EXPECT_TRUE(near(axis(1), {0, 1, 0}));
    EXPECT_TRUE(near(axis(2), {0, 0, 1}));
    EXPECT_TRUE(near(axis(3), {10, 20, 30}));
}

TEST_F(ViewFrame, ofATwistedViewLiesAlongTheScreen)
{
    // A view twisted by t shows what is turned by -t as level.
    for (const double twist : {0.3, M_PI / 2, 4.0, -1.0})
    {
        setUcs({0, 0, 0});
        look({0, 0, 5}, twist);
        EXPECT_EQ(setViewFrameUcs(), Acad::eOk);
        EXPECT_TRUE(near(axis(0), {std::cos(twist), -std::sin(twist), 0}));
        EXPECT_TRUE(near(axis(1), {std::sin(twist), std::cos(twist), 0}));
    }
}

TEST_F(ViewFrame, ofAnObliqueViewLooksAtTheViewer)
{
    const AcGeVector3d directions[] = {
        {1, 1, 1}, {0, -1, 0}, {0, 0, -2}, {0.001, 0, 1}, {3, -4, 12}};
    for (const AcGeVector3d& direction : directions)
    {
        setUcs({1, 2, 3});
        look(direction, 0);
        EXPECT_EQ(setViewFrameUcs(), Acad::eOk);
        EXPECT_TRUE(near(axis(2), direction / direction.length()));
        EXPECT_TRUE(near(axis(0).crossProduct(axis(1)), axis(2)));
        EXPECT_TRUE(near(axis(3), {1, 2, 3}));
    }
    setUcs({0, 0, 0});
    look({0, -1, 0}, 0);  // from the front: X to the right, Y up
    setViewFrameUcs();
    EXPECT_TRUE(near(axis(0), {1, 0, 0}));
    EXPECT_TRUE(near(axis(1), {0, 0, 1}));
}

// The twist turns the screen, not the world: about the direction of view.
TEST_F(ViewFrame, ofAnObliqueAndTwistedViewLiesAlongTheScreen)
{
    const AcGeVector3d direction(1, -1, 2);
    const double twist = 0.5;
    setUcs({0, 0, 0});
    look(direction, twist);
    ASSERT_EQ(setViewFrameUcs(), Acad::eOk);
    const AcGeVector3d right = AcGeVector3d::kZAxis.crossProduct(direction).normal();
    const AcGeVector3d up = direction.normal().crossProduct(right);
    EXPECT_TRUE(near(axis(0), right * std::cos(twist) - up * std::sin(twist)));
    EXPECT_TRUE(near(axis(1), right * std::sin(twist) + up * std::cos(twist)));
}

TEST_F(ViewFrame, doesNotDependOnTheUcsThatTheDirectionIsReadIn)
{
    setUcs({7, 8, 9}, 77);
    look({1, -1, 2}, 0.5);
    setViewFrameUcs();
    const AcGeMatrix3d turned = state().ucs().toWorld;
    setUcs({7, 8, 9}, 0);
    setViewFrameUcs();
    expectUcs(turned);
}

TEST(ViewFrameWithoutADrawing, saysThatThereIsNoFormerUcs)
{
    EXPECT_NE(setViewFrameUcs(), Acad::eOk);
}
}  // namespace
