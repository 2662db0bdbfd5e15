// LISP functions that modules define. One whose name begins with "C:" is a command.
#pragma once

#include <map>
#include <string>

#include "host/runtime/linker.h"

namespace host
{
class LispFunctions
{
public:
    using Handler = int (*)();

    void define(Module& module, std::wstring_view name, int code);
    bool undefine(Module& module, std::wstring_view name, int code);
    // The handler is called instead of the entry point; false for a code that names no function.
    bool setHandler(Module& module, int code, Handler handler);

    bool has(const Module& module) const;
    bool defines(std::wstring_view name) const;
    void forget(const Module& module);

    // Runs the function; it has to be defined.
    void invoke(std::wstring_view name);
    // Code of the function that is running, -1 when none is.
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

LispFunctions& lispFunctions();
}  // namespace host
