// Converts between the module's wide text and this platform's UTF-8.
//
// Wide text is UTF-16 with one unit in each wchar_t: a character above U+FFFF takes two units.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace host
{
// Converts to UTF-8 and joins surrogate pairs. A surrogate without its other half becomes U+FFFD.
std::string toUtf8(std::wstring_view text);

// Converts from UTF-8. Each byte that is not part of valid UTF-8 becomes one U+FFFD.
std::wstring fromUtf8(std::string_view bytes);

// Returns the path with that name in UTF-8. A path must not be constructed from such bytes
// directly: systems differ in the character that a byte above 127 stands for.
std::filesystem::path pathOf(std::string_view utf8);

// Convert a path as the module writes it, with backslashes between folders, to a path of this
// platform, and the reverse.
std::filesystem::path toNativePath(std::wstring_view path);
std::wstring fromNativePath(std::string_view path);
}  // namespace host
