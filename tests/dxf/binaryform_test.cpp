#include "host/dxf/binaryform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <stdexcept>

#include "host/dxf/codepage.h"
#include "host/dxf/emptydrawing.h"
#include "host/dxf/error.h"
#include "tests/dxf/smalldrawing.h"

using namespace host::dxf;

namespace
{
const std::string mark("AutoCAD Binary DXF\r\n\x1a\0", 22);

std::string encoded(const std::string& ascii, int codeSize, std::size_t piece = 1 << 20)
{
    std::string binary;
    BinaryEncoder encoder([&](std::string_view bytes) { binary += bytes; }, codeSize);
    for (std::size_t at = 0; at < ascii.size(); at += piece)
    {
        encoder.take(std::string_view(ascii).substr(at, piece));
    }
    encoder.finish();
    return binary;
}

template <class Number>
std::string bytesOf(Number number)
{
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

// A tag of a file with codes of two bytes.
std::string tag(int code, const std::string& value)
{
    return bytesOf(std::int16_t(code)) + value;
}

std::string text(const std::string& value)
{
    return value + '\0';
}

const std::string start = mark + tag(0, text("SECTION"));
const std::string startRead = "  0\nSECTION\n";

struct Value
{
    int code;
    std::string binary;
    std::string ascii;
};

TEST(BinaryForm, everyKindOfValueIsReadAndWrittenAsItWas)
{
    const Value rows[] = {
        {1, text("Steinbruch \xC4"), "Steinbruch \xC4"},
        {8, text(" blank "), " blank "},
        {1, text("\none\n\ntwo\r\n"), std::string("\0one\0\0two\r\0", 11)},
        {1, text("return\r"), "return\r"},
        {10, bytesOf(1234567.1234567), "1234567.1234567"},
        {40, bytesOf(-0.0), "-0"},
        {41, bytesOf(5e-324), "5e-324"},
        {62, bytesOf(std::int16_t(-7)), "-7"},
        {90, bytesOf(std::int32_t(-2147483647)), "-2147483647"},
        {100, text("AcDbLine"), "AcDbLine"},
        {140, bytesOf(2.5), "2.5"},
        {160, bytesOf(std::int64_t(1) << 40), "1099511627776"},
        {210, bytesOf(1.0), "1"},
        {290, bytesOf(std::uint8_t(1)), "1"},
        {310, std::string("\x03\x01\xFE\x00", 4), "01FE00"},
        {330, text("1F"), "1F"},
        {370, bytesOf(std::int16_t(25)), "25"},
        {420, bytesOf(std::int32_t(0xFFFFFF)), "16777215"},
        {1000, text("xdata"), "xdata"},
        {1004, std::string("\0", 1), ""},
        {1010, bytesOf(7.0), "7"},
        {1070, bytesOf(std::int16_t(9)), "9"},
        {1071, bytesOf(std::int32_t(9)), "9"},
    };
    for (const Value& row : rows)
    {
        const std::string binary = start + tag(row.code, row.binary);
        const AsciiForm form = asciiForm(binary, "FILE");
        std::string code = std::to_string(row.code);
        code.insert(0, code.size() < 3 ? 3 - code.size() : 0, ' ');
        EXPECT_EQ(form.text, startRead + code + "\n" + row.ascii + "\n");
        EXPECT_EQ(encoded(form.text, 2), binary) << row.code;
    }
}

TEST(BinaryForm, ofAWholeDrawingReadsBackTagForTagInPiecesOfAnySize)
{
    const TagFile ascii = TagFile::fromText(emptyDrawing(), "FILE");
    for (const int codeSize : {1, 2})
    {
        const std::string binary = encoded(emptyDrawing(), codeSize);
        EXPECT_EQ(encoded(emptyDrawing(), codeSize, 7), binary);
        const TagFile file = TagFile::fromText(binary, "FILE");
        EXPECT_EQ(file.style().binaryCodeSize, codeSize);
        ASSERT_EQ(file.records().size(), ascii.records().size());
        EXPECT_EQ(encoded(std::string(file.bytes()), codeSize), binary);
    }
}

TEST(BinaryForm, cutAnywhereIsRefusedWithItsOffset)
{
    const std::string binary = encoded(drawingWith("0\nLINE\n5\n2F\n310\nAB\n290\n1\n"), 2);
    for (std::size_t size = 0; size < binary.size(); ++size)
    {
        const std::string message = refusal(binary.substr(0, size));
        EXPECT_TRUE(message.starts_with(size < mark.size() ? "FILE: line " : "FILE: offset "))
            << size << message;
    }
}

TEST(BinaryForm, whatNoTagCanBeIsRefusedWithItsOffset)
{
    const std::string offset = std::to_string(start.size());
    const std::string value = std::to_string(start.size() + 2);
    const std::pair<std::string, std::string> rows[] = {
        {tag(-5, ""), offset + ": expected a group code of DXF, found -5"},
        {tag(80, text("x")), offset + ": expected a group code of DXF, found 80"},
        {tag(1, "no end"), value + ": expected the end of a text, found the end of the file"},
        {tag(40, bytesOf(std::nan("7"))), value + ": expected a number, found none"},
        {tag(310, "\x7F only this"),
         std::to_string(start.size() + 3) + ": expected a whole value, found the end of the file"},
    };
    for (const auto& [bytes, message] : rows)
    {
        EXPECT_EQ(refusal(start + bytes), "FILE: offset " + message);
    }
}

// Real drawings have such tolerances.
TEST(BinaryForm, aTextWithLineFeedsIsReadPlottedAndWrittenBack)
{
    const std::string several("{\\Fgdt;j}%%v0.1\nsecond\n");
    const std::string binary = start + tag(2, text("ENTITIES")) + tag(0, text("TOLERANCE")) +
                               tag(1, text(several)) + tag(0, text("ENDSEC")) + tag(0, text("EOF"));
    const TagFile file = TagFile::fromText(binary, "FILE");
    ASSERT_EQ(file.records("ENTITIES").size(), 1u);
    for (const Tag& tag : file.tags(file.records("ENTITIES")[0]))
    {
        if (tag.code.number() == 1)
        {
            EXPECT_EQ(CodePage(file.release(), "").decode(tag.value),
                      std::wstring(several.begin(), several.end()));
        }
    }
    for (const std::size_t piece : {1, 5, 1000})
    {
        EXPECT_EQ(encoded(std::string(file.bytes()), 2, piece), binary);
    }
}

// The tags arrive in pieces of any size, as the writer of tags drains them.
TEST(BinaryForm, whatFollowsTheEndMarkStaysAsItIs)
{
    for (const std::string& end : {std::string(), std::string(100, '\0'), std::string("\r\n\x1a")})
    {
        const std::string binary =
            start + tag(2, text("ENTITIES")) + tag(0, text("ENDSEC")) + tag(0, text("EOF")) + end;
        const TagFile file = TagFile::fromText(binary, "FILE");
        EXPECT_EQ(encoded(std::string(file.bytes()), 2), binary);
        EXPECT_EQ(encoded(std::string(file.bytes()), 2, 3), binary);
    }
    EXPECT_EQ(refusal(mark + tag(0, text("EOF")) + "more"),
              "FILE: offset 28: expected nothing after EOF, found more");
}

TEST(BinaryForm, aCodeThatTakesMoreBytesThanItNeedsIsRefused)
{
    const std::string binary = mark + '\0' + text("SECTION") + "\xFF" + bytesOf(std::int16_t(2));
    EXPECT_EQ(refusal(binary + text("ENTITIES")),
              "FILE: offset 31: expected a group code of DXF in one byte, found 2 in three");
}

TEST(BinaryForm, aValueThatItsCodeCannotHoldIsNotWritten)
{
    for (const char* tag : {" 70\n40000\n", " 10\nword\n", "290\n256\n", "310\nABC\n", "310\nXY\n"})
    {
        EXPECT_THROW(encoded(tag, 2), std::domain_error) << tag;
    }
}
}  // namespace
