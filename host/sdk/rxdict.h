// Named objects of the host.
#pragma once

#include "rxobject.h"

class AcRxDictionary : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDictionary)

    // Null when there is no such entry. The object stays the dictionary's.
    virtual AcRxObject* at(const ACHAR* key) const = 0;
};
