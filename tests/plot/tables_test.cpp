// The layers and blocks that a plot finds in a drawing.
#include "host/plot/tables.h"

#include <gtest/gtest.h>

#include "tests/plot/drawn.h"

using namespace host::plot;

namespace
{
const char* const drawing =
    "0 SECTION 2 TABLES 0 TABLE 2 LAYER 70 8 "
    "0 LAYER 2 Walls 70 0 62 1 "
    "0 LAYER 2 _Padded_ 70 0 62 1 "
    "0 LAYER 2 FROZEN 70 1 62 3 "
    "0 LAYER 2 LOCKED 70 4 62 3 "
    "0 LAYER 2 OFF 70 0 62 -3 "
    "0 LAYER 2 UNPLOTTED 70 0 62 3 290 0 "
    "0 LAYER 2 PLOTTED 70 0 62 3 290 1 "
    "0 LAYER 2 DEFPOINTS 70 0 62 3 "
    "0 LAYER 2 TRUE 70 0 62 3 420 65535 "
    "0 LAYER 2 TRUEOFF 70 0 62 -3 420 65535 "
    "0 LAYER 2 BARE "
    "0 LAYER 2 DAMAGED 62 red "
    "0 ENDTAB 0 ENDSEC "
    "0 SECTION 2 BLOCKS "
    "0 BLOCK 2 Door 10 1 20 2 30 3 0 LINE 10 0 0 POINT 10 0 0 ENDBLK "
    "0 BLOCK 2 EMPTY 0 ENDBLK "
    "0 BLOCK 2 BROKEN 10 x 0 LINE 10 0 0 ENDBLK "
    "0 BLOCK 2 OPEN 10 5 0 LINE 10 0 "
    "0 ENDSEC 0 EOF";

const host::Color red{1, 0, 0}, green{0, 1, 0}, cyan{0, 1, 1};

bool equal(host::Color a, host::Color b)
{
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

class TheTables : public testing::Test
{
protected:
    const host::dxf::TagFile file = host::dxf::TagFile::fromText(tests::dxfText(drawing), "FILE");
    const host::dxf::CodePage codePage{file.release(), ""};
    const Tables tables{{file, codePage}};
};
}  // namespace

TEST_F(TheTables, tellHowALayerIsDrawn)
{
    const struct
    {
        const char* name;
        host::Color color;
        bool frozen, shown;
    } rows[] = {
        {"Walls", red, false, true},           {"WALLS", red, false, true},
        {" walls ", red, false, true},         {"padded", red, false, true},
        {"frozen", green, true, true},         {"locked", green, false, true},
        {"off", green, false, false},          {"unplotted", green, false, false},
        {"plotted", green, false, true},       {"Defpoints", green, false, false},
        {"true", cyan, false, true},           {"trueoff", cyan, false, false},
        {"bare", host::black, false, true},    {"damaged", host::black, false, true},
        {"unknown", host::black, false, true}, {"", host::black, false, true},
    };
    for (int times = 0; times < 2; ++times)  // the second time from what the first has found
    {
        for (const auto& row : rows)
        {
            const Layer& layer = tables.layer(row.name);
            EXPECT_TRUE(equal(layer.color, row.color)) << row.name;
            EXPECT_EQ(layer.frozen, row.frozen) << row.name;
            EXPECT_EQ(layer.shown, row.shown) << row.name;
        }
    }
}

TEST_F(TheTables, findABlockWithItsBaseAndItsEntities)
{
    const struct
    {
        const char* name;
        AcGePoint3d base;
        std::size_t entities;
    } rows[] = {
        {"Door", {1, 2, 3}, 2},   {" DOOR", {1, 2, 3}, 2}, {"empty", {0, 0, 0}, 0},
        {"broken", {0, 0, 0}, 1}, {"open", {5, 0, 0}, 1},
    };
    for (const auto& row : rows)
    {
        const Block* block = tables.block(row.name);
        ASSERT_NE(block, nullptr) << row.name;
        EXPECT_EQ(block->base, row.base) << row.name;
        EXPECT_EQ(block->records.size(), row.entities) << row.name;
    }
    EXPECT_EQ(tables.block("Window"), nullptr);
}

TEST(OwnColor, aTrueColourGoesBeforeTheIndex)
{
    const struct
    {
        int index;
        std::optional<int> rgb;
        bool byLayer, byBlock;
        host::Color color;
    } rows[] = {
        {256, {}, true, false, host::black},
        {0, {}, false, true, host::black},
        {1, {}, false, false, red},
        {-1, {}, false, false, red},
        {7, {}, false, false, host::black},
        {300, {}, false, false, host::black},
        {256, 0x00FFFF, false, false, cyan},
        {0, 0, false, false, host::black},
        {1, 0x00FF00, false, false, green},
        {1, int(0xC2FF0000), false, false, red},  // the highest byte says how the colour was chosen
    };
    for (const auto& row : rows)
    {
        const OwnColor own = ownColor(row.index, row.rgb);
        EXPECT_EQ(own.byLayer, row.byLayer) << row.index;
        EXPECT_EQ(own.byBlock, row.byBlock) << row.index;
        EXPECT_TRUE(row.byLayer || row.byBlock || equal(own.color, row.color)) << row.index;
    }
}
