// Tests files that are not drawings, and damaged drawings.
#include <gtest/gtest.h>

#include "host/dxf/filesource.h"
#include "host/dxf/load.h"
#include "tests/dxf/smalldrawing.h"
#include "tests/fuzz/dxfproperties.h"

using namespace host::dxf;
using namespace std::string_literals;

namespace
{
struct Row
{
    std::string bytes;
    std::string message;
};

// Returns the message when the file is opened, or "read" if there is none.
std::string opening(const std::string& bytes)
{
    try
    {
        AcDbDatabase database;
        load(host::coreOf(database), TagFile::fromText(bytes, "FILE"));
        return "read";
    }
    catch (const Error& error)
    {
        return error.what();
    }
}

std::string section(const std::string& name, const std::string& contents)
{
    return "0\nSECTION\n2\n" + name + "\n" + contents + "0\nENDSEC\n";
}

std::string table(const std::string& type, const std::string& records)
{
    return "0\nTABLE\n2\n" + type + "\n" + records + "0\nENDTAB\n";
}

const std::string header = section("HEADER", "9\n$ACADVER\n1\nAC1027\n");
const std::string entities = section("ENTITIES", "0\nLINE\n5\nA\n");
const std::string endOfFile = "0\nEOF\n";

std::string withVariable(const std::string& tags)
{
    return section("HEADER", "9\n$ACADVER\n1\nAC1027\n" + tags) + entities + endOfFile;
}

std::string withTables(const std::string& tables)
{
    return header + section("TABLES", tables) + endOfFile;
}

std::string withLayer(const std::string& tags)
{
    return withTables(table("LAYER", "0\nLAYER\n" + tags));
}

std::string withStyle(const std::string& tags)
{
    return withTables(table("STYLE", "0\nSTYLE\n" + tags));
}

std::string withView(const std::string& tags)
{
    return withTables(table("VPORT", "0\nVPORT\n2\n*ACTIVE\n" + tags));
}

std::string withEntities(const std::string& records)
{
    return header + section("ENTITIES", records) + endOfFile;
}

std::string withRootDictionary(const std::string& records)
{
    return header + section("OBJECTS", "0\nDICTIONARY\n5\nC\n" + records) + endOfFile;
}

std::string binary(const std::string& tags)
{
    return "AutoCAD Binary DXF\r\n\x1a\0\0\0SECTION\0"s + tags;
}
TEST(DamagedDrawings, areReadWhereAValueIsDamagedThatNobodyAsksFor)
{
    for (const std::string& bytes : {
             withLayer("2\nA\n330\nx\n"),
             withStyle("2\nA\n71\nx\n"),
             withStyle("2\nA\n42\nx\n"),
             withView("110\nx\n"),
             withView("121\nx\n"),
             withTables(table("LTYPE", "0\nLTYPE\n2\nA\n72\nx\n")),
             withTables(table("LTYPE", "0\nLTYPE\n2\nA\n73\nx\n")),
         })
    {
        EXPECT_EQ(opening(bytes), "read") << bytes;
    }
}
}  // namespace

