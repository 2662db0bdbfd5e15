// A new drawing that is written beside the old one until it takes the old one's place.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "host/dxf/error.h"

namespace host::dxf
{
// Checks whether `path` can be written, before a Replacement is created. Throws the Error that the
// Replacement would throw: the folder does not exist or takes no files, or the file is not
// writable. Changes nothing.
void requireReplaceable(const std::string& path);

// A new file that is deleted unless takePlace succeeds. Every failure throws an Error and leaves
// the old file whole. A device or a pipe holds nothing that could be lost, so it receives the bytes
// directly.
class Replacement
{
public:
    class Files;

    // Creates the new file. A symbolic link is followed. If there is an old file, the user must be
    // allowed to write to it. The new file gets the owner and the mode of the old one before it
    // holds anything that could be read.
    explicit Replacement(const std::string& path);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    // Appends bytes to the new file.
    void write(std::string_view bytes);
    // Gives the new file its name. If it replaces an old drawing, the function first waits until
    // the disk holds the new one; a new name puts nothing at risk.
    void takePlace();

private:
    std::unique_ptr<Files> m_files;
};
}  // namespace host::dxf
