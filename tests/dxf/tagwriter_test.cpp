#include "host/dxf/tagwriter.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <stdexcept>

using namespace host::dxf;

namespace
{
template <class Write>
std::string written(const TagStyle& style, const Write& write)
{
    std::string text;
    TagWriter writer([&text](std::string_view bytes) { text += bytes; }, style);
    write(writer);
    writer.flush();
    return text;
}
}  // namespace

TEST(TagWriter, realsAreShortAndAlwaysLookLikeReals)
{
    const std::pair<double, const char*> rows[] = {
        {0.0, "0.0"},
        {-0.0, "0.0"},
        {100.0, "100.0"},
        {-0.5, "-0.5"},
        {0.1, "0.1"},
        {1.0 / 3.0, "0.3333333333333333"},
        {123456.789, "123456.789"},
        {100000.0, "100000.0"},
        {999999999999999.0, "999999999999999.0"},
        {1e15, "1e+15"},
        {1e20, "1e+20"},
        {-1e20, "-1e+20"},
        {0.00001, "0.00001"},
        {0.0000099, "9.9e-06"},
        {5e-324, "5e-324"},
        {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
        {999999999999999.9, "999999999999999.9"},
    };
    for (const auto& [value, text] : rows)
    {
        EXPECT_EQ(realText(value), text);
    }
}

TEST(TagWriter, aRealReadsBackAsTheSameNumber)
{
    std::mt19937_64 random(testing::UnitTest::GetInstance()->random_seed());
    for (int i = 0; i < 200000; ++i)
    {
        const double any = std::bit_cast<double>(random());
        const double usual = std::ldexp(static_cast<double>(random()) - 9e18, -50);
        for (const double value : {any, usual})
        {
            if (!std::isfinite(value))
            {
                continue;
            }
            const std::string text = realText(value);
            ASSERT_EQ(std::strtod(text.c_str(), nullptr), value) << text;
            ASSERT_NE(text.find_first_of(".e"), text.npos) << text;
        }
    }
}

TEST(TagWriter, whatNoTagCanHoldIsRefused)
{
    EXPECT_THROW(realText(std::nan("")), std::domain_error);
    EXPECT_THROW(realText(HUGE_VAL), std::domain_error);
    EXPECT_THROW(written({}, [](TagWriter& w) { w.text(Code(1), "two\nlines"); }),
                 std::domain_error);
    EXPECT_THROW(written({}, [](TagWriter& w) { w.integer(Code(1072), 1); }), std::out_of_range);
    EXPECT_THROW(written({}, [](TagWriter& w) { w.integer(Code(-1), 1); }), std::out_of_range);
}

TEST(TagWriter, tagsLookLikeTheirNeighboursInTheFile)
{
    const auto tags = [](TagWriter& w)
    {
        w.text(Code(0), "LINE");
        w.handle(Code(5), 0xABCDEF0123456789);
        w.text(Code(8), "");
        w.integer(Code(62), -3);
        w.integer(Code(90), 1234567890123);
        w.integer(Code(440), 7);
        w.point(Code(10), 1, 2.5, -3);
        w.point(Code(11), 1e20, 2);
        w.real(Code(1040), 0.25);
        w.handle(Code(330), 0);
    };
    EXPECT_EQ(written({.newline = "\n", .codeWidth = 1, .padIntegers = false}, tags),
              "0\nLINE\n5\nABCDEF0123456789\n8\n\n62\n-3\n90\n1234567890123\n440\n7\n"
              "10\n1.0\n20\n2.5\n30\n-3.0\n11\n1e+20\n21\n2.0\n1040\n0.25\n330\n0\n");
    EXPECT_EQ(written({.newline = "\r\n", .codeWidth = 3, .padIntegers = true}, tags),
              "  0\r\nLINE\r\n  5\r\nABCDEF0123456789\r\n  8\r\n\r\n 62\r\n    -3\r\n"
              " 90\r\n1234567890123\r\n440\r\n        7\r\n"
              " 10\r\n1.0\r\n 20\r\n2.5\r\n 30\r\n-3.0\r\n 11\r\n1e+20\r\n 21\r\n2.0\r\n"
              "1040\r\n0.25\r\n330\r\n0\r\n");
    EXPECT_EQ(written({.newline = "\r\n", .codeWidth = 6, .padIntegers = true},
                      [](TagWriter& w) { w.integer(Code(1071), INT64_MIN); }),
              "  1071\r\n-9223372036854775808\r\n");
}

TEST(TagWriter, theWidestTagsFitWhereverTheBufferIsFull)
{
    const TagStyle wide{.newline = "\r\n", .codeWidth = 6, .padIntegers = true};
    const std::string longText(150, 't');
    const auto tags = [&](TagWriter& w)
    {
        w.real(Code(1040), -2.2250738585072014e-308);
        w.real(Code(1040), -2.2250738585072014e-308);
        w.text(Code(1), longText);
        w.raw("|");
        w.integer(Code(1071), INT64_MIN);
    };
    const std::string expected = written(wide, tags);
    const std::string before(TagWriter::bufferSize + 3, 'x');
    std::string text;
    TagWriter writer([&text](std::string_view bytes) { text += bytes; }, wide);
    for (std::size_t filled = before.size() - 300; filled <= before.size(); ++filled)
    {
        writer.raw(std::string_view(before).substr(0, filled));
        tags(writer);
        writer.flush();
        EXPECT_EQ(std::string_view(text).substr(filled), expected) << filled;
        text.clear();
    }
}

TEST(TagWriter, handlesOfAnyLengthAreHexadecimalCapitals)
{
    for (const std::uint64_t handle :
         {0x1ull, 0x9ull, 0xAull, 0x1Full, 0xFEDCBAull, 0x12345678ull, 0x90ABCDEFull,
          0x123456789ull, 0xFFFFFFFFFFull, 0x8000000000000000ull, 0xFEDCBA9876543210ull})
    {
        char expected[40];
        std::snprintf(expected, sizeof expected, "  5\n%llX\n",
                      static_cast<unsigned long long>(handle));
        EXPECT_EQ(written({}, [=](TagWriter& w) { w.handle(Code(5), handle); }), expected);
    }
}

TEST(TagWriter, handlesThatCountUpAreWrittenLikeOthers)
{
    const std::uint64_t starts[] = {0, 0xF8, 0xFFFFFFF0, 0xFFFFFFFFFFFFFFF0, 0x7, 0x7};
    std::string expected;
    const auto count = [&](TagWriter& w)
    {
        for (const std::uint64_t start : starts)
        {
            for (std::uint64_t handle = start; handle != start + 300; ++handle)
            {
                char tag[40];
                std::snprintf(tag, sizeof tag, "  5\n%llX\n",
                              static_cast<unsigned long long>(handle));
                expected += tag;
                w.handle(Code(5), handle);
            }
        }
    };
    EXPECT_EQ(written({}, count), expected);
}

namespace
{
const double numbers[] = {0, -0.5, 123456.789, -2.2250738585072014e-308, 1e20, 0.1};

RecordForm formOf(const TagStyle& style, bool hasHandle, const std::string& layer)
{
    const auto piece = [&](const auto& write) { return written(style, write); };
    const std::string head =
        hasHandle ? piece([](TagWriter& w) { w.text(Code(0), "LINE"), w.codeLine(Code(5)); }) : "";
    const std::string common = piece(
        [&](TagWriter& w)
        {
            hasHandle ? w.lineEnd() : w.text(Code(0), "LINE");
            w.text(Code(8), layer);
            w.codeLine(Code(10));
        });
    std::vector<RecordForm::Gap> gaps;
    for (const int code : {20, 30, 11, 21, 31})
    {
        const std::string gap = piece([&](TagWriter& w) { w.lineEnd(), w.codeLine(Code(code)); });
        gaps.push_back({unsigned(gaps.size()), SharedBytes(gap)});
    }
    const std::string tail = piece([](TagWriter& w) { w.lineEnd(), w.text(Code(210), "tail"); });
    gaps.push_back({5, SharedBytes(tail)});
    return {head, hasHandle, common, std::move(gaps)};
}

std::string tagsOneByOne(const TagStyle& style, bool hasHandle, const std::string& layer,
                         std::uint64_t handle)
{
    return written(style,
                   [&](TagWriter& w)
                   {
                       w.text(Code(0), "LINE");
                       if (hasHandle)
                       {
                           w.handle(Code(5), handle);
                       }
                       w.text(Code(8), layer);
                       w.point(Code(10), numbers[0], numbers[1], numbers[2]);
                       w.point(Code(11), numbers[3], numbers[4], numbers[5]);
                       w.text(Code(210), "tail");
                   });
}
}  // namespace

TEST(TagWriter, aRecordIsItsTagsOneByOneWhereverTheBufferIsFull)
{
    const std::uint64_t handle = 0xFEDCBA9876543210;
    const std::string before(TagWriter::bufferSize + 3, 'x');
    const TagStyle wide{.newline = "\r\n", .codeWidth = 6, .padIntegers = true};
    for (const TagStyle& style : {TagStyle{}, wide})
    {
        for (const auto& [hasHandle, layer] :
             {std::pair(true, std::string("0")), std::pair(false, std::string("0")),
              std::pair(true, before)})
        {
            const RecordForm form = formOf(style, hasHandle, layer);
            const std::string expected = tagsOneByOne(style, hasHandle, layer, handle);
            std::string text;
            TagWriter writer([&text](std::string_view bytes) { text += bytes; }, style);
            for (std::size_t filled = before.size() - 500; filled <= before.size(); ++filled)
            {
                writer.raw(std::string_view(before).substr(0, filled));
                writer.record(form, handle, numbers);
                writer.flush();
                ASSERT_TRUE(std::string_view(text).substr(filled) == expected) << filled;
                text.clear();
            }
        }
    }
}

TEST(TagWriter, manyTagsAndLongTextsArriveInOrder)
{
    const std::string longText(3 << 20, 'x');
    std::string expected;
    for (int i = 0; i < 100000; ++i)
    {
        expected += " 90\n" + std::to_string(i) + "\n  1\ntext\n";
    }
    expected += "  1\n" + longText + "\n" + longText;

    const std::string text = written({},
                                     [&](TagWriter& w)
                                     {
                                         for (int i = 0; i < 100000; ++i)
                                         {
                                             w.integer(Code(90), i);
                                             w.text(Code(1), "text");
                                         }
                                         w.text(Code(1), longText);
                                         w.raw(longText);
                                     });
    EXPECT_TRUE(text == expected);
}

TEST(TagWriter, theBytesLeaveInPiecesOfTheBuffersSize)
{
    std::size_t pieces = 0;
    TagWriter writer([&](std::string_view) { ++pieces; }, {});
    for (std::size_t i = 0; i < TagWriter::bufferSize; ++i)
    {
        writer.text(Code(1), "12345");  // ten bytes a tag
    }
    writer.flush();
    EXPECT_NEAR(double(pieces), 10, 1);
    const std::size_t before = pieces;
    writer.flush();
    EXPECT_EQ(pieces, before);
}
