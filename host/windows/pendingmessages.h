// Windows that stay alive while their thread waits for an answer.
#pragma once

namespace host
{
// Hands the messages that wait to their windows. False where windows need none.
bool dispatchPendingMessages();
}  // namespace host
