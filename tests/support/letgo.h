// Objects that the module lets go on purpose, told to the leak checker.
#pragma once

#include "tests/support/sanitized.h"

#ifdef WATCHED_FOR_ADDRESSES
#    include <sanitizer/lsan_interface.h>
#endif

namespace tests
{
// What is allocated while it lives counts as no leak: an entity that the host refuses is nobody's.
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
