#include "host/dxf/tagfile.h"

#include <gmock/gmock.h>
#include <cinttypes>

#include "host/dxf/emptydrawing.h"
#include "tests/dxf/smalldrawing.h"

using namespace host::dxf;

namespace
{
const std::string line = "0\nLINE\n5\n2F\n330\n1F\n100\nAcDbEntity\n8\nWalls\n";

struct Refused
{
    std::string text;
    std::string message;
};
}  // namespace

TEST(TagFile, whatIsNoReadableDrawingIsRefusedInOneLine)
{
    const std::string binary("AutoCAD Binary DXF\r\n\x1a\0", 22);
    const Refused rows[] = {
        {"", "FILE: line 1: expected a DXF drawing, found an empty file"},
        {binary, "FILE: offset 22: expected EOF, found the end of the file"},
        {"AC1027\0\0\0", "FILE: line 1: expected a DXF drawing, found a DWG"},
        {drawingWith("", "AC1006"),
         "FILE: line 8: expected version AC1009 (R12) to AC1032 (R2018), found \"AC1006\""},
        {drawingWith("", "AC1033"),
         "FILE: line 8: expected version AC1009 (R12) to AC1032 (R2018), found \"AC1033\""},
    };
    for (const Refused& row : rows)
    {
        EXPECT_EQ(refusal(row.text), row.message);
    }
}

TEST(TagFile, tagsOutOfStepAreRefusedWithTheirLine)
{
    const std::string tooLong(60, 'a');
    const std::string shortened = tooLong.substr(0, 40) + "...";
    const std::pair<std::string, std::string> rows[] = {
        {"x", "x"},
        {"", ""},
        {"-1", "-1"},
        {"1072", "1072"},
        {"99999999999999999999", "99999999999999999999"},
        {"8 8", "8 8"},
        {"10.5", "10.5"},
        {"1\x02", "1?"},
        {tooLong, shortened},
    };
    for (const auto& [code, found] : rows)
    {
        EXPECT_EQ(refusal(drawingWith("0\nLINE\n" + code + "\n7\n")),
                  "FILE: line 21: expected a group code from 0 to 1071, found \"" + found + '"');
    }
}

TEST(TagFile, sectionsOutOfOrderAreRefused)
{
    const std::string good = drawingWith(line);
    const std::string end = "0\nENDSEC\n0\nEOF\n";
    const std::string open = good.substr(0, good.size() - end.size());
    const Refused rows[] = {
        {open + "0\nEOF\n", "FILE: line 30: expected ENDSEC, found \"EOF\""},
        {open + "0\nSECTION\n2\nOBJECTS\n" + end,
         "FILE: line 30: expected ENDSEC, found \"SECTION\""},
        {open + "0\nENDSEC\n" + end, "FILE: line 32: expected SECTION or EOF, found \"ENDSEC\""},
        {open + "0\nENDSEC\n8\nx\n0\nEOF\n",
         "FILE: line 31: expected SECTION or EOF, found group code 8"},
        {open + "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + end,
         "FILE: line 34: expected a section that was not there before, found \"ENTITIES\""},
        {open + "0\nENDSEC\n0\nSECTION\n0\nLINE\n" + end,
         "FILE: line 34: expected the section's name (group code 2), found \"LINE\""},
        {open + "0\nENDSEC\n", "FILE: line 31: expected EOF, found the end of the file"},
        {open, "FILE: line 29: expected EOF, found the end of the file"},
        {good + "0\nLINE\n", "FILE: line 33: expected nothing after EOF, found more"},
        {drawingWith("0\n \n"), "FILE: line 20: expected a record's type, found \" \""},
        {drawingWith("8\nWalls\n"),
         "FILE: line 19: expected a record (group code 0), found group code 8"},
        {"0\nSECTION\n2\nHEADER\n70\n1\n0\nENDSEC\n0\nEOF\n",
         "FILE: line 5: expected a variable's name (group code 9), found group code 70"},
        {"0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1027\n0\nLINE\n0\nEOF\n",
         "FILE: line 10: expected ENDSEC, found \"LINE\""},
        {"0\nSECTION\n2\nTHUMBNAILIMAGE\n90\n1\n0\nEOF\n",
         "FILE: line 8: expected ENDSEC, found \"EOF\""},
    };
    for (const Refused& row : rows)
    {
        EXPECT_EQ(refusal(row.text), row.message);
    }
}

