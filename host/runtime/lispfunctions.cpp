#include "host/runtime/lispfunctions.h"

#include <algorithm>
#include <utility>

#include "acedads.h"
#include "host/basics/scoped.h"
#include "host/text/foldcase.h"

namespace host
{
void LispFunctions::define(Module& module, std::wstring_view name, int code)
{
    m_functions[foldCase(name)] = {&module, code, nullptr};
}

bool LispFunctions::undefine(Module& module, std::wstring_view name, int code)
{
    const auto found = m_functions.find(foldCase(name));
    if (found == m_functions.end() || found->second.module != &module || found->second.code != code)
    {
        return false;
    }
    m_functions.erase(found);
    return true;
}

bool LispFunctions::setHandler(Module& module, int code, Handler handler)
{
    for (auto& [name, function] : m_functions)
    {
        if (function.module == &module && function.code == code)
        {
            function.handler = handler;
            return true;
        }
    }
    return false;
}

bool LispFunctions::has(const Module& module) const
{
    return std::ranges::any_of(m_functions,
                               [&](const auto& named) { return named.second.module == &module; });
}

bool LispFunctions::defines(std::wstring_view name) const
{
    return m_functions.contains(foldCase(name));
}

void LispFunctions::forget(const Module& module)
{
    std::erase_if(m_functions, [&](const auto& named) { return named.second.module == &module; });
}

void LispFunctions::invoke(std::wstring_view name)
{
    const Function function = m_functions.at(foldCase(name));
    const Scoped<int> running(m_runningCode, function.code);
    if (function.handler != nullptr)
    {
        function.handler();
    }
    else
    {
        linker().send(*function.module, AcRx::kInvkSubrMsg);
    }
}

LispFunctions& lispFunctions()
{
    static LispFunctions functions;
    return functions;
}
}  // namespace host

int acedDefun(const ACHAR* sname, short funcno)
{
    host::Module* module = host::linker().current();
    if (module == nullptr || sname == nullptr || *sname == 0)
    {
        return RTERROR;
    }
    host::lispFunctions().define(*module, sname, funcno);
    return RTNORM;
}

int acedUndef(const ACHAR* sname, short funcno)
{
    host::Module* module = host::linker().current();
    const bool done = module != nullptr && sname != nullptr &&
                      host::lispFunctions().undefine(*module, sname, funcno);
    return done ? RTNORM : RTERROR;
}

int acedRegFunc(int (*fhdl)(void), int fcode)
{
    host::Module* module = host::linker().current();
    const bool done = module != nullptr && host::lispFunctions().setHandler(*module, fcode, fhdl);
    return done ? RTNORM : RTERROR;
}

int acedGetFunCode(void)
{
    const int code = host::lispFunctions().runningCode();
    return code < 0 ? int(RTERROR) : code;
}
