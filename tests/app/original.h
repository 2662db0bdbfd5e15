// The host's own function behind one that the test program has put in its place.
#pragma once

#ifdef _WIN32
// The linker has given the host's function another name (tests/windows/native/originals.cpp).
void* originalOf(const char* mangledName);
#else
#    include <dlfcn.h>

// The program comes before the host's library, so a function that it defines is the one that the
// module calls; the next one of that name is the host's.
inline void* originalOf(const char* mangledName)
{
    return dlsym(RTLD_NEXT, mangledName);
}
#endif

// Function is its type.
template <class Function>
Function* original(const char* mangledName)
{
    return reinterpret_cast<Function*>(originalOf(mangledName));
}
