#include "rxobject.h"

AcRxClass* AcRxObject::desc()
{
    static AcRxClass type(L"AcRxObject", nullptr);
    return &type;
}
