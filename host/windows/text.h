// Wide text of the module and UTF-8 of this platform.
//
// Wide text is UTF-16 held in this platform's wider wchar_t: a character above U+FFFF is two units.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace host
{
// Joins surrogate pairs; a surrogate without its other half becomes U+FFFD.
std::string toUtf8(std::wstring_view text);

// Each byte that is no part of valid UTF-8 becomes one U+FFFD.
std::wstring fromUtf8(std::string_view bytes);

// A path in UTF-8; from other bytes than ASCII a path must not be made directly, as systems differ
// on what they take them for.
std::filesystem::path pathOf(std::string_view utf8);

// A path as the module writes it, backslashes between folders, as this platform has it, and back.
std::filesystem::path toNativePath(std::wstring_view path);
std::wstring fromNativePath(std::string_view path);
}  // namespace host
