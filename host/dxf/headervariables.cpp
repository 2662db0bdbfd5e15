#include "host/dxf/headervariables.h"

#include <cwchar>

namespace host::dxf
{
namespace
{
template <class Value>
void takeSame(const VariableValue& kept, Value& value)
{
    if (const Value* found = std::get_if<Value>(&kept))
    {
        value = *found;
    }
}
}  // namespace

void takeKept(const VariableValue& kept, int& value)
{
    takeSame(kept, value);
}

void takeKept(const VariableValue& kept, double& value)
{
    takeSame(kept, value);
}

void takeKept(const VariableValue& kept, std::wstring& value)
{
    takeSame(kept, value);
}

void takeKept(const VariableValue& kept, AcGePoint3d& value)
{
    takeSame(kept, value);
}

void takeKept(const VariableValue& kept, AcGeVector3d& value)
{
    if (const auto* point = std::get_if<AcGePoint3d>(&kept))
    {
        value = point->asVector();
    }
}

void takeKept(const VariableValue& kept, schema::Handle& value)
{
    if (const auto* digits = std::get_if<std::wstring>(&kept))
    {
        value = std::wcstoull(digits->c_str(), nullptr, 16);
    }
}
}  // namespace host::dxf
