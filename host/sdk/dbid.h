// Identifier of an object in a drawing database. An id may be kept; a pointer to an object may not.
#pragma once

#include "acdb.h"

class AcDbDatabase;
class AcDbStub;

// A value that names one object of one drawing, erased or not, for as long as the drawing is open.
// Ids are ordered, but the order means nothing. After the drawing is closed an id must not be used.
class AcDbObjectId
{
public:
    // The null id, which names no object.
    AcDbObjectId() : m_stub(nullptr) {}

    static const AcDbObjectId kNull;  // the null id

    // Whether the id names an object, and the way to make it name none. isValid is the opposite of
    // isNull.
    bool isNull() const { return m_stub == nullptr; }
    void setNull() { m_stub = nullptr; }
    bool isValid() const { return m_stub != nullptr; }
    // Whether the object is erased, open or not; false for a null id.
    bool isErased() const;
    // The drawing that holds the object [borrowed]; null for a null id.
    AcDbDatabase* database() const;

    // Two ids are equal when they name the same object.
    bool operator==(const AcDbObjectId& other) const { return m_stub == other.m_stub; }
    bool operator!=(const AcDbObjectId& other) const { return m_stub != other.m_stub; }
    bool operator<(const AcDbObjectId& other) const { return m_stub < other.m_stub; }

    // The host's own.
    explicit AcDbObjectId(AcDbStub* stub) : m_stub(stub) {}
    AcDbStub* stub() const { return m_stub; }

private:
    AcDbStub* m_stub;
};
