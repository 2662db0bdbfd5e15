#include "host/windows/pendingmessages.h"

namespace host
{
bool dispatchPendingMessages()
{
    return false;
}
}  // namespace host
