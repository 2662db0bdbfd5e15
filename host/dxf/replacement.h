// A new drawing beside the old one, until it takes the old one's place.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/dxf/error.h"

namespace host::dxf
{
// Throws the Error that a Replacement would throw in the end because of the name: its folder is not
// there or takes no files, the file may not be written. Changes nothing.
void requireReplaceable(const std::string& path);

// Gone on every way out before `takePlace`. Every failure throws an Error, and leaves the old file
// whole. A device or pipe has nothing to lose: it takes the bytes as they come.
class Replacement
{
public:
    class Files;

    // A symbolic link is followed. The old file, if there is one, must be one that the user could
    // write to; its owner and mode are taken over before there is anything to read.
    explicit Replacement(const std::string& path);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    void write(std::string_view bytes);
    // Waits for the disk where an old drawing is given up; a new name puts nothing at risk.
    void takePlace();

private:
    std::unique_ptr<Files> m_files;
};
}  // namespace host::dxf
