// Group codes and the types of their values.
#pragma once

#include <array>
#include <compare>
#include <cstddef>

namespace host::dxf
{
inline constexpr int highestCode = 1071;

// A group code from 0 to 1071. Only the tables in this folder name codes by their numbers. The
// constructor is explicit so that a function never takes a bare number for a code.
class Code
{
public:
    constexpr Code() = default;
    explicit constexpr Code(int number) : m_number(number) {}

    constexpr int number() const { return m_number; }
    friend constexpr auto operator<=>(Code, Code) = default;

    // Return the codes of Y and Z if this is the code of a point's X.
    constexpr Code y() const { return Code(m_number + 10); }
    constexpr Code z() const { return Code(m_number + 20); }

private:
    int m_number = 0;
};

enum class ValueType : unsigned char
{
    none,  // DXF does not define such a code
    text,
    handle,  // hexadecimal digits
    real,
    int8,
    int16,
    int32,
    int64,
    chunk,  // bytes as hexadecimal digits
};

constexpr bool isInteger(ValueType type)
{
    return ValueType::int8 <= type && type <= ValueType::int64;
}

namespace schema
{
struct CodeRange
{
    int first;
    int last;
    ValueType type;
};

// clang-format off
inline constexpr CodeRange codeRanges[] = {
    {0, 4, ValueType::text},
    {5, 5, ValueType::handle},
    {6, 9, ValueType::text},
    {10, 59, ValueType::real},
    {60, 79, ValueType::int16},
    {90, 99, ValueType::int32},
    {100, 104, ValueType::text},
    {105, 105, ValueType::handle},
    {106, 109, ValueType::text},
    {110, 149, ValueType::real},
    {160, 169, ValueType::int64},
    {170, 179, ValueType::int16},
    {210, 239, ValueType::real},
    {270, 289, ValueType::int16},
    {290, 299, ValueType::int8},
    {300, 309, ValueType::text},
    {310, 319, ValueType::chunk},
    {320, 369, ValueType::handle},
    {370, 389, ValueType::int16},
    {390, 399, ValueType::handle},
    {400, 409, ValueType::int16},
    {410, 419, ValueType::text},
    {420, 429, ValueType::int32},
    {430, 439, ValueType::text},
    {440, 459, ValueType::int32},
    {460, 469, ValueType::real},
    {470, 479, ValueType::text},
    {480, 481, ValueType::handle},
    {999, 1003, ValueType::text},
    {1004, 1004, ValueType::chunk},
    {1005, 1005, ValueType::handle},
    {1006, 1009, ValueType::text},
    {1010, 1059, ValueType::real},
    {1060, 1070, ValueType::int16},
    {1071, 1071, ValueType::int32},
};
// clang-format on

inline constexpr auto valueTypes = []
{
    std::array<ValueType, highestCode + 1> types{};
    for (const CodeRange& range : codeRanges)
    {
        for (int code = range.first; code <= range.last; ++code)
        {
            types[std::size_t(code)] = range.type;
        }
    }
    return types;
}();
}  // namespace schema

// Returns the type of a code's values. Accepts any number, because a file may contain numbers that
// are not group codes.
constexpr ValueType valueType(Code code)
{
    const int number = code.number();
    return 0 <= number && number <= highestCode ? schema::valueTypes[std::size_t(number)]
                                                : ValueType::none;
}
}  // namespace host::dxf
