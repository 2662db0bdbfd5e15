// Run-time types of the host's classes.
#pragma once

#include "adesk.h"

// Run-time type of a class derived from AcRxObject. Each class has one static object, made by
// ACRX_DEFINE_MEMBERS; parents outlive children.
class AcRxClass
{
public:
    // Both are [borrowed] for the life of the object; the root has a null parent.
    AcRxClass(const ACHAR* name, AcRxClass* parent) : m_name(name), m_parent(parent) {}

    // The class's name as it is spelled in its source [borrowed].
    const ACHAR* name() const { return m_name; }
    // The type of the class that it derives from [borrowed]; null for the root.
    AcRxClass* myParent() const { return m_parent; }
    // True also for the class itself. False for null.
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
