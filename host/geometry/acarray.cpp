#include "acarray.h"

#include <string>

#include "host/basics/breach.h"

void acArrayIndexBreach(const char* call, int index, int length)
{
    host::breach(call,
                 "index " + std::to_string(index) + " is not below " + std::to_string(length));
}

void acArrayMemoryBreach()
{
    host::breach("AcArray", "out of memory");
}
