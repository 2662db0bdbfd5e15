// Wide text of the module and UTF-8 of this platform.
//
// Wide text is UTF-16, one unit in each wchar_t: a character above U+FFFF takes two units.
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

// Makes a path of its name in UTF-8. A path must not be made of such bytes directly: systems differ
// on which character a byte above 127 stands for.
std::filesystem::path pathOf(std::string_view utf8);

// Converts a path as the module writes it, with backslashes between folders, to a path of this
// platform, and back.
std::filesystem::path toNativePath(std::wstring_view path);
std::wstring fromNativePath(std::string_view path);
}  // namespace host