TEST(TagFile, aHandleMustBeHexadecimal)
{
    for (const std::string value : {"XYZ", "-1", "0x1", "00000000000000001"})
    {
        EXPECT_EQ(refusal(drawingWith("0\nLINE\n5\n" + value + "\n")),
                  "FILE: line 22: expected a handle of 1 to 16 hexadecimal digits, found \"" +
                      value + "\"");
    }
}

struct Repair
{
    std::string entities;
    std::vector<std::uint64_t> handles;
    std::string said;
};

TEST(TagFile, aHandleThatIsNoRecordsOwnGivesWayToANewOne)
{
    const Repair rows[] = {
        {"0\nLINE\n5\nA\n0\nLINE\n5\nB\n", {0xA, 0xB}, ""},
        {"0\nLINE\n5\n\n",
         {1},
         "22: the handle \"\" is no record's own; 1 record is given a new one"},
        {"0\nLINE\n5\n0\n0\nLINE\n5\nA\n",
         {0xB, 0xA},
         "22: the handle \"0\" is no record's own; 1 record is given a new one"},
        {"0\nLINE\n5\nA\n0\nLINE\n5\n0a\n0\nARC\n5\nA\n",
         {0xA, 0xB, 0xC},
         "26: the handle \"0a\" is no record's own; 2 records are given new ones"},
    };
    for (const Repair& row : rows)
    {
        const TagFile file = TagFile::fromText(drawingWith(row.entities), "FILE");
        std::vector<std::uint64_t> handles;
        for (const Record& record : file.records())
        {
            handles.push_back(record.handle);
        }
        EXPECT_EQ(handles, row.handles);
        EXPECT_EQ(file.highestHandle(), *std::ranges::max_element(row.handles));
        EXPECT_EQ(file.repairs(), row.said.empty() ? "" : "FILE: line " + row.said);
    }
}

TEST(TagFile, onlyTheRecordsOwnHandleCounts)
{
    const Refused rows[] = {
        {"0\nLINE\n5\n2F\n", "2F"},
        {"0\nLINE\n  5 \n  2f \n", "2F"},
        {"0\nLINE\n8\nWalls\n5\nFFFFFFFFFFFFFFFF\n", "FFFFFFFFFFFFFFFF"},
        {"0\nLINE\n8\nWalls\n", "0"},
        {"0\nLINE\n102\n{X\n5\nno handle\n102\n}\n5\n2F\n", "2F"},
        {"0\nLINE\n5\n2F\n5\nno handle\n", "2F"},
        {"0\nSORTENTSTABLE\n5\n2F\n100\nAcDbSortentsTable\n331\n30\n5\n2F\n", "2F"},
        {"0\nXRECORD\n100\nAcDbXrecord\n5\nno handle\n", "0"},
        {"0\nDIMSTYLE\n105\n27\n100\nAcDbDimStyleTableRecord\n5\n_DOT\n", "27"},
        {"0\nDIMSTYLE\n5\n_DOT\n105\n27\n", "27"},
        {"0\nTABLE\n2\nDIMSTYLE\n5\nA\n105\nB\n", "A"},
    };
    for (const Refused& row : rows)
    {
        const TagFile file = TagFile::fromText(drawingWith(row.text), "FILE");
        char found[32];
        std::snprintf(found, sizeof found, "%" PRIX64, file.records().front().handle);
        EXPECT_EQ(found, row.message) << row.text;
        EXPECT_EQ(file.highestHandle(), file.records().front().handle);
    }
}

