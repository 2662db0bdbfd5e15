// Keeps windows responsive while their thread waits for an answer.
#pragma once

namespace host
{
// Passes the waiting messages to their windows. Returns false on a system whose windows need no
// messages.
bool dispatchPendingMessages();
}  // namespace host
