// Bytes of a code page as characters, and back, by what the platform knows of code pages.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace host::dxf
{
// Not for two threads at once.
class ByteConverter
{
public:
    // "UTF-8", "CP" and a number, "ISO8859-" and a number, "JOHAB"; null for one that is not known.
    static std::unique_ptr<ByteConverter> open(const std::string& codePage);
    virtual ~ByteConverter() = default;

    // Appends the characters of the bytes up to the first that means nothing; how many were taken.
    virtual std::size_t decode(std::string_view bytes, std::u32string& text) = 0;
    // Nothing for a character that the code page lacks.
    virtual std::optional<std::string> encode(char32_t character) = 0;
};
}  // namespace host::dxf
