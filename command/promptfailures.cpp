#include "command/promptfailures.h"

#include "hostapi/host.h"

bool PromptFailures::areTooMany(int result)
{
    const int most = 16;
    const bool isAPersons =
        result == RTNORM || result == RTNONE || result == RTKWORD || result == RTCAN;
    m_inARow = isAPersons ? 0 : m_inARow + 1;
    return m_inARow >= most;
}
