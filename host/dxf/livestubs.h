#pragma once

#include <vector>

#include "host/database/core.h"

namespace host::dxf
{
// The objects that are not erased, in the order in which they were made. Of consecutive packed
// lines that share a style, only the first is included: it names the same layer, linetype and owner
// as the others.
using LiveStubs = std::vector<const AcDbStub*>;
LiveStubs liveStubs(const DatabaseCore& core);
}  // namespace host::dxf
