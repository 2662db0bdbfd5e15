// Makes calls of the host fail on purpose.
//
// The linker finds the program before the host's library, so the module calls the program's
// functions. Each one counts the call and either makes it fail or passes it on. Calls of the host
// itself are always passed on.
#pragma once

#include <string>
#include <vector>

namespace faults
{
// The calls that fail. Calls are numbered from 0 in the order of one run.
struct Plan
{
    int first = -1;               // this call fails
    int second = -1;              // this call fails, too
    bool fromFirst = false;       // every call from the first on fails
    const char* every = nullptr;  // every call of this name fails
    unsigned outcome = 0;         // selects one of the ways in which the call can fail
};

// A call of a run without faults.
struct Call
{
    const char* name;
    unsigned outcomes;  // the number of ways in which it can fail
    unsigned onceOnly;  // the number of outcomes, the last ones, that occur only once in a run
};

void begin(const Plan& plan);
const std::vector<Call>& calls();  // the calls since `begin`
bool failed(const char* name);     // whether a call of that name has failed
std::string failures();            // the failed calls with their numbers

// A call that can be made to fail.
struct Row
{
    const char* name;
    const char* symbol;  // the name in the linker
};
const std::vector<Row>& listed();

// Adds a call and returns true. The module calls entities and services through their tables of
// virtual functions; where a table holds the host's function of that symbol, `own` replaces it.
bool list(const char* name, const char* symbol, void* own);

// Returns the outcome with which the call fails, or -1. The functions that replace the host's call
// it.
int outcomeOf(const char* name, unsigned outcomes, unsigned onceOnly, const void* caller);

// Tells whether the address is in the module's code.
bool isInModule(const void* address);
}  // namespace faults
