#include "host/database/openobjects.h"

#include <algorithm>

#include "dbents.h"
#include "host/database/objectstate.h"
#include "host/database/stub.h"

namespace host
{
OpenObjects::~OpenObjects()
{
    for (AcDbObject* object : m_objects)
    {
        const std::uint32_t flags = ObjectState::stub(*object)->flags;
        if ((flags & (AcDbStub::isLine | AcDbStub::isLoose)) == AcDbStub::isLine)
        {
            ObjectState::destroy(object);
        }
    }
}

void OpenObjects::removeEarlier(const AcDbObject& object)
{
    const auto found = std::find(m_objects.rbegin(), m_objects.rend(), &object);
    m_objects.erase(std::next(found).base());
}
}  // namespace host
