#include <utility>

#include "tests/engine/gridtest.h"

using tests::inspect;
using tests::near;

namespace
{
// The plane of the UCS as the grid along the world axes needs it: level.
class DrawingPlane : public tests::Grid
{
};

TEST_F(DrawingPlane, cornersAtDifferentElevationsGiveOneTextInTheirMiddle)
{
    pick({0, 0, 0}, {60, 20, 0});
    corner2.z = 8;
    options.needText = true;
    const AcDbObjectIdArray made = build();
    ASSERT_EQ(made.length(), 1);
    inspect<AcDbText>(made[0],
                      [](const AcDbText& text)
                      {
                          EXPECT_STREQ(text.textStringConst(),
                                       L"Current plane is not parallel to XY plane in WCS");
                          EXPECT_TRUE(near(text.alignmentPoint(), {30, 10, 4}));
                          EXPECT_NEAR(text.height(), 2, 1e-9);
                          EXPECT_NEAR(text.rotation(), 0, 1e-9);
                          EXPECT_EQ(text.colorIndex(), 12);
                          EXPECT_EQ(text.horizontalMode(), AcDb::kTextMid);
                          EXPECT_EQ(text.verticalMode(), AcDb::kTextVertMid);
                          return 0;
                      });
}

TEST_F(DrawingPlane, theTextIsAThirtiethOfTheWidthWhicheverCornerWasFirst)
{
    pick({60, 20, 0}, {0, 0, 0});
    corner2.z = 8;
    const AcDbObjectIdArray made = build();
    ASSERT_EQ(made.length(), 1);
    const auto height = [](const AcDbText& text) { return text.height(); };
    EXPECT_NEAR(inspect<AcDbText>(made[0], height), 2, 1e-9);
}

TEST_F(DrawingPlane, theTextIsInTheLanguageOfTheHost)
{
    const wchar_t* const english = L"Current plane is not parallel to XY plane in WCS";
    const wchar_t* const russian = L"Плоскость рисования не параллельна плоскости XY в МСК";
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {{L"ru-RU", russian},
                                                              {L"RU-ru", russian},
                                                              {L"ru", english},
                                                              {L"", english},
                                                              {L"de-DE", english}};
    pickSheet();
    corner2.z = 1;
    for (const auto& [locale, text] : rows)
    {
        options.localeName = locale;
        const AcDbObjectIdArray made = build();
        ASSERT_EQ(made.length(), 1);
        EXPECT_EQ(inspect<AcDbText>(
                      made[0], [](const AcDbText& t) { return std::wstring(t.textStringConst()); }),
                  text);
    }
}

TEST_F(DrawingPlane, elevationsThatDifferWithinTheToleranceAreThePlane)
{
    pickSheet();
    corner2.z = AcGeContext::gTol.equalPoint();
    EXPECT_EQ(texts().size(), 0u);
    EXPECT_GT(build().length(), 1);
    corner2.z = 2e-10;
    EXPECT_EQ(build().length(), 1);
}

TEST_F(DrawingPlane, nodesLieAtTheElevationOfThePlane)
{
    setUcs({0, 0, 7});
    pickSheet();
    build();
    ASSERT_FALSE(lines().empty());
    for (const tests::LineSeen& line : lines())
    {
        EXPECT_NEAR(line.start.z, 7, 1e-9);
        EXPECT_NEAR(line.end.z, 7, 1e-9);
    }
}
}  // namespace
