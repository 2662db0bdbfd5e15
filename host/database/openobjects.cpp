#include "host/database/openobjects.h"

#include <algorithm>

#include "dbents.h"
#include "host/database/objectstate.h"

namespace host
{
OpenObjects::~OpenObjects()
{
    for (AcDbObject* object : m_objects)
    {
        if (AcDbLine::cast(object) != nullptr)
        {
            ObjectState::destroy(object);
        }
    }
}

void OpenObjects::remove(const AcDbObject& object)
{
    // Usually the object opened last is closed first.
    if (m_objects.back() == &object)
    {
        m_objects.pop_back();
        return;
    }
    const auto found = std::find(m_objects.rbegin(), m_objects.rend(), &object);
    m_objects.erase(std::next(found).base());
}
}  // namespace host
