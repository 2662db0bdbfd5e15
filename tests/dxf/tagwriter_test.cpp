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
        {0.0,                                "0.0"                    },
        {-0.0,                               "0.0"                    },
        {100.0,                              "100.0"                  },
        {-0.5,                               "-0.5"                   },
        {0.1,                                "0.1"                    },
        {1.0 / 3.0,                          "0.3333333333333333"     },
        {123456.789,                         "123456.789"             },
        {100000.0,                           "100000.0"               },
        {999999999999999.0,                  "999999999999999.0"      },
        {1e15,                               "1e+15"                  },
        {1e20,                               "1e+20"                  },
        {-1e20,                              "-1e+20"                 },
        {0.00001,                            "0.00001"                },
        {0.0000099,                          "9.9e-06"                },
        {5e-324,                             "5e-324"                 },
        {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
        {999999999999999.9,                  "999999999999999.9"      },
    };
    for (const auto& [value, text] : rows)
        EXPECT_EQ(realText(value), text);
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
                continue;
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
    EXPECT_THROW(written({}, [](TagWriter& w) { w.text(1, "two\nlines"); }), std::domain_error);
    EXPECT_THROW(written({}, [](TagWriter& w) { w.integer(1072, 1); }), std::out_of_range);
    EXPECT_THROW(written({}, [](TagWriter& w) { w.integer(-1, 1); }), std::out_of_range);
}

TEST(TagWriter, tagsLookLikeTheirNeighboursInTheFile)
{
    const auto tags = [](TagWriter& w)
    {
        w.text(0, "LINE");
        w.handle(5, 0xABCDEF0123456789);
        w.text(8, "");
        w.integer(62, -3);
        w.integer(90, 1234567890123);
        w.integer(440, 7);
        w.point(10, 1, 2.5, -3);
        w.point(11, 1e20, 2);
        w.real(1040, 0.25);
        w.handle(330, 0);
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
                      [](TagWriter& w) { w.integer(1071, INT64_MIN); }),
              "  1071\r\n-9223372036854775808\r\n");
}

TEST(TagWriter, theWidestTagsFitWhereverTheBufferIsFull)
{
    const TagStyle wide{.newline = "\r\n", .codeWidth = 6, .padIntegers = true};
    const std::string longText(150, 't');
    const auto tags = [&](TagWriter& w)
    {
        w.real(1040, -2.2250738585072014e-308);
        w.real(1040, -2.2250738585072014e-308);
        w.text(1, longText);
        w.raw("|");
        w.integer(1071, INT64_MIN);
    };
    const std::string expected = written(wide, tags);
    const std::string before((1 << 20) + 3, 'x');
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

TEST(TagWriter, manyTagsAndLongTextsArriveInOrder)
{
    const std::string longText(3 << 20, 'x');
    std::string expected;
    for (int i = 0; i < 100000; ++i)
        expected += " 90\n" + std::to_string(i) + "\n  1\ntext\n";
    expected += "  1\n" + longText + "\n" + longText;

    const std::string text = written({},
                                     [&](TagWriter& w)
                                     {
                                         for (int i = 0; i < 100000; ++i)
                                         {
                                             w.integer(90, i);
                                             w.text(1, "text");
                                         }
                                         w.text(1, longText);
                                         w.raw(longText);
                                     });
    EXPECT_TRUE(text == expected);
}

TEST(TagWriter, theBytesLeaveInPiecesOfAboutAMegabyte)
{
    std::size_t pieces = 0;
    TagWriter writer([&](std::string_view) { ++pieces; }, {});
    for (int i = 0; i < 1000000; ++i)
        writer.text(1, "12345");  // ten bytes a tag
    writer.flush();
    EXPECT_EQ(pieces, 10u);
    writer.flush();
    EXPECT_EQ(pieces, 10u);
}
