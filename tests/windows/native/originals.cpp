// The host's functions that tests stand before. A program of Windows has no second function of a
// name: before the tests are linked, windows.cmake puts "host" before the names of the host's own.
#include <iterator>
#include <map>
#include <string_view>

#include "tests/app/original.h"
#include "windows.h"

#define ORIGINAL(name) extern "C" void host##name();
#include "originals.inc"
#undef ORIGINAL

namespace
{
using Functions = std::map<std::string_view, void*>;

#define ORIGINAL(name) {#name, reinterpret_cast<void*>(&host##name)},
const Functions& ofTheHost()
{
    static const Functions functions = {
#include "originals.inc"
    };
    return functions;
}
#undef ORIGINAL

void* ofWindows(const char* name)
{
    for (const wchar_t* const library : {L"kernel32", L"user32"})
    {
        if (const FARPROC found = GetProcAddress(GetModuleHandleW(library), name))
        {
            return reinterpret_cast<void*>(found);
        }
    }
    return nullptr;
}
}  // namespace

void* originalOf(const char* mangledName)
{
    const auto found = ofTheHost().find(mangledName);
    return found != ofTheHost().end() ? found->second : ofWindows(mangledName);
}
