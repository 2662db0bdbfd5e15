// Root of the host's classes.
#pragma once

#include "adesk.h"
#include "acadstrc.h"
#include "rxclass.h"

// Root of the host's classes. An object can be asked for its run-time type and is never copied.
class AcRxObject
{
public:
    // Only a derived class is made; any object may be deleted through its root.
    AcRxObject() {}
    virtual ~AcRxObject() {}

    // The class's type, and that of the object, which may be of a derived class [borrowed].
    static AcRxClass* desc();
    virtual AcRxClass* isA() const { return desc(); }
    // True when the object is of that class or of one derived from it.
    bool isKindOf(const AcRxClass* type) const { return isA()->isDerivedFrom(type); }

    // The object as one of this class; null for a null pointer or an object of another class.
    static AcRxObject* cast(const AcRxObject* object) { return const_cast<AcRxObject*>(object); }

private:
    AcRxObject(const AcRxObject&);
    AcRxObject& operator=(const AcRxObject&);
};

// Declares desc, isA and cast of CLASS_NAME inside its body; ACRX_DEFINE_MEMBERS defines the type
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

// Defines what ACRX_DECLARE_MEMBERS declares; PARENT_NAME is the direct base.
#define ACRX_DEFINE_MEMBERS(CLASS_NAME, PARENT_NAME)                 \
    AcRxClass* CLASS_NAME::desc()                                    \
    {                                                                \
        static AcRxClass type(L## #CLASS_NAME, PARENT_NAME::desc()); \
        return &type;                                                \
    }
