// Builds drawing files that are small enough to be read in a test.
#pragma once

#include <string>

#include "host/dxf/tagfile.h"

// Returns a drawing with these tags in section ENTITIES, written with "
// " and unpadded codes.
inline std::string drawingWith(const std::string& entities, const std::string& version = "AC1027")
{
    return "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\n" + version +
           "\n9\n$INSUNITS\n70\n4\n0\nENDSEC\n"
           "0\nSECTION\n2\nENTITIES\n" +
           entities + "0\nENDSEC\n0\nEOF\n";
}

inline std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
    {
        text.replace(at, from.size(), to);
    }
    return text;
}

inline std::string withCrLf(const std::string& text)
{
    return replaced(text, "\n", "\r\n");
}

// Returns the reason why the text is refused, or "read" if it is not.
inline std::string refusal(const std::string& text)
{
    try
    {
        host::dxf::TagFile::fromText(text, "FILE");
        return "read";
    }
    catch (const host::dxf::Error& error)
    {
        return error.what();
    }
}
