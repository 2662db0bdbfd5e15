// Layers, colours and blocks on paper.
#include <gtest/gtest.h>

#include "tests/plot/drawn.h"

using tests::drawn;

namespace
{
const std::string layers =
    "0 SECTION 2 TABLES 0 TABLE 2 LAYER 70 6 "
    "0 LAYER 2 Walls 70 0 62 1 6 CONTINUOUS "
    "0 LAYER 2 OFF 70 0 62 -3 6 CONTINUOUS "
    "0 LAYER 2 FROZEN 70 1 62 3 6 CONTINUOUS "
    "0 LAYER 2 UNPLOTTED 70 0 62 3 290 0 "
    "0 LAYER 2 DEFPOINTS 70 0 62 3 "
    "0 LAYER 2 TRUE 70 0 62 3 420 4660 "
    "0 ENDTAB 0 ENDSEC ";

std::string entities(const std::string& tags)
{
    return "0 SECTION 2 ENTITIES " + tags + " 0 ENDSEC";
}

std::string block(const std::string& name, const std::string& tags,
                  const std::string& base = "10 0 20 0")
{
    return "0 BLOCK 8 0 2 " + name + " 70 0 " + base + " " + tags + " 0 ENDBLK 8 0 ";
}

std::string blocks(const std::string& tags)
{
    return "0 SECTION 2 BLOCKS " + tags + "0 ENDSEC ";
}
}  // namespace

TEST(PlotOfADrawing, anEntityHasItsOwnColourOrThatOfItsLayer)
{
    const std::string where = " 10 1 20 1 ";
    const struct
    {
        const char* properties;
        const char* drawn;
    } rows[] = {
        {"8 walls", "dot 1,1 #ff0000\n"},
        {"8 WALLS 62 256", "dot 1,1 #ff0000\n"},
        {"8 WALLS 62 3", "dot 1,1 #00ff00\n"},
        {"8 WALLS 62 7", "dot 1,1\n"},
        {"8 WALLS 62 3 420 255", "dot 1,1 #0000ff\n"},
        {"8 TRUE", "dot 1,1 #001234\n"},
        {"8 UNKNOWN", "dot 1,1\n"},
        {"8 OFF", ""},
        {"8 FROZEN", ""},
        {"8 UNPLOTTED", ""},
        {"8 Defpoints", ""},
        {"8 WALLS 60 1", ""},
        {"8 WALLS 67 1", ""},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(drawn(layers + entities("0 POINT " + (row.properties + where))), row.drawn)
            << row.properties;
    }
}

TEST(PlotOfADrawing, aLayerOrBlockWithoutNumbersIsAUsualOne)
{
    EXPECT_EQ(
        drawn("0 SECTION 2 TABLES 0 TABLE 2 LAYER 0 LAYER 2 A 70 0 62 red 0 ENDTAB 0 ENDSEC " +
              blocks(block("M", "0 POINT 8 A 10 1 20 1", "10 x 20 0")) +
              entities("0 INSERT 8 0 2 M 10 0 20 0")),
        "dot 1,1\n");
}

