// Finds the host's own function behind the one that the test program has put in its place.
#pragma once

#ifdef _WIN32
// Returns the host's function, to which the linker has given another name
// (tests/windows/native/originals.cpp).
void* originalOf(const char* mangledName);
#else
#    include <dlfcn.h>

// Returns the host's function. The program comes before the host's library, so the module calls a
// function that the program defines; the next one of that name is the host's.
inline void* originalOf(const char* mangledName)
{
    return dlsym(RTLD_NEXT, mangledName);
}
#endif

// Returns the host's function, whose type is Function.
template <class Function>
Function* original(const char* mangledName)
{
    return reinterpret_cast<Function*>(originalOf(mangledName));
}
