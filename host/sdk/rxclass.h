// The run-time types of the host's classes.
#pragma once

#include "adesk.h"

// The run-time type of a class derived from AcRxObject. Each class has one static object of it,
// which ACRX_DEFINE_MEMBERS creates. Parents outlive children.
class AcRxClass
{
public:
    // Creates a type. Both arguments are [borrowed] as long as the object lives; the root has a
    // null parent.
    AcRxClass(const ACHAR* name, AcRxClass* parent) : m_name(name), m_parent(parent) {}

    // Returns the class's name as its source spells it [borrowed].
    const ACHAR* name() const { return m_name; }
    // Returns the type of the base class [borrowed], or null for the root.
    AcRxClass* myParent() const { return m_parent; }
    // Tells whether this type is `other` or derives from it. Returns false for null.
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
