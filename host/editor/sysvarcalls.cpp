#include <climits>

#include "acedads.h"
#include "acutmem.h"
#include "geassign.h"
#include "host/editor/editor.h"
#include "host/editor/sysvars.h"

namespace
{
using host::VariableValue;

void fillInteger(int value, resbuf& result)
{
    if (value >= SHRT_MIN && value <= SHRT_MAX)
    {
        result.restype = RTSHORT;
        result.resval.rint = short(value);
        return;
    }
    result.restype = RTLONG;
    result.resval.rlong = value;
}

struct Fill
{
    resbuf& result;

    void operator()(int value) const { fillInteger(value, result); }
    void operator()(double value) const
    {
        result.restype = RTREAL;
        result.resval.rreal = value;
    }
    void operator()(const AcGePoint3d& value) const
    {
        result.restype = RT3DPOINT;
        asPnt3d(result.resval.rpoint) = value;
    }
    void operator()(const std::wstring& value) const
    {
        result.restype = RTSTR;
        acutNewString(value.c_str(), result.resval.rstring);
    }
};

// Returns the value in the buffer; no value when no variable has values of its type.
std::optional<VariableValue> valueOf(const resbuf& buffer)
{
    switch (buffer.restype)
    {
        case RTSHORT:
            return int(buffer.resval.rint);
        case RTLONG:
            return int(buffer.resval.rlong);
        case RTREAL:
        case RTANG:
            return buffer.resval.rreal;
        case RTPOINT:
        case RT3DPOINT:
            return asPnt3d(buffer.resval.rpoint);
        case RTSTR:
            return std::wstring(buffer.resval.rstring ? buffer.resval.rstring : L"");
        default:
            return std::nullopt;
    }
}

int failed(host::VariableError error)
{
    if (host::Editor* editor = host::Editor::current())
    {
        editor->setErrorNumber(int(error));
    }
    return RTERROR;
}
}  // namespace

int acedGetVar(const ACHAR* sym, struct resbuf* result)
{
    if (sym == nullptr || result == nullptr || !host::isVariable(sym))
    {
        return failed(host::VariableError::unknown);
    }
    result->rbnext = nullptr;
    std::visit(Fill{*result}, host::variableValue(sym));
    return RTNORM;
}

int acedSetVar(const ACHAR* sym, const struct resbuf* val)
{
    if (sym == nullptr || val == nullptr)
    {
        return failed(host::VariableError::unknown);
    }
    const std::optional<VariableValue> value = valueOf(*val);
    const host::VariableError error =
        value ? host::setVariable(sym, *value) : host::VariableError::wrongType;
    return error == host::VariableError::none ? int(RTNORM) : failed(error);
}
