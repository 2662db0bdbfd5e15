// Checks the rule that a command leaves no object open.
#pragma once

#include <string_view>

#include "dbmain.h"

namespace host
{
// Ends the run with status 1 if an object is still open; the message names `call`. Objects whose
// upgrade or erase the host itself refused are closed here instead, because the module may leave
// these open.
void requireNothingOpen(AcDbDatabase& database, std::string_view call);
}  // namespace host
