// Converts bytes of a code page to characters and back, with the code pages that the platform
// knows.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace host::dxf
{
// An object must not be used by two threads at once.
class ByteConverter
{
public:
    // Opens a code page: "UTF-8", "CP" and a number, "ISO8859-" and a number, or "JOHAB". Returns
    // nullptr if the platform does not know the code page.
    static std::unique_ptr<ByteConverter> open(const std::string& codePage);
    virtual ~ByteConverter() = default;

    // Appends the characters of the bytes up to the first byte that has no meaning. Returns the
    // number of bytes that were converted.
    virtual std::size_t decode(std::string_view bytes, std::u32string& text) = 0;
    // Returns the bytes of a character, or nothing if the code page lacks the character.
    virtual std::optional<std::string> encode(char32_t character) = 0;
};
}  // namespace host::dxf
