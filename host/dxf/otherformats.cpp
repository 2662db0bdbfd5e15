#include "host/dxf/otherformats.h"

#include <algorithm>

namespace host::dxf
{
namespace
{
using namespace std::string_view_literals;

struct Format
{
    std::string_view start;
    std::string_view name;
};

// A DXF drawing never begins like one of these, because its first line is a number.
const Format formats[] = {
    {"AC10"sv, "a DWG"},
    {"%PDF-"sv, "a PDF document"},
    {"%!PS"sv, "a PostScript document"},
    {"PK\x03\x04"sv, "a ZIP archive"},
    {"PK\x05\x06"sv, "a ZIP archive"},
    {"\x1F\x8B"sv, "a gzip archive"},
    {"BZh"sv, "a bzip2 archive"},
    {"\3757zXZ\0"sv, "an xz archive"},
    {"(\xB5/\xFD"sv, "a Zstandard archive"},
    {"7z\xBC\xAF\x27"sv, "a 7z archive"},
    {"Rar!"sv, "a RAR archive"},
    {"\x89PNG"sv, "a PNG picture"},
    {"\xFF\xD8\xFF"sv, "a JPEG picture"},
    {"GIF8"sv, "a GIF picture"},
    {"II*\0"sv, "a TIFF picture"},
    {"MM\0*"sv, "a TIFF picture"},
    {"<svg"sv, "an SVG picture"},
    {"<?xml"sv, "an XML document"},
    {"<!DOCTYPE"sv, "an HTML document"},
    {"<html"sv, "an HTML document"},
    {"\177ELF"sv, "a program"},
    {"MZ"sv, "a program"},
    {"\xFF\xFE"sv, "text in UTF-16"},
    {"\xFE\xFF"sv, "text in UTF-16"},
};

// Recognises UTF-16 without a byte-order mark: every other byte of the first letters is zero.
bool looksLikeUtf16(std::string_view bytes)
{
    if (bytes.size() < 4)
    {
        return false;
    }
    const bool zeros[] = {bytes[0] == 0, bytes[1] == 0, bytes[2] == 0, bytes[3] == 0};
    return zeros[0] != zeros[1] && zeros[0] == zeros[2] && zeros[1] == zeros[3];
}
}  // namespace

std::string_view otherFormat(std::string_view bytes)
{
    const auto found = std::ranges::find_if(
        formats, [bytes](const Format& format) { return bytes.starts_with(format.start); });
    if (found != std::end(formats))
    {
        return found->name;
    }
    return looksLikeUtf16(bytes) ? "text in UTF-16" : "";
}
}  // namespace host::dxf
