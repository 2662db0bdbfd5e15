// The rule that a command leaves nothing open behind it.
#pragma once

#include <string_view>

#include "dbmain.h"

namespace host
{
// Ends the run with status 1, naming `call`, if an object is still open. Objects whose upgrade or
// erase the host itself refused are closed here instead: what opened them may leave them so.
void requireNothingOpen(AcDbDatabase& database, std::string_view call);
}  // namespace host
