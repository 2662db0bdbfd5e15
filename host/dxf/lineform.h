// The precomputed form in which lines are written; a drawing may have a million of them.
#pragma once

#include "host/dxf/recordwriter.h"
#include "host/dxf/schema/entities.h"

namespace host::dxf
{
// Returns what the table of lines writes for `line`, except the handle and the two points, which
// the form leaves open.
RecordForm lineFormOf(const schema::line::Line& line, const FileForm& form, const TagStyle& style,
                      bool hasHandle);
}  // namespace host::dxf
