// The named objects of the host.
#pragma once

#include "rxobject.h"

// A dictionary of the host's services. Letter case of keys matters.
class AcRxDictionary : public AcRxObject
{
public:
    ACRX_DECLARE_MEMBERS(AcRxDictionary)

    // Returns the object under that key [borrowed], or null for a null or unknown key.
    virtual AcRxObject* at(const ACHAR* key) const = 0;
};
