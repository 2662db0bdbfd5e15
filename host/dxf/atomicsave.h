// Saves a file wholly or not at all.
#pragma once

#include <string>

#include "host/dxf/edits.h"
#include "host/dxf/error.h"
#include "host/dxf/progress.h"

namespace host::dxf
{
// Writes beside the file and then takes its place, so that at no moment a part of a drawing bears
// the name. A symbolic link is followed; an old file's mode is kept, and the old file itself until
// the disk has all of the new one. Any failure throws an Error, leaves no other file behind and
// the old one whole.
//
// Errors and exceptions of `produce` pass through with the same promise.
void saveAtomically(const std::string& path, const TagStyle& style, const Producer& produce);
// `size` is about how many bytes the file will have.
void saveAtomically(const std::string& path, const Edits& edits, const Progress& progress = {},
                    std::size_t size = 1);

// The bytes that these write, text or binary. Throws std::domain_error for what no tag can hold.
void writeTags(const TagStyle& style, const Producer& produce, const TagWriter::Drain& drain);
}  // namespace host::dxf