TEST(TagFile, anUnknownCodePageMattersOnlyBeforeR2007)
{
    const std::string codePage = "9\n$DWGCODEPAGE\n3\nANSI_7\n9\n$INSUNITS\n";
    const auto text = [&](const char* version)
    { return replaced(drawingWith("", version), "9\n$INSUNITS\n", codePage); };
    EXPECT_EQ(refusal(text("AC1018")),
              "FILE: line 12: expected a known code page, found \"ANSI_7\"");
    EXPECT_EQ(refusal(text("AC1021")), "read");
}

TEST(TagFile, aRecordReachesFromItsTypeToTheNextRecord)
{
    const std::string text = drawingWith(line + "999\nnote\n0\nPOINT\n5\n30\n0\nLINE\n5\n31\n");
    const TagFile file = TagFile::fromText(text, "FILE");

    const std::span<const Record> records = file.records("ENTITIES");
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(text.substr(records[0].begin, records[0].end - records[0].begin),
              line + "999\nnote\n");
    EXPECT_EQ(file.typeName(records[0]), "LINE");
    EXPECT_EQ(file.typeName(records[1]), "POINT");
    EXPECT_EQ(records[2].type, records[0].type);
    EXPECT_EQ(records[0].line, 19u);
    EXPECT_EQ(records[1].line, 31u);
    EXPECT_EQ(records[2].end, file.section("ENTITIES")->end);
    EXPECT_EQ(file.highestHandle(), 0x31u);
    EXPECT_TRUE(file.records("OBJECTS").empty());
    EXPECT_EQ(file.section("OBJECTS"), nullptr);
}

TEST(TagFile, aTagTellsItsPlaceAndKeepsTheBlanksOfItsValue)
{
    const std::string text =
        drawingWith("0\r\nTEXT\r\n  1\n two words \n\t40 \n\t2.5 \n  1\n\n  3\na\rb\n");
    const TagFile file = TagFile::fromText(text, "FILE");

    std::vector<Tag> tags;
    for (const Tag& tag : file.tags(file.records().front()))
    {
        tags.push_back(tag);
    }

    ASSERT_EQ(tags.size(), 5u);
    EXPECT_EQ(tags[0].value, "TEXT");
    EXPECT_EQ(tags[1].value, " two words ");
    EXPECT_EQ(text.substr(tags[1].begin, tags[1].end - tags[1].begin), "  1\n two words \n");
    EXPECT_EQ(tags[1].line, 21u);
    EXPECT_EQ(tags[2].code, Code(40));
    EXPECT_EQ(file.real(tags[2]), 2.5);
    EXPECT_EQ(tags[3].value, "");
    EXPECT_EQ(tags[4].value, "a\rb");
}

TEST(TagFile, headerVariablesHoldTheirValueTags)
{
    const std::string text =
        "999\nfrom elsewhere\n0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n"
        "9\n$DWGCODEPAGE\n3\nANSI_1251\n9\n$UCSORG\n10\n1.0\n20\n2.0\n30\n3.0\n999\nnote\n"
        "9\n$LTSCALE\n40\n2.0\n9\n$LTSCALE\n40\n5.0\n0\nENDSEC\n0\nEOF\n";
    const TagFile file = TagFile::fromText(text, "FILE");

    EXPECT_EQ(file.release().version, "AC1015");
    EXPECT_EQ(file.codePageName(), "ANSI_1251");
    const HeaderVariable* origin = file.header("$UCSORG");
    ASSERT_NE(origin, nullptr);
    EXPECT_EQ(text.substr(origin->begin, origin->end - origin->begin),
              "10\n1.0\n20\n2.0\n30\n3.0\n");
    EXPECT_EQ(origin->line, 17u);
    double sum = 0;
    for (const Tag& tag : file.tags(*origin))
    {
        sum = sum * 10 + file.real(tag);
    }
    EXPECT_EQ(sum, 123);
    EXPECT_EQ((*file.tags(*file.header("$LTSCALE")).begin()).value, "5.0");
    EXPECT_EQ(file.headerVariables().size(), 5u);
    EXPECT_EQ(file.header("$CLAYER"), nullptr);
}

