// The types of group codes are the same wherever a drawing is read and written.
#include <gtest/gtest.h>

#include "host/dxf/binaryform.h"
#include "host/dxf/emptydrawing.h"
#include "host/dxf/filesource.h"
#include "host/dxf/load.h"
#include "host/dxf/schema/code.h"
#include "host/dxf/tagwriter.h"
#include "tests/dxf/smalldrawing.h"

using namespace host::dxf;

namespace
{
struct Expected
{
    int code;
    ValueType type;
};

// From the reference of DXF: the first and the last of each range, and what lies between ranges.
const Expected expected[] = {
    {0, ValueType::text},      {4, ValueType::text},     {5, ValueType::handle},
    {6, ValueType::text},      {9, ValueType::text},     {10, ValueType::real},
    {59, ValueType::real},     {60, ValueType::int16},   {79, ValueType::int16},
    {80, ValueType::none},     {90, ValueType::int32},   {99, ValueType::int32},
    {100, ValueType::text},    {102, ValueType::text},   {105, ValueType::handle},
    {110, ValueType::real},    {149, ValueType::real},   {150, ValueType::none},
    {160, ValueType::int64},   {169, ValueType::int64},  {170, ValueType::int16},
    {179, ValueType::int16},   {180, ValueType::none},   {210, ValueType::real},
    {239, ValueType::real},    {270, ValueType::int16},  {289, ValueType::int16},
    {290, ValueType::int8},    {299, ValueType::int8},   {300, ValueType::text},
    {310, ValueType::chunk},   {320, ValueType::handle}, {369, ValueType::handle},
    {370, ValueType::int16},   {389, ValueType::int16},  {390, ValueType::handle},
    {400, ValueType::int16},   {410, ValueType::text},   {420, ValueType::int32},
    {430, ValueType::text},    {440, ValueType::int32},  {459, ValueType::int32},
    {460, ValueType::real},    {470, ValueType::text},   {480, ValueType::handle},
    {481, ValueType::handle},  {482, ValueType::none},   {998, ValueType::none},
    {999, ValueType::text},    {1000, ValueType::text},  {1004, ValueType::chunk},
    {1005, ValueType::handle}, {1010, ValueType::real},  {1059, ValueType::real},
    {1060, ValueType::int16},  {1070, ValueType::int16}, {1071, ValueType::int32},
    {1072, ValueType::none},   {-1, ValueType::none},
};

TEST(ValueTypes, areThoseOfTheReference)
{
    for (const Expected& row : expected)
    {
        EXPECT_EQ(valueType(Code(row.code)), row.type) << row.code;
    }
}

std::size_t paddedWidth(int code)
{
    TagStyle style;
    style.padIntegers = true;
    std::string text;
    TagWriter writer([&text](std::string_view bytes) { text += bytes; }, style);
    writer.integer(Code(code), 1);
    writer.flush();
    return text.size() - text.find('\n') - 2;
}

// Bytes that the value takes, beside the mark of the file and the code.
std::size_t binarySize(int code)
{
    std::string binary;
    BinaryEncoder encoder([&binary](std::string_view bytes) { binary += bytes; }, 2);
    encoder.take(std::to_string(code) + "\n1\n");
    encoder.finish();
    return binary.size() - 24;
}

TEST(ValueTypes, aPaddedIntegerIsAsWideAsItsBinaryFormIsLong)
{
    const std::size_t widths[] = {0, 6, 6, 0, 9, 0, 0, 0, 18};
    for (int code = 0; code <= highestCode; ++code)
    {
        if (isInteger(valueType(Code(code))))
        {
            EXPECT_EQ(paddedWidth(code), widths[binarySize(code)]) << code;
        }
    }
}

// The types of VariableValue in their order.
enum Kept
{
    integer,
    real,
    point,
    text
};

TEST(ValueTypes, aHeaderVariableHasTheTypeOfItsCode)
{
    struct Row
    {
        const char* tag;
        Kept kept;
    };
    const Row rows[] = {
        {" 10\n1.0\n 20\n2.0\n 30\n3.0\n", point},
        {" 40\n1.5\n", real},
        {" 49\n1.5\n", real},
        {"140\n1.5\n", real},
        {" 62\n256\n", integer},
        {" 70\n4\n", integer},
        {" 90\n125\n", integer},
        {"280\n1\n", integer},
        {"290\n1\n", integer},
        {"370\n-1\n", integer},
        {"420\n255\n", integer},
        {"160\n5000000000\n", text},  // more than a variable's integer can hold
        {"  5\n2A\n", text},
        {"345\n2A\n", text},
        {"  1\n7\n", text},
    };
    for (const Row& row : rows)
    {
        const std::string header = "$INSUNITS\n 70\n4\n";
        AcDbDatabase database;
        load(host::coreOf(database),
             TagFile::fromText(
                 replaced(emptyDrawing(), header, header + "  9\n$SAMPLE\n" + row.tag), "FILE"));
        EXPECT_EQ(host::coreOf(database).state().variables.at(L"SAMPLE").index(),
                  std::size_t(row.kept))
            << row.tag;
    }
}
}  // namespace
