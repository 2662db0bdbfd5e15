// Windows that stay alive while their thread waits for an answer.
#pragma once

namespace host
{
// Hands the messages that wait to their windows. False on a system whose windows need no messages.
bool dispatchPendingMessages();
}  // namespace host
