// What a stub tells of its object, packed or not.
#pragma once

#include <string>

#include "dbents.h"
#include "host/database/core.h"

// The points of a line that is put back where it was packed, whether it is open or not.
struct AcDbLine::Internals
{
    static void place(AcDbLine& line, const AcGePoint3d& start, const AcGePoint3d& end)
    {
        line.m_start = start;
        line.m_end = end;
    }
};

namespace host
{
// The object on the heap; a packed line is unpacked, a foreign object has none.
AcDbObject* resolve(AcDbStub* stub);
// Run-time type without unpacking; null for a foreign object.
AcRxClass* typeOf(const AcDbStub* stub);
AcDbStub* layerOf(const AcDbStub* stub);
AcDbStub* ownerOf(const AcDbStub* stub);
// The number of the entity's list of persistent reactors; 0 for anything else.
std::uint32_t reactorsOf(const AcDbStub* stub);
// Class and handle, for the line that stops a run.
std::string describe(const AcDbObject& object);
std::string describe(const AcDbStub& stub);  // not of a foreign object
}  // namespace host
