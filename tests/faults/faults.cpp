#include "tests/faults/faults.h"

#include <dlfcn.h>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "tests/faults/blocks.h"

namespace faults
{
// Searches by address each time: a script that unloads the module may load it at another address.
bool isInModule(const void* address)
{
    dl_find_object found;
    return _dl_find_object(const_cast<void*>(address), &found) == 0 &&
           std::string_view(found.dlfo_link_map->l_name).ends_with("/netrax.arx");
}

namespace
{
Plan plan;
std::vector<Call> made;
std::vector<int> failedCalls;

bool isPlanned(int number, const char* name)
{
    return number == plan.first || number == plan.second ||
           (plan.fromFirst && number > plan.first) ||
           (plan.every != nullptr && std::strcmp(plan.every, name) == 0);
}
}  // namespace

int outcomeOf(const char* name, unsigned outcomes, unsigned onceOnly, const void* caller)
{
    if (!isInModule(caller))
    {
        return -1;
    }
    const int number = int(made.size());
    made.push_back({name, outcomes, onceOnly});
    const bool once = !plan.fromFirst && plan.every == nullptr;
    const unsigned possible = outcomes - (once ? 0 : onceOnly);
    if (!isPlanned(number, name) || possible == 0)
    {
        return -1;
    }
    failedCalls.push_back(number);
    return int(std::min(plan.outcome, possible - 1));
}

static std::vector<Row>& rows()
{
    static std::vector<Row> all;
    return all;
}

const std::vector<Row>& listed()
{
    return rows();
}

// A sanitizer treats the margin that it puts behind the table as a part of it.
__attribute__((no_sanitize("address"))) static void replaceVirtual(const char* table, void* host,
                                                                   void* own)
{
    void* const start = dlsym(RTLD_DEFAULT, table);
    Dl_info info;
    ElfW(Sym)* symbol = nullptr;
    if (start == nullptr || host == nullptr ||
        dladdr1(start, &info, reinterpret_cast<void**>(&symbol), RTLD_DL_SYMENT) == 0)
    {
        return;
    }
    auto** const slots = static_cast<void**>(start);
    const std::size_t page = std::size_t(sysconf(_SC_PAGESIZE));
    for (std::size_t i = 0; i < symbol->st_size / sizeof(void*); ++i)
    {
        if (slots[i] == host)
        {
            const auto at = reinterpret_cast<std::uintptr_t>(slots + i);
            mprotect(reinterpret_cast<void*>(at / page * page), page, PROT_READ | PROT_WRITE);
            slots[i] = own;
        }
    }
}

bool list(const char* name, const char* symbol, void* own)
{
    rows().push_back({name, symbol});
    void* const host = dlsym(RTLD_NEXT, symbol);
    for (const char* table : {"_ZTV8AcDbLine", "_ZTV8AcDbText", "_ZTV14AcDb2dPolyline",
                              "_ZTVN4host6LinkerE", "_ZTVN4host12CommandStackE"})
    {
        replaceVirtual(table, host, own);
    }
    return true;
}

const std::vector<Call>& calls()
{
    return made;
}

bool failed(const char* name)
{
    return std::ranges::any_of(failedCalls, [name](int number)
                               { return std::strcmp(made[std::size_t(number)].name, name) == 0; });
}

std::string failures()
{
    std::string list;
    for (std::size_t i = 0; i < failedCalls.size() && i < 4; ++i)
    {
        const int number = failedCalls[i];
        list += (i > 0 ? ", " : "") + std::string(made[std::size_t(number)].name) + " (call " +
                std::to_string(number) + ")";
    }
    return failedCalls.size() > 4 ? list + " ..." : list;
}

void begin(const Plan& chosen)
{
    plan = chosen;
    made.clear();
    failedCalls.clear();
    noteBlocks();
}
}  // namespace faults
