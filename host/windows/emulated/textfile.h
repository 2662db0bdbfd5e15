// Converts the bytes of a file as a text stream of the module's C runtime does.
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

// Returns the bytes with LF for each CR LF, and without everything from the first Ctrl-Z on.
std::string asText(std::string_view bytes);

// Returns the units of a file, two bytes each with the low byte first, under the same rules. A
// byte-order mark at the front decides the encoding and is left out. A file without a mark has the
// encoding `unmarked`. Returns nothing for a file in big-endian UTF-16.
std::optional<std::string> decodedUnits(std::string_view bytes, Encoding unmarked);
}  // namespace host
