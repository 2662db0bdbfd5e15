#include "host/database/retiredlines.h"

#include <utility>

#include "dbents.h"
#include "host/database/objectmemory.h"
#include "host/database/objectstate.h"

namespace host
{
RetiredLines::~RetiredLines()
{
    for (AcDbLine* line : m_ring)
    {
        ObjectState::destroy(line);
    }
    freeKeptMemory();
}

void RetiredLines::add(AcDbLine* line)
{
    AcDbLine*& place = m_ring[m_next];
    m_next = (m_next + 1) % m_ring.size();
    ObjectState::destroy(place);
    place = line;
}

AcDbLine* RetiredLines::take()
{
    return std::exchange(m_ring[m_next], nullptr);
}
}  // namespace host
