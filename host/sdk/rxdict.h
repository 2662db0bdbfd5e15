// Named objects of the host.
#pragma once

#include "rxobject.h"

// A dictionary of the host's services. Letter case of keys counts.
class AcRxDictionary : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDictionary)

    // The object under that key [borrowed]; null for a null key or when there is no such entry.
    virtual AcRxObject* at(const ACHAR* key) const = 0;
};
