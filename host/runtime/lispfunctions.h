// LISP functions that modules define. A function whose name begins with "C:" is a command.
#pragma once

#include <map>
#include <string>

#include "host/runtime/linker.h"

namespace host
{
// The functions by their names; letter case does not count.
class LispFunctions
{
public:
    using Handler = int (*)();

    // Defines a function; a former one of that name is replaced.
    void define(Module& module, std::wstring_view name, int code);
    // Removes a function; false when the module has none of that name and code.
    bool undefine(Module& module, std::wstring_view name, int code);
    // Calls the handler instead of the module's entry point from now on; false when the module has
    // no function with that code.
    bool setHandler(Module& module, int code, Handler handler);

    // Whether the module has any function, and whether there is one of that name.
    bool has(const Module& module) const;
    bool defines(std::wstring_view name) const;
    // Removes all functions of the module.
    void forget(const Module& module);

    // Runs the function; it has to be defined.
    void invoke(std::wstring_view name);
    // Code of the function that is running; -1 while none is.
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

// The one list of functions.
LispFunctions& lispFunctions();
}  // namespace host
