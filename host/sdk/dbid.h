// Identifiers of objects in a drawing database. A caller may keep an id, but not a pointer to an
// object.
#pragma once

#include "acdb.h"

class AcDbDatabase;
class AcDbStub;

// A value that names one object of one drawing, erased or not, for as long as the drawing is open.
// Ids are ordered, but the order has no meaning. An id must not be used after its drawing is
// closed.
class AcDbObjectId
{
public:
    // Creates the null id, which names no object.
    AcDbObjectId() : m_stub(nullptr) {}

    static const AcDbObjectId kNull;  // the null id

    // Tell whether the id is null, make it null, and tell whether it names an object.
    bool isNull() const { return m_stub == nullptr; }
    void setNull() { m_stub = nullptr; }
    bool isValid() const { return m_stub != nullptr; }
    // Tells whether the object is erased, open or not. Returns false for a null id.
    bool isErased() const;
    // Returns the drawing that holds the object [borrowed], or null for a null id.
    AcDbDatabase* database() const;

    // Compare ids. Two ids are equal when they name the same object.
    bool operator==(const AcDbObjectId& other) const { return m_stub == other.m_stub; }
    bool operator!=(const AcDbObjectId& other) const { return m_stub != other.m_stub; }
    bool operator<(const AcDbObjectId& other) const { return m_stub < other.m_stub; }

    // Create an id from the host's own record, and return that record. Only the host calls them.
    explicit AcDbObjectId(AcDbStub* stub) : m_stub(stub) {}
    AcDbStub* stub() const { return m_stub; }

private:
    AcDbStub* m_stub;
};
