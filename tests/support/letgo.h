// Tells the leak checker which objects the module abandons on purpose.
#pragma once

#include "tests/support/sanitized.h"

#ifdef WATCHED_FOR_ADDRESSES
#    include <sanitizer/lsan_interface.h>
#endif

namespace tests
{
// An allocation while it lives does not count as a leak: an entity that the host refuses has no
// owner.
class LetGo
{
public:
#ifdef WATCHED_FOR_ADDRESSES
    LetGo()
    {
        __lsan_disable();
    }
    ~LetGo()
    {
        __lsan_enable();
    }
#else
    LetGo() {}
    ~LetGo() {}
#endif
    LetGo(const LetGo&) = delete;
    LetGo& operator=(const LetGo&) = delete;
};
}  // namespace tests
