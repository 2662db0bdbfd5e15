// Root of the host's classes.
#pragma once

#include "adesk.h"
#include "acadstrc.h"
#include "rxclass.h"

class AcRxObject
{
public:
    AcRxObject() {}
    virtual ~AcRxObject() {}

    static AcRxClass* desc();
    virtual AcRxClass* isA() const { return desc(); }
    bool isKindOf(const AcRxClass* type) const { return isA()->isDerivedFrom(type); }

    // Null for a null pointer or another class.
    static AcRxObject* cast(const AcRxObject* object) { return const_cast<AcRxObject*>(object); }

private:
    AcRxObject(const AcRxObject&);
    AcRxObject& operator=(const AcRxObject&);
};

// Declares the run-time type of CLASS_NAME inside its body; ACRX_DEFINE_MEMBERS defines it in one
// source.
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

#define ACRX_DEFINE_MEMBERS(CLASS_NAME, PARENT_NAME)                 \
    AcRxClass* CLASS_NAME::desc()                                    \
    {                                                                \
        static AcRxClass type(L## #CLASS_NAME, PARENT_NAME::desc()); \
        return &type;                                                \
    }
