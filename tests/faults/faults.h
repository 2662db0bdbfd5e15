// Failing the host's calls on purpose.
//
// The program stands before the host's library, so its functions are what the module calls. Each
// counts the call and either fails it or hands it on; the host's own calls always go on.
#pragma once

#include <string>
#include <vector>

namespace faults
{
// Calls are numbered from 0, in the order of one run.
struct Plan
{
    int first = -1;               // this call fails
    int second = -1;              // so does this one
    bool fromFirst = false;       // and every one from the first on
    const char* every = nullptr;  // every call of this name fails
    unsigned outcome = 0;         // which of the ways in which the call can fail
};

// A call of an unfailed run.
struct Call
{
    const char* name;
    unsigned outcomes;  // in how many ways it can fail
    unsigned onceOnly;  // the last so many of them only once in a run
};

void begin(const Plan& plan);
const std::vector<Call>& calls();  // since `begin`
bool failed(const char* name);     // whether a call of that name was failed
std::string failures();            // what was failed, with numbers

// A call that can be failed.
struct Row
{
    const char* name;
    const char* symbol;  // as the linker knows it
};
const std::vector<Row>& listed();

// Adds one and gives true. Entities and services are called through their tables of virtual
// functions: where these hold the host's function of that symbol, `own` takes its place.
bool list(const char* name, const char* symbol, void* own);

// For the functions that stand in place of the host's: the outcome to fail with, or -1.
int outcomeOf(const char* name, unsigned outcomes, unsigned onceOnly, const void* caller);

// Whether that address is the module's code.
bool isInModule(const void* address);
}  // namespace faults
