// Reads the properties of an object by its stub, packed or not.
#pragma once

#include <string>

#include "dbents.h"
#include "host/database/core.h"

// Sets the points of a line, whether it is open or not, when it is unpacked.
struct AcDbLine::Internals
{
    static void place(AcDbLine& line, const host::LineEnds& ends)
    {
        line.m_start = ends.start;
        line.m_end = ends.end;
    }
};

namespace host
{
// Returns the object on the heap [borrowed]. Unpacks a packed line. Returns nullptr for a foreign
// object, because such an object exists only in the file.
AcDbObject* resolve(AcDbStub* stub);
// Opens an object that is on the heap, whatever its class and erased or not. Returns the statuses
// of acdbOpenAcDbObject that remain.
Acad::ErrorStatus openUnpacked(AcDbStub* stub, AcDb::OpenMode mode);
// Return a property without unpacking the object [borrowed]. typeOf and ownerOf return nullptr for
// a foreign object; layerOf returns nullptr for anything except an entity made in this run.
AcRxClass* typeOf(const AcDbStub* stub);
AcDbStub* layerOf(const AcDbStub* stub);
AcDbStub* ownerOf(const AcDbStub* stub);
// Returns the number of the entity's list of persistent reactors, or 0 for any other object.
std::uint32_t reactorsOf(const AcDbStub* stub);
// Returns class and handle, for the line that ends a run.
std::string describe(const AcDbObject& object);
std::string describe(const AcDbStub& stub);  // the object must not be foreign
}  // namespace host
