// The root of the host's classes, and the macros that give a class its run-time type.
#pragma once

#include "adesk.h"
#include "acadstrc.h"
#include "rxclass.h"

// The root of the host's classes. An object knows its run-time type and is never copied.
class AcRxObject
{
public:
    // Only derived classes are created. Any object may be deleted through the root.
    AcRxObject() {}
    virtual ~AcRxObject() {}

    // Return the class's type, and the type of the object, which may be that of a derived class
    // [borrowed].
    static AcRxClass* desc();
    virtual AcRxClass* isA() const { return desc(); }
    // Tells whether the object is of that class or of a derived one.
    bool isKindOf(const AcRxClass* type) const { return isA()->isDerivedFrom(type); }

    // Returns the object as one of this class [borrowed], or null for a null pointer or an object
    // of another class.
    static AcRxObject* cast(const AcRxObject* object) { return const_cast<AcRxObject*>(object); }

private:
    AcRxObject(const AcRxObject&);
    AcRxObject& operator=(const AcRxObject&);
};

// Declares desc, isA and cast of CLASS_NAME inside its body. ACRX_DEFINE_MEMBERS defines the type
// in one source.
#define ACRX_DECLARE_MEMBERS(CLASS_NAME)                                       \
    static AcRxClass* desc();                                                  \
    virtual AcRxClass* isA() const override                                    \
    {                                                                          \
        return desc();                                                         \
    }                                                                          \
    static CLASS_NAME* cast(const AcRxObject* object)                          \
    {                                                                          \
        return object != nullptr && object->isKindOf(desc())                   \
                   ? static_cast<CLASS_NAME*>(const_cast<AcRxObject*>(object)) \
                   : nullptr;                                                  \
    }

// Defines the members that ACRX_DECLARE_MEMBERS declares. PARENT_NAME is the direct base.
#define ACRX_DEFINE_MEMBERS(CLASS_NAME, PARENT_NAME)                 \
    AcRxClass* CLASS_NAME::desc()                                    \
    {                                                                \
        static AcRxClass type(L## #CLASS_NAME, PARENT_NAME::desc()); \
        return &type;                                                \
    }
