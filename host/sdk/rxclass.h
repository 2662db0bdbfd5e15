// Run-time types of the host's classes.
#pragma once

#include "adesk.h"

// Run-time type of a class derived from AcRxObject. One static object a class; parents outlive
// children.
class AcRxClass
{
public:
    AcRxClass(const ACHAR* name, AcRxClass* parent) : m_name(name), m_parent(parent) {}

    const ACHAR* name() const { return m_name; }
    AcRxClass* myParent() const { return m_parent; }
    bool isDerivedFrom(const AcRxClass* other) const
    {
        const AcRxClass* type = this;
        while (type != nullptr && type != other)
        {
            type = type->m_parent;
        }
        return type != nullptr;
    }

private:
    const ACHAR* m_name;
    AcRxClass* m_parent;
};
