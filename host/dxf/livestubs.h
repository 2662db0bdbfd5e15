#pragma once

#include <vector>

#include "host/database/core.h"

namespace host::dxf
{
// Every object that is not erased, in the order they were made; of lines in a row that share a
// style only the first, which names the same layer, linetype and owner as the others.
using LiveStubs = std::vector<const AcDbStub*>;
LiveStubs liveStubs(const DatabaseCore& core);
}  // namespace host::dxf
