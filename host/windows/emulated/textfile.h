// What a text stream of the module's C runtime holds for the bytes of a file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host
{
enum class Encoding
{
    utf8,
    utf16  // little-endian
};

// CR LF as LF, and nothing from the first Ctrl-Z on.
std::string asText(std::string_view bytes);

// The units of a file, two bytes each, low byte first, under the same rules. A byte-order mark at
// the front decides the encoding and is left out, `unmarked` holds without one. Nothing for a file
// in big-endian UTF-16.
std::optional<std::string> decodedUnits(std::string_view bytes, Encoding unmarked);
}  // namespace host
