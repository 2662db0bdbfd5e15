// Keeps the LISP functions that modules define. A function whose name begins with "C:" is a
// command.
#pragma once

#include <map>
#include <string>

#include "host/runtime/linker.h"

namespace host
{
// Finds functions by name, in any letter case.
class LispFunctions
{
public:
    using Handler = int (*)();

    // Defines a function and replaces a former one of that name.
    void define(Module& module, std::wstring_view name, int code);
    // Removes a function. Returns false when the module has no function with that name and code.
    bool undefine(Module& module, std::wstring_view name, int code);
    // Makes `invoke` call the handler instead of the module's entry point. Returns false when the
    // module has no function with that code.
    bool setHandler(Module& module, int code, Handler handler);

    // Tell whether the module has any function, and whether a function of that name exists.
    bool has(const Module& module) const;
    bool defines(std::wstring_view name) const;
    // Removes all functions of the module.
    void forget(const Module& module);

    // Runs the function, which must be defined.
    void invoke(std::wstring_view name);
    // Returns the code of the function that is running, or -1 while none is.
    int runningCode() const { return m_runningCode; }

private:
    struct Function
    {
        Module* module;
        int code;
        Handler handler;
    };

    std::map<std::wstring, Function> m_functions;  // by folded name
    int m_runningCode = -1;
};

// Returns the one list of functions [borrowed], which lives as long as the program.
LispFunctions& lispFunctions();
}  // namespace host