TEST(PlotOfADrawing, aBlockIsMovedTurnedScaledAndRepeated)
{
    const std::string mark = blocks(block("Mark", "0 LINE 8 0 10 1 20 1 11 3 21 1", "10 1 20 1"));
    const struct
    {
        const char* insert;
        const char* drawn;
    } rows[] = {
        {"10 5 20 6", "path 5,6 7,6\n"},
        {"10 5 20 6 50 90", "path 5,6 5,8\n"},
        {"10 5 20 6 41 3 42 2", "path 5,6 11,6\n"},
        {"10 5 20 6 41 -1", "path 5,6 3,6\n"},
        {"10 5 20 6 230 -1", "path -5,6 -7,6\n"},
        {"10 0 20 0 70 2 71 2 44 10 45 20",
         "path 0,0 2,0\npath 10,0 12,0\npath 0,20 2,20\npath 10,20 12,20\n"},
        {"10 0 20 0 50 90 70 2 44 10", "path 0,0 0,2\npath 0,10 0,12\n"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(drawn(mark + entities(std::string("0 INSERT 8 0 2 MARK ") + row.insert)),
                  row.drawn)
            << row.insert;
    }
}

TEST(PlotOfADrawing, blocksStandInBlocks)
{
    const std::string nested =
        blocks(block("A", "0 POINT 8 0 10 1 20 0") +
               block("B", "0 INSERT 8 0 2 A 10 10 20 0 50 90 0 POINT 8 0 10 2 20 0"));
    EXPECT_EQ(drawn(nested + entities("0 INSERT 8 0 2 B 10 100 20 0 41 2 42 2")),
              "dot 120,2\ndot 104,0\n");
}

TEST(PlotOfADrawing, layerZeroAndColourZeroOfABlockAreThoseOfItsInsert)
{
    const std::string mark =
        layers + blocks(block("M",
                              "0 POINT 8 0 10 1 20 0 0 POINT 8 0 62 0 10 2 20 0 "
                              "0 POINT 8 TRUE 10 3 20 0"));
    EXPECT_EQ(drawn(mark + entities("0 INSERT 8 WALLS 2 M 10 0 20 0 62 5")),
              "dot 1,0 #ff0000\ndot 2,0 #0000ff\ndot 3,0 #001234\n");
    EXPECT_EQ(drawn(mark + entities("0 INSERT 8 OFF 2 M 10 0 20 0")), "dot 3,0 #001234\n");
    EXPECT_EQ(drawn(mark + entities("0 INSERT 8 FROZEN 2 M 10 0 20 0")), "");
}

TEST(PlotOfADrawing, aDimensionIsTheBlockMadeForIt)
{
    const std::string made = blocks(block("*D1", "0 LINE 8 0 10 0 20 0 11 9 21 0"));
    EXPECT_EQ(drawn(made + entities("0 DIMENSION 8 0 2 *D1 10 50 20 50")), "path 0,0 9,0\n");
    EXPECT_EQ(drawn(made + entities("0 DIMENSION 8 0 2 *D2 10 50 20 50")),
              "not drawn: 1 DIMENSION\n");
}

TEST(PlotOfADrawing, attributesAreDrawnWithTheInsertAndNotInTheBlock)
{
    const std::string made = blocks(block("M",
                                          "0 ATTDEF 8 0 10 0 20 0 40 1 1 default 2 TAG 70 0 "
                                          "0 ATTDEF 8 0 10 0 20 0 40 1 1 CONST 2 TAG 70 2"));
    EXPECT_EQ(drawn(made + entities("0 INSERT 8 0 66 1 2 M 10 5 20 5 "
                                    "0 ATTRIB 8 0 10 6 20 6 40 1 1 own 2 TAG 70 0 0 SEQEND 8 0")),
              "text 5,5 > 1,0 ^ 0,1 left:0 below:0 CONST\n"
              "text 6,6 > 1,0 ^ 0,1 left:0 below:0 own\n");
}

TEST(PlotOfADrawing, blocksThatHoldThemselvesComeToAnEnd)
{
    const std::string itself =
        blocks(block("A", "0 INSERT 8 0 2 A 10 1 20 0 0 POINT 8 0 10 0 20 0"));
    const std::string once = drawn(itself + entities("0 INSERT 8 0 2 A 10 0 20 0"));
    EXPECT_NE(once.find("not drawn: 1 INSERT\n"), once.npos);

    const std::string twice =
        blocks(block("A", "0 INSERT 8 0 2 A 10 1 20 0 0 INSERT 8 0 2 A 10 2 20 0"));
    const std::string all = drawn(twice + entities("0 INSERT 8 0 2 A 10 0 20 0"));
    EXPECT_NE(all.find("entity of a drawing too large"), all.npos) << all;

    const std::string rows = blocks(block("A", "0 POINT 8 0 10 0 20 0"));
    const std::string many =
        drawn(rows + entities("0 INSERT 8 0 2 A 10 0 20 0 70 2000000000 71 2000000000"), 100);
    EXPECT_NE(many.find("entity of a drawing too large"), many.npos) << many.substr(0, 200);
}
