// Saves a drawing file completely or not at all.
#pragma once

#include <string>

#include "host/dxf/edits.h"
#include "host/dxf/error.h"
#include "host/dxf/progress.h"

namespace host::dxf
{
// Writes a new file beside `path` and then renames it to `path`, so that an incomplete drawing
// never has that name. A symbolic link is followed. The new file gets the mode of the old one. The
// old file stays until the disk holds the whole of the new one.
//
// Throws an Error if the file cannot be saved. Errors and exceptions of `produce` pass through. In
// either case the old file stays whole and no other file is left behind.
void saveAtomically(const std::string& path, const TagStyle& style, const Producer& produce);
// Saves the edited file. `size` is the approximate length of the result in bytes; it serves only to
// compute `progress`.
void saveAtomically(const std::string& path, const Edits& edits, const Progress& progress = {},
                    std::size_t size = 1);

// Passes the bytes that saveAtomically would write, text or binary, to `drain`. Throws
// std::domain_error for a value that no tag can hold.
void writeTags(const TagStyle& style, const Producer& produce, const TagWriter::Drain& drain);
}  // namespace host::dxf
