// The form in which a million lines are written.
#pragma once

#include "host/dxf/recordwriter.h"
#include "host/dxf/schema/entities.h"

namespace host::dxf
{
// What the table of lines writes for `line`, but for its handle and its two points, which the form
// leaves open.
RecordForm lineFormOf(const schema::line::Line& line, const FileForm& form, const TagStyle& style,
                      bool hasHandle);
}  // namespace host::dxf
