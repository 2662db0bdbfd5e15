// The precomputed form in which lines are written; a drawing may have a million of them.
#pragma once

#include <optional>

#include "host/dxf/recordwriter.h"
#include "host/dxf/schema/entities.h"

namespace host::dxf
{
// Returns what the table of lines writes for `line`, except the handle and the two points, which
// the form leaves open. With an `elevation` [wcs] the form is for lines whose points both have this
// Z; otherwise the form leaves their Z open as well. Throws std::domain_error if the elevation is
// not finite.
RecordForm lineFormOf(const schema::line::Line& line, const FileForm& form, const TagStyle& style,
                      bool hasHandle, std::optional<double> elevation = {});
}  // namespace host::dxf