TEST(DamagedDrawings, otherFilesUnderTheNameOfADrawingAreRefusedAsWhatTheyAre)
{
    const Row rows[] = {
        {"AC1009\0\0"s, "a DWG"},
        {"AC1032", "a DWG"},
        {"%PDF-1.7\n", "a PDF document"},
        {"PK\x03\x04\x14\0"s, "a ZIP archive"},
        {"\x1F\x8B\x08", "a gzip archive"},
        {"\x89PNG\r\n\x1A\n", "a PNG picture"},
        {"\xFF\xD8\xFF\xE0", "a JPEG picture"},
        {"<?xml version=\"1.0\"?>\n", "an XML document"},
        {"\177ELF\x02", "a program"},
        {"\xFF\xFE \0 \0S\0"s, "text in UTF-16"},
        {"\xFE\xFF\0 \0 \0S"s, "text in UTF-16"},
        {" \0 \0S\0"s, "text in UTF-16"},
        {"\0 \0 \0S"s, "text in UTF-16"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(opening(row.bytes), "FILE: line 1: expected a DXF drawing, found " + row.message);
    }
}

TEST(DamagedDrawings, filesOfNoKnownKindAreRefusedInTheirFirstLine)
{
    const std::string noCode = "expected a group code from 0 to 1071, found ";
    const Row rows[] = {
        {"\0\0\0\0"s, noCode + "\"????\""},
        {"\0\nx"s, noCode + "\"?\""},
        {"\n", noCode + "\"\""},
        {"AutoCAD Binary DXF\r\n", noCode + "\"AutoCAD Binary DXF\""},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(opening(row.bytes), "FILE: line 1: " + row.message);
    }
}

TEST(DamagedDrawings, aTextWhereANumberShouldBeIsRefusedWithItsLine)
{
    const std::string integer = ": expected an integer, found ";
    const std::string number = ": expected a number, found ";
    const std::string handle = ": expected a handle of 1 to 16 hexadecimal digits, found ";
    const Row rows[] = {
        {withLayer("2\nWalls\n70\nfrozen\n"), "24" + integer + "\"frozen\""},
        {withLayer("62\n\n"), "22" + integer + "\"\""},
        {withLayer("62\n9223372036854775808\n"), "22" + integer + "\"9223372036854775808\""},
        {withStyle("40\ntall\n"), "22" + number + "\"tall\""},
        {withStyle("50\n15,5\n"), "22" + number + "\"15,5\""},
        {withView("40\n1e999\n"), "24" + number + "\"1e999\""},
        {withView("17\nnan\n"), "24" + number + "\"nan\""},
        {withVariable("9\n$CECOLOR\n62\nred\n"), "12" + integer + "\"red\""},
        {withVariable("9\n$UCSORG\n10\n1\n20\n1,5\n"), "14" + number + "\"1,5\""},
        {withVariable("9\n$LTSCALE\n40\n\xC4\x9F\n"), "12" + number + "\"??\""},
        {withRootDictionary("3\nACAD_GROUP\n350\nD?\n"), "22" + handle + "\"D?\""},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(opening(row.bytes), "FILE: line " + row.message);
    }
}

// A length in a binary drawing takes only one byte, so it can never request memory that does not
// exist.
TEST(DamagedDrawings, aBinaryFileThatPromisesMoreThanItHoldsIsRefusedWithItsOffset)
{
    const std::string whole = ": expected a whole value, found the end of the file";
    const std::string end = ": expected the end of a text, found the end of the file";
    const std::string code = ": expected a group code of DXF, found ";
    const std::string name = ": expected the section's name (group code 2), found ";
    const Row rows[] = {
        {binary("\x36\x01\xFF"s), "35" + whole},
        {binary("\xEC\x03\xFF\xFF\xFF\xFF"s), "35" + whole},
        {binary("\x0A\0\0\0\0"s), "34" + whole},
        {binary("\xA0\0\xFF\xFF\xFF\xFF"s), "34" + whole},
        {binary("\x02\0no end"s), "34" + end},
        {binary("\xFF\x7F"s), "32" + code + "32767"},
        {binary("\x50\0"s), "32" + code + "80"},
        {binary("\0\0EOF\0"s), "32" + name + "\"EOF\""},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(opening(row.bytes), "FILE: offset " + row.message);
    }
}

TEST(DamagedDrawings, handlesThatLeaveNoRoomAreRefused)
{
    EXPECT_EQ(opening(drawingWith("0\nLINE\n5\nFFFFFFFFFFFFFFFF\n")),
              "FILE: line 1: expected handles that leave room for new objects, found one above all "
              "others");
}

// These files are unusual, but no information is lost by reading them.
TEST(DamagedDrawings, whatCanBeUnderstoodIsReadKeptAndAddedTo)
{
    const std::string layers = table("LAYER", "0\nLAYER\n2\n0\n0\nLAYER\n2\n0\n");
    const std::string objects = section("OBJECTS", "0\nDICTIONARY\n5\nD\n");
    const std::string tables = section("TABLES", layers);
    const std::string longX = "9\n$UCSXDIR\n10\n1e300\n";
    const std::string longY = "9\n$UCSYDIR\n20\n1e300\n";
    const std::string twice = "9\n$ELEVATION\n40\n1\n9\n$ELEVATION\n40\n2\n";
    const std::string unknown = section("ACME", "90\nx\n");
    const std::pair<const char*, std::string> rows[] = {
        {"two layers of one name", withTables(layers)},
        {"a table twice", withTables(layers + layers)},
        {"a table without an end", withTables("0\nTABLE\n2\nSTYLE\n")},
        {"a variable twice", withVariable(twice)},
        {"a variable without a value", withVariable("9\n$ELEVATION\n")},
        {"a variable without a name", withVariable("9\n\n40\n2\n")},
        {"a text for a number", withVariable("9\n$TEXTSIZE\n1\nbig\n")},
        {"an integer for a number", withVariable("9\n$ELEVATION\n70\n2\n")},
        {"axes too long for a length", withVariable(longX + longY)},
        {"axes that are none", withVariable("9\n$UCSXDIR\n10\n0\n")},
        {"a handle twice", withEntities("0\nLINE\n5\nA\n0\nARC\n5\nA\n")},
        {"unknown codes", withEntities("0\nLINE\n85\nx\n1071\nx\n")},
        {"unknown records", withEntities("0\nACME_WALL\n90\nx\n")},
        {"an unknown section", header + unknown + entities + endOfFile},
        {"sections out of order", objects + entities + tables + header + endOfFile},
        {"no header, with handles", entities + endOfFile},
        {"no header, marked as UTF-8", "\xEF\xBB\xBF" + entities + endOfFile},
        {"nothing", endOfFile},
    };
    for (const auto& [what, bytes] : rows)
    {
        EXPECT_EQ(opening(bytes), "read") << what;
        EXPECT_EQ(tests::complaintAbout(bytes), "") << what;
    }
}

// Lists as long as a hostile file likes; searched from their beginning for each item they would
// hang this test.
TEST(DamagedDrawings, whatThereIsTooMuchOfIsReadAllTheSame)
{
    const auto many = [](auto make)
    {
        std::string text;
        for (int i = 0; i < 20000; ++i)
        {
            text += make(std::to_string(i));
        }
        return text;
    };
    const std::string sections = many([](const std::string& i) { return section("S" + i, ""); });
    const std::string entries =
        many([](const std::string& i) { return "3\nACAD_GROUP\n350\nF" + i + "\n"; });
    const std::string objects = many([](const std::string& i) { return "0\nX\n5\nA" + i + "\n"; });
    EXPECT_EQ(opening(sections + endOfFile), "read");
    EXPECT_EQ(opening(withRootDictionary(entries + objects)), "read");
}
