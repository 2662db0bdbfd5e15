// Defines calls that fail on purpose.
//
// A member function is written as the plain function that the linker knows, with the object as its
// first argument. A failed call leaves everything unchanged except what it promises to clear.
#pragma once

#include <iterator>

#include "acadstrc.h"
#include "tests/app/original.h"
#include "tests/faults/faults.h"

using Acad::ErrorStatus;
using faults::outcomeOf;

#define CALLER __builtin_return_address(0)

// Defines the function RESULT NAME PARAMETERS, which is SYMBOL to the linker and TITLE to people.
// When it fails, it executes CLEAR and returns one of the outcomes. It returns each of the last
// ONCE outcomes only once in a run.
#define CALL_THAT_FAILS(RESULT, NAME, SYMBOL, TITLE, PARAMETERS, ARGUMENTS, CLEAR, ONCE, ...) \
    extern "C" __attribute__((visibility("default"))) RESULT NAME PARAMETERS __asm__(SYMBOL); \
    extern "C" RESULT NAME PARAMETERS                                                         \
    {                                                                                         \
        static auto* const next = original<RESULT PARAMETERS>(SYMBOL);                        \
        static RESULT const outcomes[] = {__VA_ARGS__};                                       \
        const int outcome = outcomeOf(TITLE, std::size(outcomes), ONCE, CALLER);              \
        if (outcome < 0)                                                                      \
        {                                                                                     \
            return next ARGUMENTS;                                                            \
        }                                                                                     \
        CLEAR;                                                                                \
        return outcomes[outcome];                                                             \
    }                                                                                         \
    [[maybe_unused]] const bool NAME##IsListed =                                              \
        faults::list(TITLE, SYMBOL, reinterpret_cast<void*>(NAME));

#define STATUS_CALL(NAME, SYMBOL, TITLE, PARAMETERS, ARGUMENTS, CLEAR, ...) \
    CALL_THAT_FAILS(ErrorStatus, NAME, SYMBOL, TITLE, PARAMETERS, ARGUMENTS, CLEAR, 0, __VA_ARGS__)

// The reasons why an object cannot be opened.
#define REFUSED_OPENINGS                                                                        \
    Acad::eNullObjectId, Acad::eWasErased, Acad::eNotImplementedYet, Acad::eNotThatKindOfClass, \
        Acad::eWasOpenForWrite, Acad::eWasOpenForRead, Acad::eAtMaxReaders, Acad::eOnLockedLayer

#define NOTHING ((void)0)

// Defines a function without a result. It fails by doing nothing, or by executing INSTEAD.
#define SILENT_CALL(NAME, SYMBOL, TITLE, PARAMETERS, ARGUMENTS, INSTEAD)                    \
    extern "C" __attribute__((visibility("default"))) void NAME PARAMETERS __asm__(SYMBOL); \
    extern "C" void NAME PARAMETERS                                                         \
    {                                                                                       \
        static auto* const next = original<void PARAMETERS>(SYMBOL);                        \
        if (outcomeOf(TITLE, 1, 0, CALLER) < 0)                                             \
        {                                                                                   \
            next ARGUMENTS;                                                                 \
            return;                                                                         \
        }                                                                                   \
        INSTEAD;                                                                            \
    }                                                                                       \
    [[maybe_unused]] const bool NAME##IsListed =                                            \
        faults::list(TITLE, SYMBOL, reinterpret_cast<void*>(NAME));
