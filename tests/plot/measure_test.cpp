#include "host/plot/measure.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "tests/plot/drawn.h"

namespace
{
std::string measured(const std::string& entities)
{
    const std::string tags = "0 SECTION 2 ENTITIES " + entities + " 0 ENDSEC 0 EOF";
    const auto file = host::dxf::TagFile::fromText(tests::dxfText(tags), "FILE");
    const host::WorldExtents box = host::plot::entityExtents(file).extents;
    char text[160];
    std::snprintf(text, sizeof text, "%.6g,%.6g,%.6g %.6g,%.6g,%.6g", box.low.x, box.low.y,
                  box.low.z, box.high.x, box.high.y, box.high.z);
    return text;
}

TEST(Measure, takesEveryKindOfEntityAsItIsDrawn)
{
    const struct
    {
        const char* entities;
        const char* box;
    } rows[] = {
        {"0 LINE 10 1 20 2 30 3 11 4 21 -5", "1,-5,0 4,2,3"},
        {"0 CIRCLE 10 5 20 5 40 2", "3,3,0 7,7,0"},
        {"0 POINT 10 1 20 2 0 POINT 10 -1 20 9", "-1,2,0 1,9,0"},
        {"0 SOLID 10 0 20 0 11 4 21 0 12 0 22 4 13 4 23 4", "0,0,0 4,4,0"},
        {"0 TEXT 10 1 20 2 40 3 1 1234567", "1,2,0 19,5,0"},
        {"0 TEXT 10 0 20 0 40 1.4142135623730951 50 45 1 1234567", "-1,0,0 6,7,0"},
        {"0 XLINE 10 100 20 0 11 1 21 0 0 POINT 10 1 20 2", "1,2,0 1,2,0"},
        {"0 LINE 67 1 10 1 20 2 11 4 21 -5", "1e+20,1e+20,1e+20 -1e+20,-1e+20,-1e+20"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(measured(row.entities), row.box) << row.entities;
    }
}

TEST(Measure, tellsWhetherAKindOfEntityWasLeftOut)
{
    const auto isWhole = [](const std::string& entities)
    {
        const std::string tags = "0 SECTION 2 ENTITIES " + entities + " 0 ENDSEC 0 EOF";
        const auto file = host::dxf::TagFile::fromText(tests::dxfText(tags), "FILE");
        return host::plot::entityExtents(file).isWhole;
    };
    EXPECT_TRUE(isWhole("0 LINE 10 1 20 2 30 3 11 4 21 -5"));
    EXPECT_FALSE(isWhole("0 LINE 10 1 20 2 30 3 11 4 21 -5 0 3DSOLID 8 0"));
}
}  // namespace
