// Stubs without a drawing around them.
#pragma once

#include "host/database/drawing.h"

namespace support
{
// Makes stubs that are not erased; they live as long as this object.
class Stubs
{
public:
    AcDbStub& add()
    {
        AcDbStub* const made = m_stubs.add(1);
        made->setErased(false);
        return *made;
    }

private:
    AcDbDatabase m_database;
    host::StubArena m_stubs{host::coreOf(m_database)};
};
}  // namespace support