TEST(TagFile, theFilesOwnWayOfWritingIsRecognised)
{
    struct Row
    {
        std::string text;
        std::string_view newline;
        int codeWidth;
        bool padIntegers;
    };
    const std::string plain = drawingWith("");
    const std::string padded =
        replaced(replaced(plain, "0\nSECTION", "  0\nSECTION"), "\n4", "\n     4");
    const Row rows[] = {
        {plain, "\n", 1, false},
        {withCrLf(plain), "\r\n", 1, false},
        {padded, "\n", 3, true},
        {withCrLf(padded), "\r\n", 3, true},
        {"999\nby someone\n" + padded, "\n", 3, true},
        {std::string(99, ' ') + plain, "\n", 6, false},
        {"\xEF\xBB\xBF" + withCrLf(padded), "\r\n", 3, true},
    };
    for (const Row& row : rows)
    {
        const TagFile file = TagFile::fromText(row.text, "FILE");
        EXPECT_EQ(file.style().newline, row.newline);
        EXPECT_EQ(file.style().codeWidth, row.codeWidth);
        EXPECT_EQ(file.style().padIntegers, row.padIntegers);
    }
}

TEST(TagFile, aValueThatIsNoNumberIsRefusedWhenItIsAskedFor)
{
    const std::string bad[] = {"", "abc", "1.5x", "nan", "inf", "1e999", "1,5", "0x10"};
    for (const std::string& value : bad)
    {
        const TagFile file = TagFile::fromText(drawingWith("0\nLINE\n10\n" + value + "\n"), "FILE");
        const Tag tag = *++file.tags(file.records().front()).begin();
        const std::string found = ", found \"" + value + "\"";
        EXPECT_THAT([&] { file.real(tag); },
                    testing::ThrowsMessage<Error>("FILE: line 22: expected a number" + found));
        EXPECT_THAT([&] { file.integer(tag); },
                    testing::ThrowsMessage<Error>("FILE: line 22: expected an integer" + found));
    }
}

TEST(TagFile, numbersMayStandBetweenBlanks)
{
    const TagFile file = TagFile::fromText(
        drawingWith("0\nLINE\n10\n  -1.5E+03 \n70\n     7\n330\n 1f \n330\n0\n"), "FILE");
    auto tag = file.tags(file.records().front()).begin();
    EXPECT_EQ(file.real(*++tag), -1500);
    EXPECT_EQ(file.integer(*++tag), 7);
    EXPECT_EQ(file.handle(*++tag), 0x1Fu);
    EXPECT_EQ(file.handle(*++tag), 0u);
}

TEST(TagFile, aDrawingCutAnywhereIsRefused)
{
    for (const std::string& whole : {emptyDrawing(), withCrLf(emptyDrawing())})
    {
        const std::size_t eof = whole.rfind("EOF") + 3;
        for (std::size_t size = 0; size < whole.size(); ++size)
        {
            const std::string message = refusal(whole.substr(0, size));
            EXPECT_EQ(message == "read", size >= eof) << "cut after " << size << " bytes";
            EXPECT_EQ(message.find('\n'), message.npos);
        }
    }
}

TEST(TagFile, aDamagedByteIsReadOrRefusedButNeverMore)
{
    std::string text = drawingWith(line + "0\nDIMSTYLE\n105\n27\n100\nAcDb\n1\nEnd\n");
    for (char& byte : text)
    {
        const char before = byte;
        for (const char damage : {'\0', '\n', '\r', ' ', '9', '\xFF'})
        {
            byte = damage;
            const std::string message = refusal(text);
            EXPECT_TRUE(message == "read" || message.starts_with("FILE: line ")) << message;
        }
        byte = before;
    }
}

TEST(TagFile, whatFollowsEofMayOnlyBeBlank)
{
    for (const std::string end : {"", "\n", "\r\n\r\n", "  \t\n", "\x1a"})
    {
        EXPECT_EQ(refusal(drawingWith("") + end), "read");
    }
    std::string unended = drawingWith("");
    unended.pop_back();
    EXPECT_EQ(refusal(unended), "read");
}
